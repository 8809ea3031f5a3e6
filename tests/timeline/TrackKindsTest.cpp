// The three kinds of track: which media each takes, with the exact refusals, the typed ways
// in and out, their parameters and their XML.
#include <ZelmarMediaLib/datatypes/AudioPosition.h>
#include <ZelmarMediaLib/effects/Effect.h>
#include <ZelmarMediaLib/exceptions/DefaultMediaDispatcherException.h>
#include <ZelmarMediaLib/exceptions/TypeException.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/AMFile.h>
#include <ZelmarMediaLib/timeline/AbstractIMFile.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>
#include <ZelmarMediaLib/timeline/AudioTransition.h>
#include <ZelmarMediaLib/timeline/Callout.h>
#include <ZelmarMediaLib/timeline/ImageTrack.h>
#include <ZelmarMediaLib/timeline/ImageTransition.h>
#include <ZelmarMediaLib/timeline/MediaDispatcher.h>
#include <ZelmarMediaLib/timeline/TextBox.h>
#include <ZelmarMediaLib/timeline/TrackDispatcher.h>
#include <ZelmarMediaLib/timeline/VMFile.h>
#include <ZelmarMediaLib/timeline/VisualTrack.h>

#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <typeinfo>
#include <vector>

namespace ZelmarMediaLib {
namespace {

using test::xml;

using test::id;

char const* const allowed = "";

class TrackKindsTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);

    // One maker for each concrete media kind, in the order of the dispatchers.
    std::vector<std::function<shared_ptr<Media>()> > makers() {
        shared_ptr<Source const> const noSource;
        return {
            [=] {
                return boost::make_shared<VMFile>(Range<long long>(0, 10), Rect<float>(0, 0, 640, 480), project,
                                                  "/v.mov", 0.0, 1000.0, 0u);
            },
            [=] { return audio(10); },
            [=] { return boost::make_shared<IMFile>(0, 10, project, noSource, 0u); },
            [=] { return boost::make_shared<ImageTransition>(10, project); },
            [=] { return boost::make_shared<AudioTransition>(10, shared_ptr<Effect const>(), project); },
            [=] { return boost::make_shared<TextBox>("hello", 10, 100.0f, 50.0f, project); },
            [=] { return boost::make_shared<Callout>(0, 10, project, noSource, 0u); },
        };
    }

    shared_ptr<AMFile> audio(long long duration) {
        return boost::make_shared<AMFile>(Range<long long>(0, duration), 48000u, 16u, project, "/a.wav", 0.0, 1000.0,
                                          0u, 0u);
    }

    // Offers every kind in turn: a refused one raises TypeException with the text and leaves
    // the track as it was; a taken one lands where it was put.
    void expectDispatch(shared_ptr<Track> const& track, std::vector<std::string> const& texts) {
        std::vector<std::function<shared_ptr<Media>()> > const kinds = makers();
        ASSERT_EQ(kinds.size(), texts.size());
        long long start = 0;
        for (std::size_t i = 0; i < kinds.size(); ++i) {
            SCOPED_TRACE(i);
            shared_ptr<Media> const media = kinds[i]();
            std::string const before = xml(*track);
            try {
                track->addMedia(media, start);
                EXPECT_EQ(allowed, texts[i]) << "taken although it should be refused";
                EXPECT_TRUE(track->hasMedia(media));
                EXPECT_EQ(start, media->trackRange().start);
                start += 100;
            } catch (TypeException const& error) {
                EXPECT_EQ(texts[i], error.what());
                EXPECT_EQ(before, xml(*track));
                EXPECT_TRUE(media->parentTrack().expired());
            }
        }
    }
};

