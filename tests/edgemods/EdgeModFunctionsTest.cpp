// The edge modification functions: each formula at its ends and middle, the slides against a
// stage and a media set up by the test, their XML, and the zones as a media writes them and
// passes them on to its copies.
#include <ZelmarMediaLib/edgemods/AuxEdgeModInfo.h>
#include <ZelmarMediaLib/edgemods/FadeInFunc.h>
#include <ZelmarMediaLib/edgemods/FadeOutFunc.h>
#include <ZelmarMediaLib/edgemods/LinearSlideInFunc.h>
#include <ZelmarMediaLib/edgemods/MixerXSlideFuncUtil.h>
#include <ZelmarMediaLib/edgemods/MixerXSlideInFunc.h>
#include <ZelmarMediaLib/edgemods/MixerXSlideOutFunc.h>
#include <ZelmarMediaLib/edgemods/MixerYSlideInFunc.h>
#include <ZelmarMediaLib/edgemods/MixerYSlideOutFunc.h>
#include <ZelmarMediaLib/edgemods/RotateFunc.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/parameters/VectorParam.h>
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/Timeline.h>
#include <ZelmarMediaLib/timeline/VMFile.h>
#include <ZelmarMediaLib/timeline/VisualMixer.h>

#include "support/CommandInvariants.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ZelmarMediaLib {
namespace {

std::string xmlOf(XMLable const& object) {
    std::ostringstream out;
    object.toXML(out);
    return out.str();
}

// A 200 by 100 picture on a 640 by 480 stage, scaled to half its width and cropped by 20 on
// the right at its start; at its end (parameter time 100) it stands at full width.
class EdgeModFunctionsTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<VisualMixer> mixer = project->timeline()->newVisualMixer(640, 480);
    shared_ptr<VMFile> media = boost::make_shared<VMFile>(Range<long long>(0, 100), Rect<float>(0, 0, 200, 100),
                                                          project, "/a.mov", 0.0, 1000.0, 0u);

    void SetUp() override {
        media->scale()->at(0)->changeKeyFrame(0, 0.5);
        media->scale()->at(0)->addKeyFrame(100, 1.0);
        media->geometryCropParam()->at(2)->changeKeyFrame(0, 20.0);
    }

    AuxEdgeModInfo stage() const {
        AuxEdgeModInfo aux;
        aux.setVisualMedia(media);
        aux.setVisualMixer(mixer);
        return aux;
    }
};

TEST_F(EdgeModFunctionsTest, FadesSlideAndSpinRunFromTheirStartToTheValue) {
    EXPECT_EQ(0.0, FadeInFunc().execute(0.0, 0.8));
    EXPECT_EQ(0.4, FadeInFunc().execute(0.5, 0.8));
    EXPECT_EQ(0.8, FadeInFunc().execute(1.0, 0.8));
    EXPECT_EQ(0.8, FadeOutFunc().execute(0.0, 0.8));
    EXPECT_EQ(0.4, FadeOutFunc().execute(0.5, 0.8));
    EXPECT_EQ(0.0, FadeOutFunc().execute(1.0, 0.8));
    EXPECT_EQ(13.0, LinearSlideInFunc(10.0).execute(0.0, 3.0));
    EXPECT_EQ(8.0, LinearSlideInFunc(10.0).execute(0.5, 3.0));
    EXPECT_EQ(3.0, LinearSlideInFunc(10.0).execute(1.0, 3.0));
    EXPECT_EQ(1.0, RotateFunc(2).execute(0.0, 1.0));
    EXPECT_EQ(1.0 + 6.283185307179586, RotateFunc(2).execute(0.5, 1.0));
    EXPECT_EQ(1.0 + 2 * 6.283185307179586, RotateFunc(2).execute(1.0, 1.0));
}

TEST_F(EdgeModFunctionsTest, MediaExtentsFollowTransformAndCrop) {
    // 200 less the crop of 20, at half scale; at the end, at full scale.
    EXPECT_DOUBLE_EQ(90.0, MixerXSlideFuncUtil::calcMediaBeginWidth(media));
    EXPECT_DOUBLE_EQ(180.0, MixerXSlideFuncUtil::calcMediaEndWidth(media));
    EXPECT_DOUBLE_EQ(100.0, MixerXSlideFuncUtil::calcMediaBeginHeight(media));
    // The bottom crop narrows the shape, not its height.
    media->geometryCropParam()->at(3)->changeKeyFrame(0, 30.0);
    EXPECT_DOUBLE_EQ(100.0, MixerXSlideFuncUtil::calcMediaBeginHeight(media));
}

