// The timeline and its mixers: mixer slots with their refusals, track lists and their order,
// spans of time, the walk over all medias, portion copies with links, the camera and XML.
#include <ZelmarMediaLib/exceptions/AddRemoveException.h>
#include <ZelmarMediaLib/exceptions/IndexException.h>
#include <ZelmarMediaLib/exceptions/TypeException.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/parameters/LeftParameter.h>
#include <ZelmarMediaLib/parameters/VectorParam.h>
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/AMFile.h>
#include <ZelmarMediaLib/timeline/AudioMixer.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>
#include <ZelmarMediaLib/timeline/ImageTrack.h>
#include <ZelmarMediaLib/timeline/Timeline.h>
#include <ZelmarMediaLib/timeline/VMFile.h>
#include <ZelmarMediaLib/timeline/VisualMixer.h>
#include <ZelmarMediaLib/timeline/VisualTrack.h>

#include "support/CountingObserver.h"
#include "support/ExpectText.h"
#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace ZelmarMediaLib {
namespace {

using test::xml;

using test::id;

using test::expectText;

class TimelineTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<Timeline> timeline = boost::make_shared<Timeline>(project);

    shared_ptr<AMFile> audio(long long duration) {
        return boost::make_shared<AMFile>(Range<long long>(0, duration), 48000u, 16u, project, "/a.wav", 0.0, 1000.0,
                                          0u, 0u);
    }

    shared_ptr<VMFile> video(long long duration) {
        return boost::make_shared<VMFile>(Range<long long>(0, duration), Rect<float>(0, 0, 640, 480), project,
                                          "/v.mov", 0.0, 1000.0, 0u);
    }

    template <class M>
    shared_ptr<M> place(shared_ptr<Track> const& track, shared_ptr<M> const& media, long long start) {
        track->addMedia(media, start);
        return media;
    }
};

TEST_F(TimelineTest, NewTimelineHasNoMixersAndOnlyItsMarker) {
    EXPECT_FALSE(timeline->visualMixer());
    EXPECT_FALSE(timeline->audioMixer());
    EXPECT_EQ(0, timeline->endTime());
    std::unique_ptr<ParameterVector> parameters(timeline->parameterVector());
    ASSERT_EQ(1u, parameters->size());
    EXPECT_EQ(timeline->markerParam(), (*parameters)[0]);
    parameters.reset();
    EXPECT_EQ("marker", timeline->markerParam()->ident());
    EXPECT_EQ("<Timeline id=\"" + id(*timeline) + "\"  >\n</Timeline>\n", xml(*timeline));
}

TEST_F(TimelineTest, MixerSlotsTakeOneMixerOfEachKind) {
    test::CountingObserver observer;
    timeline->attach(&observer);
    expectText<AddRemoveException>([&] { timeline->removeVisualMixer(); },
                                   "Can't remove a video mixer if we don't have one");
    expectText<AddRemoveException>([&] { timeline->removeAudioMixer(); },
                                   "Can't remove an audio mixer if we don't have one");
    expectText<AddRemoveException>([&] { timeline->removeVisualTrack(boost::make_shared<VisualTrack>(project)); },
                                   "Can't remove a video track if we don't have a video mixer");
    expectText<AddRemoveException>([&] { timeline->removeAudioTrack(boost::make_shared<AudioTrack>(project)); },
                                   "Can't remove a audio track if we don't have an audio mixer");
    EXPECT_EQ(0, observer.calls);

    shared_ptr<VisualMixer> visual = timeline->newVisualMixer(640, 480);
    shared_ptr<AudioMixer> sound = timeline->newAudioMixer(44100, 16, 2);
    EXPECT_EQ(2, observer.calls);
    expectText<AddRemoveException>([&] { timeline->newVisualMixer(320, 240); },
                                   "Can't create a new video mixer if we already have one");
    expectText<AddRemoveException>([&] { timeline->newVisualMixer(boost::make_shared<VisualMixer>(1, 1, project)); },
                                   "Can't create a new video mixer if we already have one");
    expectText<AddRemoveException>([&] { timeline->newAudioMixer(8000, 8, 1); },
                                   "Can't create a new audio mixer if we already have one");
    EXPECT_EQ(visual, timeline->visualMixer());
    EXPECT_EQ(sound, timeline->audioMixer());

    EXPECT_EQ(visual, timeline->removeVisualMixer());
    EXPECT_FALSE(timeline->visualMixer());
    EXPECT_EQ(3, observer.calls);
    timeline->detach(&observer);
}