TEST_F(TrackKindsTest, AudioTrackTakesOnlySound) {
    shared_ptr<AudioTrack> track = boost::make_shared<AudioTrack>(project);
    expectDispatch(track, {"Trying to add a VMFile to an AudioTrack", allowed, "Trying to add a IMFile to an AudioTrack",
                           "can't add transitions yet", allowed, "Trying to add a TextBox to an AudioTrack",
                           "Trying to add a Callout to an AudioTrack"});
    EXPECT_EQ(2, track->numMedias());
    EXPECT_TRUE(track->allMediasAreValid());
}

TEST_F(TrackKindsTest, VisualTrackTakesEverythingSeenAndRefusesBothAudioKinds) {
    shared_ptr<VisualTrack> track = boost::make_shared<VisualTrack>(project);
    expectDispatch(track, {allowed, "Trying to add a AMFile to an VisualTrack", allowed, allowed,
                           "can't add audio transitions to visual tracks", allowed, allowed});
    EXPECT_EQ(5, track->numMedias());
}

TEST_F(TrackKindsTest, ImageTrackTakesStillsTransitionsAndAnnotationsOnly) {
    shared_ptr<ImageTrack> track = boost::make_shared<ImageTrack>(project);
    expectDispatch(track, {"Trying to add a VMFile to an ImageTrack", "Trying to add a AMFile to an ImageTrack", allowed,
                           allowed, "can't add transitions yet", allowed, allowed});
    EXPECT_EQ(4, track->numMedias());
    EXPECT_TRUE(track->allMediasAreImageMedias());
}

TEST_F(TrackKindsTest, AddOfAMediaThatNoSharedPtrHoldsFailsInTheDispatch) {
    shared_ptr<AudioTrack> track = boost::make_shared<AudioTrack>(project);
    AMFile loose(Range<long long>(0, 10), 48000u, 16u, project, "/a.wav", 0.0, 100.0, 0u, 0u);
    shared_ptr<Media> unowned(shared_ptr<Media>(), &loose);
    EXPECT_THROW(track->addMedia(unowned, 0), bad_weak_ptr);
    EXPECT_EQ(0, track->numMedias());
}

TEST_F(TrackKindsTest, TypedAddOnAnAudioTrackSkipsOrRoutesTheDispatch) {
    shared_ptr<AudioTrack> track = boost::make_shared<AudioTrack>(project);
    track->addMedia(audio(10), 0);
    track->addMedia<Media>(audio(10), 100);
    EXPECT_EQ(2, track->numMedias());

    shared_ptr<Media> const video = makers()[0]();
    try {
        track->addMedia<Media>(video, 200);
        FAIL();
    } catch (TypeException const& error) {
        EXPECT_EQ(typeid(shared_ptr<Media>).name(), std::string(error.what()));
    }
    shared_ptr<VMFile> const typedVideo = dynamic_pointer_cast<VMFile>(video);
    try {
        track->addMedia(typedVideo, 200);
        FAIL();
    } catch (TypeException const& error) {
        EXPECT_STREQ("Trying to add a VMFile to an AudioTrack", error.what()) << "other kinds take the dispatch";
    }
    EXPECT_EQ(2, track->numMedias());
}

class VideoOnly : public DefaultMediaDispatcher {
public:
    void dispatchMedia(shared_ptr<VMFile>) override { ++videos; }
    int videos = 0;
};

class KindNamer : public TrackDispatcher, public ConstTrackDispatcher {
public:
    void dispatchTrack(shared_ptr<VisualTrack>) override { name = "visual"; }
    void dispatchTrack(shared_ptr<ImageTrack>) override { name = "image"; }
    void dispatchTrack(shared_ptr<AudioTrack>) override { name = "audio"; }
    void dispatchTrack(shared_ptr<VisualTrack const>) override { name = "const visual"; }
    void dispatchTrack(shared_ptr<ImageTrack const>) override { name = "const image"; }
    void dispatchTrack(shared_ptr<AudioTrack const>) override { name = "const audio"; }
    std::string name;
};