TEST_F(EdgeModFunctionsTest, HorizontalSlideStartsJustLeftOfTheStage) {
    MixerXSlideInFunc in;
    in.setAuxInfo(stage());
    // -640/2 - 90/2 + 20 * 0.5 / 2
    EXPECT_DOUBLE_EQ(-360.0, in.execute(0.0, 100.0));
    // The fraction is read as a time: the scale is that at parameter time 0.5, 0.5025.
    EXPECT_DOUBLE_EQ(100.0 + 0.5 * (-365.0 - 100.0 + 20 * 0.5025 * 0.5), in.execute(0.5, 100.0));
    EXPECT_DOUBLE_EQ(100.0, in.execute(1.0, 100.0));

    MixerXSlideOutFunc out;
    out.setAuxInfo(stage());
    EXPECT_DOUBLE_EQ(100.0, out.execute(0.0, 100.0));
    EXPECT_DOUBLE_EQ(-360.0, out.execute(1.0, 100.0));
    std::unique_ptr<MixerXSlideOutFunc> const copy(out.clone());
    EXPECT_DOUBLE_EQ(-360.0, copy->execute(1.0, 100.0)) << "a copy keeps the stage";
}

TEST_F(EdgeModFunctionsTest, VerticalSlideStartsAboveTheStageUnlessItsAngleIsZero) {
    MixerYSlideInFunc slanted(45.0);
    slanted.setAuxInfo(stage());
    // 480/2 + 100/2; the crop and scale don't enter.
    EXPECT_DOUBLE_EQ(290.0, slanted.execute(0.0, 10.0));
    EXPECT_DOUBLE_EQ(150.0, slanted.execute(0.5, 10.0));
    EXPECT_DOUBLE_EQ(10.0, slanted.execute(1.0, 10.0));
    MixerYSlideOutFunc out(90.0);
    out.setAuxInfo(stage());
    EXPECT_DOUBLE_EQ(290.0, out.execute(1.0, 10.0));

    // Angle 0 is a fade in, and needs no stage.
    EXPECT_EQ(5.0, MixerYSlideInFunc().execute(0.5, 10.0));
    EXPECT_EQ(10.0, MixerYSlideOutFunc(0.0).execute(0.0, 10.0));
}

TEST_F(EdgeModFunctionsTest, SlideWithoutAStageRaisesBadWeakPtr) {
    EXPECT_THROW(MixerXSlideInFunc().execute(0.5, 1.0), bad_weak_ptr);
    EXPECT_THROW(MixerYSlideInFunc(90.0).execute(0.5, 1.0), bad_weak_ptr);
    MixerXSlideOutFunc gone;
    {
        AuxEdgeModInfo aux = stage();
        aux.setVisualMixer(boost::make_shared<VisualMixer>(10.0f, 10.0f, project));
        gone.setAuxInfo(aux);
    }
    EXPECT_THROW(gone.execute(0.5, 1.0), bad_weak_ptr) << "the mixer has expired";
}

TEST_F(EdgeModFunctionsTest, FunctionsWriteTheirIdentAndAttributes) {
    FadeInFunc fade;
    EXPECT_EQ("<FadeInFunc id=\"" + std::to_string(fade.xmlIdent()) + "\"  >\n</FadeInFunc>\n", xmlOf(fade));
    EXPECT_EQ("<LinearSlideInFunc id=\"#\"  >\n</LinearSlideInFunc>\n", test::withoutIds(xmlOf(LinearSlideInFunc(3))));
    EXPECT_EQ("<Rotate id=\"#\"  numRotations=\"3\" >\n</Rotate>\n", test::withoutIds(xmlOf(RotateFunc(3))));
    EXPECT_EQ("<MixerXSlideIn id=\"#\"  angle=\"0\" >\n</MixerXSlideIn>\n", test::withoutIds(xmlOf(MixerXSlideInFunc())));
    EXPECT_EQ("<MixerXSlideOut id=\"#\"  angle=\"0\" >\n</MixerXSlideOut>\n",
              test::withoutIds(xmlOf(MixerXSlideOutFunc())));
    EXPECT_EQ("<MixerYSlideIn id=\"#\"  angle=\"45.5\" >\n</MixerYSlideIn>\n",
              test::withoutIds(xmlOf(MixerYSlideInFunc(45.5))));
    EXPECT_EQ("<MixerYSlideOut id=\"#\"  angle=\"90\" >\n</MixerYSlideOut>\n",
              test::withoutIds(xmlOf(MixerYSlideOutFunc(90.0))));
}