TEST_F(TimelineTest, NewTrackNeedsTheTimelinesOwnMixerOfItsKind) {
    std::string const noMixer = "Can't create a new audio track if we don't have a audio mixer to put it on";
    expectText<AddRemoveException>([&] { timeline->newTrack<VisualTrack>(shared_ptr<Mixer>(), -1); }, noMixer);
    expectText<AddRemoveException>([&] { timeline->newTrack<ImageTrack>(shared_ptr<Mixer>(), -1); }, noMixer);
    expectText<AddRemoveException>([&] { timeline->newTrack<AudioTrack>(shared_ptr<Mixer>(), -1); }, noMixer);

    shared_ptr<AudioMixer> sound = timeline->newAudioMixer(44100, 16, 2);
    shared_ptr<AudioMixer> foreign = boost::make_shared<AudioMixer>(44100, 16, 2, project);
    expectText<ZelmarMediaLibException>([&] { timeline->newTrack<AudioTrack>(foreign, -1); },
                                        "can't add audio tracks to mixer");
    expectText<ZelmarMediaLibException>([&] { timeline->newTrack<AudioTrack>(shared_ptr<Mixer>(), -1); },
                                        "can't add audio tracks to mixer");
    expectText<ZelmarMediaLibException>([&] { timeline->newTrack<VisualTrack>(sound, -1); },
                                        "can't add visual tracks to mixer");
    shared_ptr<AudioTrack> track = timeline->newTrack<AudioTrack>(sound, -1);
    EXPECT_EQ(track, sound->trackAtIndex(0));

    shared_ptr<VisualMixer> visual = timeline->newVisualMixer(640, 480);
    timeline->newTrack<VisualTrack>(visual, -1);
    // The visual mixer's list is typed for both picture kinds, but its type test takes only one.
    expectText<TypeException>([&] { timeline->newTrack<ImageTrack>(visual, -1); }, "VisualTrack");
    EXPECT_EQ(2, timeline->numTracks());
}

TEST_F(TimelineTest, MixerKindsRefuseForeignTracksAndLeaveTheListAlone) {
    shared_ptr<AudioMixer> sound = timeline->newAudioMixer(44100, 16, 2);
    shared_ptr<VisualMixer> visual = timeline->newVisualMixer(640, 480);
    std::string const before = xml(*timeline);
    expectText<TypeException>([&] { sound->addTrack(boost::make_shared<VisualTrack>(project), -1); },
                              "unexpected type for audiomixer::addtrack");
    expectText<TypeException>([&] { visual->addTrack(boost::make_shared<AudioTrack>(project), -1); }, "VisualTrack");
    expectText<TypeException>([&] { visual->addTrack(boost::make_shared<ImageTrack>(project), -1); }, "VisualTrack");
    expectText<TypeException>([&] { visual->addTrack(shared_ptr<Track>(), -1); }, "VisualTrack");
    EXPECT_EQ(before, xml(*timeline));
}

TEST_F(TimelineTest, TrackIndexesAppendInsertAndRefuseOutsideTheList) {
    shared_ptr<AudioMixer> sound = timeline->newAudioMixer(44100, 16, 2);
    shared_ptr<AudioTrack> a = boost::make_shared<AudioTrack>(project), b = boost::make_shared<AudioTrack>(project),
                           c = boost::make_shared<AudioTrack>(project), d = boost::make_shared<AudioTrack>(project);
    sound->addTrackSansTypeCheck(a, sound->numTracks());
    sound->addTrackSansTypeCheck(b, -1);
    sound->addTrackSansTypeCheck(c, 0);
    for (int const index : {sound->numTracks() + 1, -2}) {
        try {
            sound->addTrackSansTypeCheck(d, index);
            FAIL();
        } catch (ValueException<int> const& error) {
            EXPECT_STREQ("invalid index", error.what());
            EXPECT_EQ(index, error.value());
        }
    }
    EXPECT_EQ(0, sound->indexForTrack(c));
    EXPECT_EQ(1, sound->indexForTrack(a));
    EXPECT_EQ(2, sound->indexForTrack(b));
    EXPECT_EQ(-1, sound->indexForTrack(d));
    EXPECT_FALSE(sound->hasTrack(d));
    EXPECT_THROW(sound->trackAtIndex(3), IndexException);
    AudioMixer const& view = *sound;
    EXPECT_EQ(b, view.trackAtIndex(2));
}

