// The concrete media kinds: crops and placement of pictures, stills' time, transitions'
// single effect, annotations' text, file medias on a source's tracks, and their XML attributes.
#include <ZelmarMediaLib/clipbin/Source.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/parameters/LeftParameter.h>
#include <ZelmarMediaLib/parameters/VectorParam.h>
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/AMFile.h>
#include <ZelmarMediaLib/timeline/AbstractIMFile.h>
#include <ZelmarMediaLib/timeline/AudioTransition.h>
#include <ZelmarMediaLib/timeline/Callout.h>
#include <ZelmarMediaLib/timeline/ImageTransition.h>
#include <ZelmarMediaLib/timeline/TextBox.h>
#include <ZelmarMediaLib/timeline/VMFile.h>

#include "support/HandBuiltStats.h"
#include "support/PlainEffect.h"
#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ZelmarMediaLib {
namespace {

using test::xml;

class MediaKindsTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);

    shared_ptr<VMFile> video() {
        return boost::make_shared<VMFile>(Range<long long>(0, 300), Rect<float>(0, 0, 100, 50), project, "/v.mov", 0.0,
                                          300.0, 0u);
    }
};

TEST_F(MediaKindsTest, NewPictureIsUncroppedAndCentredByItsGeometry) {
    shared_ptr<VMFile> media = video();
    Rect<double> const geometry = media->geometryCropRectAtTime(0);
    EXPECT_EQ(-50.0, geometry.x);
    EXPECT_EQ(-25.0, geometry.y);
    EXPECT_EQ(100.0, geometry.width);
    EXPECT_EQ(1.0, media->opacity()->valueAtTime(7.0));
    EXPECT_EQ(TransformMatrix(), media->transformAtTime(12));
}

TEST_F(MediaKindsTest, SourceCropTakesLeftAndRightOffTheWidth) {
    shared_ptr<VMFile> media = video();
    media->sourceCropParam()->at(0)->changeKeyFrame(0, 10.0);
    media->sourceCropParam()->at(2)->changeKeyFrame(0, 20.0);
    media->sourceCropParam()->at(3)->changeKeyFrame(0, 5.0);
    Rect<double> const crop = media->sourceCropRectAtTime(0);
    EXPECT_EQ(10.0, crop.x);
    EXPECT_EQ(5.0, crop.y) << "the origin is the lower left corner";
    EXPECT_EQ(70.0, crop.width);
    EXPECT_EQ(45.0, crop.height);
}

TEST_F(MediaKindsTest, PictureParametersListTransformerCropsAndOpacity) {
    std::unique_ptr<ParameterVector> parameters(video()->parameterVector());
    ASSERT_EQ(23u, parameters->size());
    EXPECT_EQ("translation0", parameters->front()->ident());
    EXPECT_EQ("sourceCrop0", (*parameters)[14]->ident());
    EXPECT_EQ("geometryCrop3", (*parameters)[21]->ident());
    EXPECT_EQ("opacity", parameters->back()->ident());
}

TEST_F(MediaKindsTest, StillKeepsItsKeyframesOnTheSameMomentWhenTrimmedAtTheStart) {
    shared_ptr<TextBox> box = boost::make_shared<TextBox>("a", 100, 320.0f, 40.0f, project);
    box->trimStart(30);
    EXPECT_EQ(30, box->trimStartSum());
    EXPECT_EQ(35.0, box->toParameterTime(5.0));
    EXPECT_EQ(5.0, box->fromParameterTime(35.0));
    EXPECT_TRUE(box->validTrimStart(-1000)) << "a still knows no file limits";
}

TEST_F(MediaKindsTest, TextBoxHoldsItsTextAndWritesItsOwnShortAttributes) {
    shared_ptr<TextBox> box = boost::make_shared<TextBox>("a", 100, 320.0f, 40.0f, project);
    box->text()->addKeyFrame(50, "b");
    EXPECT_EQ("a", box->text()->valueAtTime(49.5));
    std::string const text = xml(*box);
    EXPECT_NE(std::string::npos,
              text.find("<TextBox id=\"" + std::to_string(box->xmlIdent()) +
                        "\" start=\"0\" duration=\"100\" width=\"320\" height=\"40\" trimStartSum=\"0\" >\n"));
    EXPECT_EQ(std::string::npos, text.find("scalar")) << text;
    EXPECT_TRUE(test::isWellFormedXml(text));
    EXPECT_FALSE(box->isInstanceOf(shared_ptr<Source const>()));
}