TEST_F(TrackKindsTest, DispatchersReachTheConcreteKind) {
    VideoOnly videoOnly;
    makers()[0]()->receiveDispatcher(&videoOnly);
    EXPECT_EQ(1, videoOnly.videos);
    try {
        makers()[1]()->receiveDispatcher(&videoOnly);
        FAIL();
    } catch (DefaultMediaDispatcherException const& error) {
        EXPECT_STREQ("DefaultMediaDispatcherException: Media not handled", error.what());
    }

    KindNamer namer;
    shared_ptr<Track> const tracks[] = {boost::make_shared<VisualTrack>(project),
                                        boost::make_shared<ImageTrack>(project),
                                        boost::make_shared<AudioTrack>(project)};
    std::vector<std::string> names;
    for (shared_ptr<Track> const& track : tracks) {
        track->receiveDispatcher(static_cast<TrackDispatcher*>(&namer));
        names.push_back(namer.name);
        static_cast<Track const&>(*track).receiveDispatcher(static_cast<ConstTrackDispatcher*>(&namer));
        names.push_back(namer.name);
    }
    EXPECT_EQ((std::vector<std::string>{"visual", "const visual", "image", "const image", "audio", "const audio"}),
              names);
}

TEST_F(TrackKindsTest, TypedIteratorsAndSubSectionsGiveTheKindsOwnMedias) {
    shared_ptr<ImageTrack> images = boost::make_shared<ImageTrack>(project);
    images->addMedia(makers()[5](), 0);
    images->addMedia(makers()[2](), 20);
    ImageTrack const& view = *images;
    std::vector<long long> sums;
    for (ConstIterator<ImageTrack::ImageMediaMap> at = view.typeSafeMediaBegin(), end = view.typeSafeMediaEnd();
         at != end; ++at) {
        EXPECT_GT(project->mutex().readerCount(), 0);
        sums.push_back(at->second->trimStartSum());
        EXPECT_EQ(at->first, at->second->trackRange().start);
    }
    EXPECT_EQ(2u, sums.size());
    EXPECT_EQ(2, std::distance(view.visualMediaBegin(), view.visualMediaEnd()));
    EXPECT_EQ(0, project->mutex().readerCount());

    shared_ptr<AudioTrack> sounds = boost::make_shared<AudioTrack>(project);
    shared_ptr<AMFile> file = audio(50);
    sounds->addMedia(file, 100);
    shared_ptr<TrackSubSection<AudioMedia> > const section = sounds->subSection(Range<long long>(120, 100));
    ASSERT_EQ(1u, section->parts().size());
    EXPECT_EQ(1.0, section->parts()[0].first->gain()->value());
    EXPECT_EQ(Range<long long>(120, 30), section->parts()[0].second);
    EXPECT_EQ(file, sounds->audioMediaBegin()->second);
}

TEST_F(TrackKindsTest, AudioTrackHasAPositionThatItsCopyClones) {
    shared_ptr<AudioTrack> track = boost::make_shared<AudioTrack>(project);
    EXPECT_TRUE(AudioPosition() == track->positionParam()->valueAtTime(55.0));
    std::unique_ptr<ParameterVector> parameters(track->parameterVector());
    ASSERT_EQ(1u, parameters->size());
    EXPECT_EQ(track->positionParam(), (*parameters)[0]);
    parameters.reset();
    shared_ptr<AudioTrack> copy = dynamic_pointer_cast<AudioTrack>(sharedClone(shared_ptr<Track const>(track)));
    ASSERT_TRUE(copy);
    copy->positionParam()->addKeyFrame(10, AudioPosition(1, 0, 1));
    EXPECT_EQ(1, track->positionParam()->numKeyFrames());
}

TEST_F(TrackKindsTest, VisualKindsCountTwoParametersAndListTheTransformers) {
    shared_ptr<VisualTrack> visual = boost::make_shared<VisualTrack>(project);
    shared_ptr<ImageTrack> image = boost::make_shared<ImageTrack>(project);
    EXPECT_EQ(2, visual->numParameters());
    EXPECT_EQ(2, image->numParameters());
    std::unique_ptr<ParameterVector> parameters(image->parameterVector());
    EXPECT_EQ(14u, parameters->size());
    EXPECT_EQ(1, visual->numAttributes());
    EXPECT_EQ(0, image->numAttributes());
}