TEST_F(TimelineTest, SwapAndRemoveNameTheMissingTrack) {
    shared_ptr<AudioMixer> sound = timeline->newAudioMixer(44100, 16, 2);
    shared_ptr<AudioTrack> a = timeline->newTrack<AudioTrack>(sound, -1);
    shared_ptr<AudioTrack> b = timeline->newTrack<AudioTrack>(sound, -1);
    shared_ptr<AudioTrack> c = timeline->newTrack<AudioTrack>(sound, -1);
    shared_ptr<AudioTrack> stranger = boost::make_shared<AudioTrack>(project);
    sound->swapTrackOrder(a, c);
    EXPECT_EQ(c, sound->trackAtIndex(0));
    EXPECT_EQ(a, sound->trackAtIndex(2));
    for (bool const strangerFirst : {true, false}) {
        try {
            sound->swapTrackOrder(strangerFirst ? stranger : a, strangerFirst ? b : stranger);
            FAIL();
        } catch (ValueException<shared_ptr<Track const> > const& error) {
            EXPECT_STREQ("trying to swap track that doesn't exist", error.what());
            EXPECT_EQ(stranger, error.value());
        }
    }

    std::pair<shared_ptr<AudioTrack>, int> const removed = timeline->removeAudioTrack(b);
    EXPECT_EQ(b, removed.first);
    EXPECT_EQ(1, removed.second);
    expectText<ValueException<shared_ptr<Track const> > >([&] { timeline->removeTrack(sound, b); },
                                                           "trying to remove a track not on mixer");
    std::pair<shared_ptr<Track>, int> const generic = timeline->removeTrack(sound, a);
    EXPECT_EQ(1, generic.second);
    EXPECT_EQ(1, sound->numTracks());
}

TEST_F(TimelineTest, TimesSpanTheMixersAndAnEmptyTrackPullsTheStartToZero) {
    shared_ptr<AudioMixer> sound = timeline->newAudioMixer(44100, 16, 2);
    shared_ptr<AudioTrack> track = timeline->newTrack<AudioTrack>(sound, -1);
    place(track, audio(10), 100);
    place(track, audio(50), 200);
    EXPECT_EQ(100, timeline->startTime());
    EXPECT_EQ(250, timeline->endTime());
    EXPECT_EQ(150, timeline->duration());
    timeline->newTrack<AudioTrack>(sound, -1);
    EXPECT_EQ(0, sound->startTime());
    EXPECT_EQ(0, timeline->startTime());
    EXPECT_EQ(250, timeline->endTime());
}

TEST_F(TimelineTest, AllMediasRunVisualFirstThenAudioInTrackAndTimeOrder) {
    shared_ptr<VisualMixer> visual = timeline->newVisualMixer(640, 480);
    shared_ptr<AudioMixer> sound = timeline->newAudioMixer(44100, 16, 2);
    shared_ptr<VisualTrack> upper = timeline->newTrack<VisualTrack>(visual, -1);
    shared_ptr<VisualTrack> lower = timeline->newTrack<VisualTrack>(visual, -1);
    shared_ptr<AudioTrack> voice = timeline->newTrack<AudioTrack>(sound, -1);
    shared_ptr<Media> const v3 = place(lower, video(10), 0);
    shared_ptr<Media> const a1 = place(voice, audio(10), 0);
    shared_ptr<Media> const v2 = place(upper, video(10), 50);
    shared_ptr<Media> const v1 = place(upper, video(10), 20);
    EXPECT_EQ((Track::MediaList{v1, v2, v3, a1}), *timeline->allMedias());
}

class TimelineCopyTest : public TimelineTest {
protected:
    shared_ptr<VisualMixer> visual = timeline->newVisualMixer(640, 480);
    shared_ptr<AudioMixer> sound = timeline->newAudioMixer(44100, 16, 2);
    shared_ptr<VisualTrack> picture = timeline->newTrack<VisualTrack>(visual, -1);
    shared_ptr<AudioTrack> voice = timeline->newTrack<AudioTrack>(sound, -1);
    shared_ptr<AudioTrack> music = timeline->newTrack<AudioTrack>(sound, -1);
    shared_ptr<VMFile> shown = place(picture, video(100), 0);
    shared_ptr<AMFile> heard = place(voice, audio(100), 0);
    shared_ptr<AMFile> tune = place(music, audio(100), 200);