TEST_F(MediaKindsTest, CalloutWritesTextRectAndHotspotWithTwoBlanksBetween) {
    shared_ptr<Callout> callout = boost::make_shared<Callout>(0, 60, project, shared_ptr<Source const>(), 0u);
    std::string const text = xml(*callout);
    EXPECT_NE(std::string::npos, text.find(" trimStartSum=\"0\" textRect=\"(0,0,100,100)\"  hotspot=\"(0,0,0)\" >\n"))
        << text;
    std::unique_ptr<Callout> copy(callout->clone());
    copy->textRectAttr()->setValue(Rect<float>(1, 1, 2, 2));
    EXPECT_EQ(100.0f, callout->textRectAttr()->value().width);
    EXPECT_TRUE(test::isWellFormedXml(text));
}

TEST_F(MediaKindsTest, ImageTransitionHoldsOneEffectAndHasNoSize) {
    shared_ptr<ImageTransition> transition = boost::make_shared<ImageTransition>(30, project);
    EXPECT_FALSE(transition->transitionEffect());
    shared_ptr<Effect> first = boost::make_shared<test::PlainEffect>("Dissolve", project);
    shared_ptr<Effect> second = boost::make_shared<test::PlainEffect>("Dissolve", project);
    transition->addEffect(first);
    try {
        transition->addEffect(second);
        FAIL();
    } catch (ZelmarMediaLibException const& error) {
        EXPECT_STREQ("add error: Image Transitions can only have one transition effect", error.what());
    }
    EXPECT_THROW(transition->insertEffect(second, 0), ZelmarMediaLibException);
    transition->setEffect(second);
    EXPECT_EQ(second, transition->transitionEffect());
    EXPECT_EQ(1, transition->numEffects());
    try {
        transition->width();
        FAIL();
    } catch (ZelmarMediaLibException const& error) {
        EXPECT_STREQ("width of a transition is undefined", error.what());
    }
    EXPECT_EQ(Range<long long>(0, 30), transition->transitionRange());
    EXPECT_EQ(transition, transition->transitionMediaRepresentation());
    EXPECT_EQ(Range<double>(0.0, 30.0), transition->mediaRange());
}

TEST_F(MediaKindsTest, AudioTransitionHasNoChannelsToSplit) {
    shared_ptr<Effect const> effect = boost::make_shared<test::PlainEffect>("Dissolve", project);
    AudioTransition transition(20, effect, project);
    EXPECT_EQ(0, transition.numChannels());
    EXPECT_THROW(transition.splitChannels(), ZelmarMediaLibException);
    EXPECT_THROW(transition.transitionMediaRepresentation(), boost::bad_weak_ptr);
    EXPECT_TRUE(transition.validTrimEnd(-500)) << "transitions are static";
}

// A source by hand: a bundle whose screen track names its component file, a camera track, and a
// stereo track that names none.
class FileMediaTest : public MediaKindsTest {
protected:
    shared_ptr<Source> source = Source::create(project, project, bundleStats());
    shared_ptr<Source const> handle = source;

    static shared_ptr<MediaFileStats> bundleStats() {
        MediaFileStats::TrackStats video = test::videoTrack(Range<long long>(0, 6000), 600, 320, 200);
        video.filename = "/rec/take.bundle/screen.mov";
        return test::stats("/rec/take.bundle", Rect<int>(0, 0, 320, 200),
                           {video, test::videoTrack(Range<long long>(0, 6000), 600, 40, 30),
                            test::audioTrack(Range<long long>(0, 441000), 44100, 2)});
    }
    template <class F>
    void expectRefused(F const& make, char const* text) {
        try {
            make();
            ADD_FAILURE() << "no exception; expected: " << text;
        } catch (ZelmarMediaLibException const& error) {
            EXPECT_STREQ(text, error.what());
        }
    }
};