TEST_F(EdgeModFunctionsTest, MediaWritesItsZonesWithTheirEffectiveLengths) {
    media->setLeftEdgeModificationLength(95);
    media->setRightEdgeModificationLength(10);
    media->addLeftEdgeModification(EdgeModification(media->opacity(), FadeInFunc()));
    std::string const xml = test::withoutIds(xmlOf(*media));
    std::string const opacity = std::to_string(media->opacity()->xmlIdent());
    EXPECT_NE(std::string::npos, xml.find(" <LeftEdgeMods length=\"90\">\n"
                                          "  <EdgeMod parameter=\"" + opacity + "\">\n"
                                          "   <FadeInFunc id=\"#\"  >\n"
                                          "   </FadeInFunc>\n"
                                          "  </EdgeMod>\n"
                                          " </LeftEdgeMods>\n"
                                          " <RightEdgeMods length=\"10\">\n"
                                          " </RightEdgeMods>\n"))
        << xml;
}

TEST_F(EdgeModFunctionsTest, FadedOpacityIsReadThroughTheMedia) {
    media->setLeftEdgeModificationLength(20);
    media->setRightEdgeModificationLength(40);
    media->addLeftEdgeModification(EdgeModification(media->opacity(), FadeInFunc()));
    media->addRightEdgeModification(EdgeModification(media->opacity(), FadeOutFunc()));
    EXPECT_EQ(0.0, media->transformedDoubleParameterValueAtTime(media->opacity(), 0.0));
    EXPECT_EQ(0.5, media->transformedDoubleParameterValueAtTime(media->opacity(), 10.0));
    EXPECT_EQ(1.0, media->transformedDoubleParameterValueAtTime(media->opacity(), 20.0));
    EXPECT_EQ(1.0, media->transformedDoubleParameterValueAtTime(media->opacity(), 60.0));
    EXPECT_EQ(0.5, media->transformedDoubleParameterValueAtTime(media->opacity(), 80.0));
    EXPECT_EQ(1.0, media->opacity()->valueAtTime(80.0)) << "the stored values stay";
}

// Pins copies whose modifications pointed at the original's parameters, so that editing
// one copy's fade, or the original's opacity, changed what another copy showed.
TEST_F(EdgeModFunctionsTest, ClonesFadeTheirOwnParametersAndEditApart) {
    media->setLeftEdgeModificationLength(20);
    media->addLeftEdgeModification(EdgeModification(media->opacity(), FadeInFunc()));
    shared_ptr<VMFile> first = dynamic_pointer_cast<VMFile>(sharedClone(shared_ptr<Media>(media)));
    shared_ptr<VMFile> second = dynamic_pointer_cast<VMFile>(sharedClone(shared_ptr<Media>(media)));
    ASSERT_EQ(1u, first->leftEdgeModifications().size());
    EXPECT_EQ(first->opacity(), first->leftEdgeModifications().front().parameter());
    EXPECT_EQ(second->opacity(), second->leftEdgeModifications().front().parameter());

    std::string const secondBefore = xmlOf(*second);
    first->removeLeftEdgeModification(first->opacity());
    first->addLeftEdgeModification(EdgeModification(first->opacity(), LinearSlideInFunc(1.0)));
    first->setLeftEdgeModificationLength(50);
    media->opacity()->changeKeyFrame(0, 0.2);
    EXPECT_EQ(secondBefore, xmlOf(*second));
    EXPECT_EQ(0.5, second->transformedDoubleParameterValueAtTime(second->opacity(), 10.0));
    EXPECT_DOUBLE_EQ(1.8, first->transformedDoubleParameterValueAtTime(first->opacity(), 10.0));
}

}  // namespace
}  // namespace ZelmarMediaLib