TEST_F(TrackKindsTest, AudioTrackXmlWritesPositionIdentAndMedias) {
    shared_ptr<AudioTrack> track = boost::make_shared<AudioTrack>(project);
    std::string const empty = xml(*track);
    std::string const head =
        "<AudioTrack id=\"" + id(*track) + "\"  >\n"
        " <Parameters>\n"
        "  <InterpolatingParam id=\"" + id(*track->positionParam()) + "\"  name=\"position\">\n"
        "   <Parameters>\n"
        "    <Parameter id=\"" + id(*track->positionParam()->interpolaterParam()) + "\"  name=\"interpolater\">\n"
        "     <Keyframes>\n"
        "      <Keyframe time=\"0\" value=\"linr\"/>\n"
        "     </Keyframes>\n"
        "    </Parameter>\n"
        "   </Parameters>\n"
        "   <Keyframes>\n"
        "    <Keyframe time=\"0\" value=\"(0,0,1)\"/>\n"
        "   </Keyframes>\n"
        "  </InterpolatingParam>\n"
        " </Parameters>\n"
        " <Attributes>\n"
        "  <Attribute id=\"" + id(*track->identAttribute()) + "\" value=\"\" name=\"ident\">\n"
        "  </Attribute>\n"
        " </Attributes>\n";
    EXPECT_EQ(head +
                  " <Medias>\n"
                  " </Medias>\n"
                  "</AudioTrack>\n",
              empty);

    shared_ptr<AMFile> file = audio(10);
    track->addMedia(file, 40);
    std::ostringstream media;
    XMLable::Options options(&media);
    file->toXML(options, 2, "");
    EXPECT_EQ(head + " <Medias>\n" + media.str() + " </Medias>\n</AudioTrack>\n", xml(*track));
    EXPECT_TRUE(test::isWellFormedXml(xml(*track)));
}

TEST_F(TrackKindsTest, VisualKindsWriteTheirTransformerAfterTheMedias) {
    shared_ptr<ImageTrack> image = boost::make_shared<ImageTrack>(project);
    std::string const imageXml = xml(*image);
    std::string const imageHead = "<ImageTrack id=\"" + id(*image) +
                                  "\"  >\n"
                                  " <Parameters>\n"
                                  " </Parameters>\n"
                                  " <Medias>\n"
                                  " </Medias>\n"
                                  " <Transformer>\n";
    EXPECT_EQ(imageHead, imageXml.substr(0, imageHead.size())) << "no Attributes block on an image track";
    std::string const tail = " </Transformer>\n</ImageTrack>\n";
    EXPECT_EQ(tail, imageXml.substr(imageXml.size() - tail.size()));
    EXPECT_TRUE(test::isWellFormedXml(imageXml));

    shared_ptr<VisualTrack> visual = boost::make_shared<VisualTrack>(project);
    std::string const visualXml = xml(*visual);
    std::string const visualHead = "<VisualTrack id=\"" + id(*visual) +
                                   "\"  >\n"
                                   " <Parameters>\n"
                                   " </Parameters>\n"
                                   " <Attributes>\n"
                                   "  <Attribute id=\"" + id(*visual->identAttribute()) +
                                   "\" value=\"\" name=\"ident\">\n"
                                   "  </Attribute>\n"
                                   " </Attributes>\n"
                                   " <Medias>\n"
                                   " </Medias>\n"
                                   " <Transformer>\n";
    EXPECT_EQ(visualHead, visualXml.substr(0, visualHead.size()));
    EXPECT_TRUE(test::isWellFormedXml(visualXml));
}

}  // namespace
}  // namespace ZelmarMediaLib