TEST_F(FileMediaTest, EachKindIsCheckedAgainstTheSourcesTrack) {
    Range<long long> const range(0, 100);
    char const* const video = "trying to make a vmfile with an invalid source track";
    shared_ptr<Source const> still =
        Source::create(project, project, test::stats("/s.png", Rect<int>(0, 0, 40, 30), {test::imageTrack(25)}));
    expectRefused([&] { VMFile(range, project, still, 0u); }, video);
    expectRefused([&] { VMFile(range, project, handle, 2u); }, video);
    expectRefused([&] { VMFile(range, project, handle, 3u); }, video);
    expectRefused([&] { VMFile(range, project, shared_ptr<Source const>(), 0u); }, video);
    expectRefused([&] { IMFile(0, 1, project, handle, 2u); },
                  "trying to make an AbstractIMFile with an invalid source track");
    expectRefused([&] { Callout(0, 1, project, handle, 2u); },
                  "trying to make an AbstractIMFile with an invalid source track");
    char const* const audio = "trying to make a amfile with an invalid source track";
    expectRefused([&] { AMFile(range, project, handle, 0u, 0u); }, audio);
    expectRefused([&] { AMFile(range, project, handle, 0u, AMFile::ChannelSet()); }, audio);
    expectRefused([&] { AMFile(range, project, shared_ptr<Source const>(), 2u, 0u); }, audio);
    expectRefused([&] { AMFile(range, project, handle, 2u, 2u); }, "trying to make a amfile with an invalid channel");
    expectRefused([&] { AMFile(range, project, handle, 2u, AMFile::ChannelSet{0, 2}); },
                  "trying to make a amfile with an invalid channels");
    // A frame can be grabbed from a video track, so a still may stand on one.
    EXPECT_EQ(0u, IMFile(0, 1, project, handle, 0u).trackNumber());
    EXPECT_EQ(0u, IMFile(0, 1, project, still, 0u).trackNumber());
    EXPECT_EQ(AMFile::ChannelSet({1}), AMFile(range, project, handle, 2u, 1u).channels());
}

TEST_F(FileMediaTest, SourceFormsTakeLimitsAndFiguresFromTheSource) {
    VMFile video(Range<long long>(100, 50), project, handle, 0u);
    EXPECT_EQ(0.0, video.mediaStartLimit());
    EXPECT_EQ(300.0, video.mediaDurationLimit());
    EXPECT_EQ(Range<double>(100.0, 50.0), video.mediaRange());
    EXPECT_EQ(320.0f, video.width());
    EXPECT_EQ(200.0f, video.height());
    AMFile audio(Range<long long>(0, 300), project, handle, 2u, AMFile::ChannelSet{0, 1});
    EXPECT_EQ(44100u, audio.sampleRate()->value());
    EXPECT_EQ(16u, audio.bitDepth()->value());
    EXPECT_EQ(300.0, audio.mediaDurationLimit());
    IMFile still(0, 90, project, handle, 1u);
    EXPECT_EQ(40.0f, still.width());
    EXPECT_EQ(30.0f, still.height());
    EXPECT_EQ(0.0f, IMFile(0, 90, project, shared_ptr<Source const>(), 0u).width()) << "no source, no size";
}

TEST_F(FileMediaTest, BundleTrackNamesItsComponentFileAndTheBundleAsContainer) {
    VMFile video(Range<long long>(0, 300), project, handle, 0u);
    EXPECT_EQ("/rec/take.bundle/screen.mov", video.fileName());
    EXPECT_EQ("/rec/take.bundle", video.containerFileName());
    AMFile audio(Range<long long>(0, 300), project, handle, 2u, 0u);
    EXPECT_EQ("/rec/take.bundle", audio.fileName()) << "a track without a file of its own names the bundle";
    EXPECT_EQ("/rec/take.bundle", audio.containerFileName());
    shared_ptr<VMFile> plain = this->video();
    EXPECT_EQ("/v.mov", plain->fileName());
    EXPECT_EQ("/v.mov", plain->containerFileName());
    EXPECT_FALSE(plain->isInstanceOf(shared_ptr<Source const>())) << "no source is no match for a sourceless media";
}

TEST_F(FileMediaTest, GrabbedFrameIsAOneUnitStillOfTheSameSourceAndTrack) {
    shared_ptr<VMFile> video = boost::make_shared<VMFile>(Range<long long>(30, 200), project, handle, 0u);
    video->stretch(2.0);
    // Parameter time 10.9 / 2 + 30, truncated.
    shared_ptr<IMFile> still = video->grabFrame(10.9);
    EXPECT_EQ(Range<double>(35.0, 1.0), still->mediaRange());
    EXPECT_EQ(1, still->duration());
    EXPECT_EQ(0u, still->trackNumber());
    EXPECT_TRUE(still->isInstanceOf(handle));
    EXPECT_EQ(320.0f, still->width());
}