    void SetUp() override { shown->link(heard); }
};

TEST_F(TimelineCopyTest, RangeCopyReachesLinkedTracksAndLinksTheClones) {
    Track::CloneMap clones;
    shared_ptr<Timeline> copy = timeline->copyPortion(Range<long long>(20, 50), Timeline::TrackSet{voice}, &clones);
    ASSERT_TRUE(copy->visualMixer()) << "the picture's track comes in through the link";
    ASSERT_TRUE(copy->audioMixer());
    EXPECT_EQ(1, copy->audioMixer()->numTracks()) << "the music track was not asked for";
    ASSERT_EQ(2u, clones.size());
    EXPECT_EQ(Range<long long>(20, 50), clones.at(heard)->trackRange());
    EXPECT_EQ(Range<long long>(20, 50), clones.at(shown)->trackRange());
    EXPECT_TRUE(clones.at(shown)->isLinkedWith(clones.at(heard)));
    EXPECT_FALSE(clones.at(heard)->isLinkedWith(shown));
    EXPECT_EQ(44100u, copy->audioMixer()->sampleRate()->value());
    EXPECT_EQ(3, timeline->numTracks()) << "the source is untouched";
}

TEST_F(TimelineCopyTest, RangeCopyOfAudioAloneHasNoVisualMixer) {
    shared_ptr<Timeline> copy = timeline->copyPortion(Range<long long>(150, 100), Timeline::TrackSet{music}, nullptr);
    EXPECT_FALSE(copy->visualMixer());
    ASSERT_TRUE(copy->audioMixer());
    shared_ptr<Track::MediaList> const medias = copy->allMedias();
    ASSERT_EQ(1u, medias->size());
    EXPECT_EQ(Range<long long>(200, 50), medias->front()->trackRange());
}

TEST_F(TimelineCopyTest, SelectionCopyKeepsWholeMediasOnTracksThatHoldThem) {
    shared_ptr<AMFile> late = place(voice, audio(10), 500);
    Track::CloneMap clones;
    shared_ptr<Timeline> copy =
        timeline->copyPortion(std::vector<shared_ptr<Media const> >{late, tune, heard}, &clones);
    EXPECT_FALSE(copy->visualMixer());
    ASSERT_TRUE(copy->audioMixer());
    ASSERT_EQ(2, copy->audioMixer()->numTracks());
    EXPECT_EQ(2, copy->audioMixer()->trackAtIndex(0)->numMedias()) << "the voice track comes first, as in the mixer";
    EXPECT_EQ(Range<long long>(200, 100), clones.at(tune)->trackRange());
    EXPECT_FALSE(clones.at(heard)->isLinkedWith(shown)) << "a link to a media not copied is dropped";
    EXPECT_EQ(clones.at(heard)->linkBegin(), clones.at(heard)->linkEnd());
}

TEST_F(TimelineCopyTest, WholeCloneCopiesEverythingButTheLinks) {
    shared_ptr<Timeline> copy(timeline->clone());
    EXPECT_EQ(3, copy->numTracks());
    shared_ptr<Track::MediaList> const medias = copy->allMedias();
    ASSERT_EQ(3u, medias->size());
    for (shared_ptr<Media const> const& media : *medias) {
        EXPECT_EQ(media->linkBegin(), media->linkEnd());
        EXPECT_FALSE(media->parentTrack().expired());
    }
    EXPECT_NE(visual, copy->visualMixer());
}

