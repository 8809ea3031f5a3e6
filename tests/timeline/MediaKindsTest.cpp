// The concrete media kinds: crops and placement of pictures, stills' time, transitions'
// single effect, annotations' text and their XML attributes.
#include <ZelmarMediaLib/effects/CompositeEffect.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/parameters/LeftParameter.h>
#include <ZelmarMediaLib/parameters/VectorParam.h>
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/AudioTransition.h>
#include <ZelmarMediaLib/timeline/Callout.h>
#include <ZelmarMediaLib/timeline/ImageTransition.h>
#include <ZelmarMediaLib/timeline/TextBox.h>
#include <ZelmarMediaLib/timeline/VMFile.h>

#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ZelmarMediaLib {
namespace {

// The smallest effect that can stand in a chain.
class Dissolve : public CompositeEffect {
public:
    explicit Dissolve(weak_ptr<ThreadSafe const> project) : CompositeEffect("Dissolve", project) {}
    Dissolve* clone() const override { return new Dissolve(*this); }
    std::list<ParameterInterface const*> parameters() const override { return {}; }
    double toParameterTime(double time) const override { return time; }
    double fromParameterTime(double time) const override { return time; }
    ParameterVector* parameterVector() const override { return new ParameterVector(projectMutex()); }
};

class MediaKindsTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);

    shared_ptr<VMFile> video() {
        return boost::make_shared<VMFile>(Range<long long>(0, 300), Rect<float>(0, 0, 100, 50), project, "/v.mov", 0.0,
                                          300.0, 0u);
    }
    std::string xml(XMLable const& object) {
        std::ostringstream out;
        object.toXML(out);
        return out.str();
    }
};

TEST_F(MediaKindsTest, NewPictureIsUncroppedAndCentredByItsGeometry) {
    shared_ptr<VMFile> media = video();
    EXPECT_EQ(Rect<double>(0, 0, 100, 50).x, media->sourceCropRectAtTime(0).x);
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
    EXPECT_EQ("a", box->text()->valueAtTime(0.0));
    EXPECT_EQ(320.0f, box->width());
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
    shared_ptr<Effect> first = boost::make_shared<Dissolve>(project), second = boost::make_shared<Dissolve>(project);
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
    shared_ptr<Effect const> effect = boost::make_shared<Dissolve>(project);
    AudioTransition transition(20, effect, project);
    EXPECT_EQ(effect, transition.transitionEffect());
    EXPECT_EQ(0, transition.numChannels());
    EXPECT_THROW(transition.splitChannels(), ZelmarMediaLibException);
    EXPECT_THROW(transition.transitionMediaRepresentation(), boost::bad_weak_ptr);
    EXPECT_TRUE(transition.validTrimEnd(-500)) << "transitions are static";
}

}  // namespace
}  // namespace ZelmarMediaLib