TEST_F(FileMediaTest, CloneSharesTheSourceUnderANewId) {
    shared_ptr<VMFile> video = boost::make_shared<VMFile>(Range<long long>(0, 300), project, handle, 0u);
    shared_ptr<Media> copy = sharedClone(shared_ptr<Media const>(video));
    EXPECT_TRUE(copy->isInstanceOf(handle));
    EXPECT_NE(video->xmlIdent(), copy->xmlIdent());
    shared_ptr<Source const> other = Source::create(project, project, bundleStats());
    EXPECT_FALSE(copy->isInstanceOf(other)) << "equal statistics are another source";
}

TEST_F(FileMediaTest, SrcFollowsTrackNumberAndPrecedesTheKindsLastAttribute) {
    std::string const src = " src=\"" + std::to_string(source->xmlIdent()) + "\"";
    std::string const video = xml(VMFile(Range<long long>(0, 300), project, handle, 0u));
    EXPECT_NE(std::string::npos, video.find(" mediaDuration=\"300\" trackNumber=\"0\"" + src + " >\n")) << video;
    std::string const still = xml(IMFile(0, 1, project, handle, 1u));
    EXPECT_NE(std::string::npos, still.find(" trackNumber=\"1\"" + src + " trimStartSum=\"0\" >\n")) << still;
    std::string const callout = xml(Callout(0, 1, project, handle, 1u));
    EXPECT_NE(std::string::npos, callout.find(" trackNumber=\"1\"" + src + " trimStartSum=\"0\" textRect=")) << callout;
    std::string const audio = xml(AMFile(Range<long long>(0, 300), project, handle, 2u, AMFile::ChannelSet{0, 1}));
    EXPECT_NE(std::string::npos, audio.find(" trackNumber=\"2\"" + src + " channelNumber=\"0,1\" >\n")) << audio;
    EXPECT_EQ(std::string::npos, xml(*this->video()).find(" src=")) << "a media without a source has no src";
    EXPECT_TRUE(test::isWellFormedXml(video));
    EXPECT_TRUE(test::isWellFormedXml(audio));
}

TEST_F(FileMediaTest, MergeRefusesChannelsOfAnotherSourceOrRange) {
    shared_ptr<AMFile const> left = boost::make_shared<AMFile>(Range<long long>(0, 300), project, handle, 2u, 0u);
    shared_ptr<AMFile const> right = boost::make_shared<AMFile>(Range<long long>(0, 300), project, handle, 2u, 1u);
    AMFile merged(std::set<shared_ptr<AMFile const> >{left, right});
    EXPECT_EQ(AMFile::ChannelSet({0, 1}), merged.channels());
    EXPECT_TRUE(merged.isInstanceOf(handle));
    AMFile alone(std::set<shared_ptr<AMFile const> >{left});
    EXPECT_EQ(left->channels(), alone.channels()) << "a merge of one is its copy";

    shared_ptr<Source const> twin = Source::create(project, project, bundleStats());
    shared_ptr<AMFile const> foreign = boost::make_shared<AMFile>(Range<long long>(0, 300), project, twin, 2u, 1u);
    expectRefused([&] { AMFile(std::set<shared_ptr<AMFile const> >{left, foreign}); },
                  "trying to merge amfiles with different sources");
    shared_ptr<AMFile const> later = boost::make_shared<AMFile>(Range<long long>(10, 290), project, handle, 2u, 1u);
    expectRefused([&] { AMFile(std::set<shared_ptr<AMFile const> >{left, later}); },
                  "trying to merge amfiles with different media ranges");
    shared_ptr<AMFile const> plain = boost::make_shared<AMFile>(Range<long long>(0, 300), 44100u, 16u, project,
                                                                "/rec/take.bundle", 0.0, 300.0, 2u, 1u);
    expectRefused([&] { AMFile(std::set<shared_ptr<AMFile const> >{left, plain}); },
                  "trying to merge amfiles with different sources");
}

}  // namespace
}  // namespace ZelmarMediaLib