// Regression: the timeline wrote its mixers one level below itself; the document has them two.
TEST_F(TimelineTest, MixerXmlListsAttributesThenTracksTwoLevelsBelowTheTimeline) {
    shared_ptr<AudioMixer> sound = timeline->newAudioMixer(44100, 16, 2);
    std::string const expected =
        "<Timeline id=\"" + id(*timeline) + "\"  >\n"
        "  <AudioMixer id=\"" + id(*sound) + "\"  >\n"
        "   <Attributes>\n"
        "    <Attribute id=\"" + id(*sound->sampleRate()) + "\" value=\"44100\" name=\"sampleRate\">\n"
        "    </Attribute>\n"
        "    <Attribute id=\"" + id(*sound->bitDepth()) + "\" value=\"16\" name=\"bitDepth\">\n"
        "    </Attribute>\n"
        "    <Attribute id=\"" + id(*sound->numChannels()) + "\" value=\"2\" name=\"numChannels\">\n"
        "    </Attribute>\n"
        "   </Attributes>\n"
        "   <Tracks>\n"
        "   </Tracks>\n"
        "  </AudioMixer>\n"
        "</Timeline>\n";
    EXPECT_EQ(expected, xml(*timeline));

    shared_ptr<VisualMixer> visual = timeline->newVisualMixer(640, 480);
    timeline->newTrack<VisualTrack>(visual, -1);
    std::string const full = xml(*timeline);
    EXPECT_TRUE(test::isWellFormedXml(full));
    EXPECT_LT(full.find("<VisualMixer"), full.find("<AudioMixer")) << "the visual mixer comes first";
    EXPECT_NE(std::string::npos, full.find("name=\"farClipDistance\""));
}

TEST_F(TimelineTest, CameraStartsAtItsDefaultsAndProjectsFromTheEyesDistance) {
    shared_ptr<VisualMixer> mixer = timeline->newVisualMixer(640, 480);
    VisualMixer const& view = *mixer;
    EXPECT_EQ(3000.0, view.eyePositionParam()->at(2)->valueAtTime(0.0));
    EXPECT_EQ(1.0, view.eyeUpVectorParam()->at(1)->valueAtTime(0.0));
    float const fov = static_cast<float>(2.0 * std::atan2(240.0, 3000.0));
    EXPECT_EQ(fov, view.fovParam()->valueAtTime(0.0));
    EXPECT_EQ(1.5f, view.nearClipDistanceParam()->valueAtTime(0.0));
    EXPECT_EQ(6000.0f, view.farClipDistanceParam()->valueAtTime(0.0));
    EXPECT_EQ(12, view.numParameters());
    EXPECT_EQ(2, view.numAttributes());
    EXPECT_EQ(3000.0, view.distanceBetweenEyeAndLookAt(0));

    Rect<int> const viewport(0, 0, 640, 480);
    mixer->eyePositionParam()->at(2)->changeKeyFrame(0, 1500.0);
    EXPECT_EQ(TransformMatrix::perspectiveProjection(2.0 * std::atan2(240.0, 1500.0), 640.0 / 480.0, 1.5, 6000.0),
              view.projectionTransformAtTime(0, viewport))
        << "a nearer eye widens the angle";
    EXPECT_EQ(fov, view.fovParam()->valueAtTime(0.0)) << "fov is not derived again";
    EXPECT_EQ(TransformMatrix::cameraLookAt(Point(0, 0, 1500), Point(0, 0, 0), Point(0, 1, 0)),
              view.cameraTransformAtTime(0));
}

// Worked by hand from the defaults: the eye 3000 in front of the origin, looking down -z.
void expectRows(TransformMatrix const& matrix, std::vector<std::vector<double> > const& rows) {
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column)
            EXPECT_NEAR(rows[row][column], matrix(row, column), 1e-9) << "at " << row << "," << column;
}

TEST_F(TimelineTest, CameraAndProjectionMatchMatricesWorkedByHand) {
    VisualMixer const& view = *timeline->newVisualMixer(640, 480);
    expectRows(view.cameraTransformAtTime(0), {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, -3000}, {0, 0, 0, 1}});
    expectRows(view.cameraTransformAtTimeLH(0), {{-1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, -1, 0}, {0, 0, 3000, 1}});
    // The focal factor is the eye's distance over half the viewport's height: 3000 / 240.
    double const near = 1.5, far = 6000.0, focal = 12.5;
    expectRows(view.projectionTransformAtTime(0, Rect<int>(0, 0, 640, 480)),
               {{focal * 480.0 / 640.0, 0, 0, 0},
                {0, focal, 0, 0},
                {0, 0, (far + near) / (near - far), near * 2.0 * far / (near - far)},
                {0, 0, -1, 0}});
    // The viewport's height, not the mixer's, sets the angle: half as high doubles the factor.
    expectRows(view.projectionTransformAtTimeLH(0, Rect<int>(0, 0, 640, 240)),
               {{25.0 * 240.0 / 640.0, 0, 0, 0}, {0, 25.0, 0, 0}, {0, 0, far / (far - near), 1},
                {0, 0, -(far * near) / (far - near), 0}});
}

}  // namespace
}  // namespace ZelmarMediaLib
