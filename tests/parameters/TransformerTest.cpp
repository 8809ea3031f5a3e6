// Transformers: the matrix composed from keyframed components at a time, their parameter list,
// their XML and their copies.
#include <ZelmarMediaLib/datatypes/GraphicsUtil.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/parameters/Transformer.h>
#include <ZelmarMediaLib/parameters/VectorParam.h>
#include <ZelmarMediaLib/project/Project.h>

#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <vector>

namespace ZelmarMediaLib {
namespace {

// Keys its parameters in a time that runs twice as fast as the time it is asked at.
class DoubleSpeedOwner : public Parametric {
public:
    explicit DoubleSpeedOwner(weak_ptr<ThreadSafe const> project) : project_(project) {}

    double toParameterTime(double time) const override { return 2 * time; }
    double fromParameterTime(double time) const override { return time / 2; }
    long long fromGlobalToParametricTime(long long time) const override { return time; }
    int numParameters() const override { return 0; }
    ParameterVector* parameterVector() const override { return new ParameterVector(project_); }

private:
    weak_ptr<ThreadSafe const> project_;
};

void setAtZero(VectorParam& vector, std::vector<double> const& values) {
    for (int i = 0; i < vector.numDimensions(); ++i)
        vector.at(i)->changeKeyFrame(0, values[static_cast<std::size_t>(i)]);
}

class TransformerTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);
    // A real Parametric with identity time conversions.
    InterpolatingParam<double> identityOwner{project, "owner"};
    Transformer transformer{project};
};

TEST_F(TransformerTest, NewTransformerGivesTheIdentityAndTranslationLandsInTheLastColumn) {
    EXPECT_EQ(TransformMatrix(), transformer.calcTransformAtTime(&identityOwner, -250));
    EXPECT_EQ(TransformMatrix(), transformer.calcTransformAtTime(&identityOwner, 1000000));
    setAtZero(*transformer.translation(), {1, 2, 3});
    EXPECT_EQ(TransformMatrix::translate(1, 2, 3), transformer.calcTransformAtTime(&identityOwner, 0));
}

// Pins a mix-up of the components' places in the composition, which equal defaults would hide.
TEST_F(TransformerTest, EachComponentGoesToItsOwnPlaceInTheComposition) {
    double scale[3] = {2, 3, 4};
    double translation[3] = {10, 20, 30};
    double rotation[3] = {0.1, 0.2, 0.3};
    double shear[2] = {0.4, 0.5};
    double anchor[3] = {5, 6, 7};
    setAtZero(*transformer.scale(), {2, 3, 4});
    setAtZero(*transformer.translation(), {10, 20, 30});
    setAtZero(*transformer.rotation(), {0.1, 0.2, 0.3});
    setAtZero(*transformer.shear(), {0.4, 0.5});
    setAtZero(*transformer.anchor(), {5, 6, 7});
    EXPECT_EQ(GraphicsUtil::calcTransformFromComponents(scale, translation, rotation, shear, anchor),
              transformer.calcTransformAtTime(&identityOwner, 0));
}

TEST_F(TransformerTest, ComponentsAreReadInTheOwnersParameterTime) {
    for (int i = 0; i < 3; ++i)
        transformer.translation()->at(i)->addKeyFrame(100, 100);
    DoubleSpeedOwner owner(project);
    EXPECT_EQ(TransformMatrix::translate(50, 50, 50), transformer.calcTransformAtTime(&owner, 25));
    EXPECT_EQ(TransformMatrix::translate(25, 25, 25), transformer.calcTransformAtTime(&identityOwner, 25));
}

TEST_F(TransformerTest, GivenScaleOrTranslationStandsInForThatComponentOnly) {
    setAtZero(*transformer.translation(), {1, 2, 3});
    setAtZero(*transformer.scale(), {2, 2, 2});
    double const scale[3] = {5, 6, 7};
    TransformMatrix expected = TransformMatrix::translate(1, 2, 3);
    expected.append(TransformMatrix::scale(5, 6, 7));
    EXPECT_EQ(expected, transformer.calcTransformAtTimeWithScale(&identityOwner, 0, scale));

    double const translation[3] = {-1, -2, -3};
    expected = TransformMatrix::translate(-1, -2, -3);
    expected.append(TransformMatrix::scale(2, 2, 2));
    EXPECT_EQ(expected, transformer.calcTransformAtTimeWithTranslation(&identityOwner, 0, translation));
}

TEST_F(TransformerTest, ParametersAreTheFourteenComponentsInOrder) {
    std::unique_ptr<ParameterVector> const list(new ParameterVector(project));
    Transformer::addTransformerParametersToParameters(&transformer, list.get());
    std::vector<std::string> names;
    for (shared_ptr<ParameterInterface const> const& parameter : *list)
        names.push_back(parameter->ident());
    std::vector<std::string> const expected = {"translation0", "translation1", "translation2", "rotation0", "rotation1",
                                               "rotation2",    "shear0",       "shear1",       "scale0",    "scale1",
                                               "scale2",       "anchor0",      "anchor1",      "anchor2"};
    EXPECT_EQ(expected, names);
    EXPECT_EQ(transformer.scale()->at(2), (*list)[10]);
}

// One component with its interpolater lane, as it stands in a transformer written at indent 1.
std::string componentXml(InterpolatingParam<double> const& component, std::string const& value) {
    std::string const id = std::to_string(component.xmlIdent());
    std::string const laneId = std::to_string(component.interpolaterParam()->xmlIdent());
    return "   <InterpolatingParam id=\"" + id + "\"  >\n"
           "    <Parameters>\n"
           "     <Parameter id=\"" + laneId + "\"  name=\"interpolater\">\n"
           "      <Keyframes>\n"
           "       <Keyframe time=\"0\" value=\"linr\"/>\n"
           "      </Keyframes>\n"
           "     </Parameter>\n"
           "    </Parameters>\n"
           "    <Keyframes>\n"
           "     <Keyframe time=\"0\" value=\"" + value + "\"/>\n"
           "    </Keyframes>\n"
           "   </InterpolatingParam>\n";
}

std::string vectorXml(VectorParam const& vector, std::string const& name, std::vector<std::string> const& values) {
    std::string text = "  <VectorParam id=\"" + std::to_string(vector.xmlIdent()) + "\"  name=\"" + name + "\">\n";
    for (int i = 0; i < vector.numDimensions(); ++i)
        text += componentXml(*vector.at(i), values[values.size() == 1 ? 0 : static_cast<std::size_t>(i)]);
    return text + "  </VectorParam>\n";
}

TEST_F(TransformerTest, XmlHoldsTheFiveVectorsByRoleOneLevelDeeper) {
    setAtZero(*transformer.rotation(), {0.5, 0.25, 1.0 / 3});
    std::ostringstream out;
    XMLable::Options options(&out);
    transformer.genXMLForTransformer(options, 1);
    std::string const expected = " <Transformer>\n" + vectorXml(*transformer.translation(), "translation", {"0"}) +
                                 vectorXml(*transformer.rotation(), "rotation", {"0.5", "0.25", "0.333333"}) +
                                 vectorXml(*transformer.shear(), "shear", {"0"}) +
                                 vectorXml(*transformer.scale(), "scale", {"1"}) +
                                 vectorXml(*transformer.anchor(), "anchor", {"0"}) + " </Transformer>\n";
    EXPECT_EQ(expected, out.str());
    EXPECT_TRUE(test::isWellFormedXml(out.str()));
}

TEST_F(TransformerTest, CopyHasIndependentComponentsWithTheSameKeyframes) {
    setAtZero(*transformer.translation(), {1, 2, 3});
    Transformer copy(transformer);
    EXPECT_NE(transformer.translation(), copy.translation());
    EXPECT_NE(transformer.translation()->xmlIdent(), copy.translation()->xmlIdent());
    EXPECT_EQ(transformer.calcTransformAtTime(&identityOwner, 0), copy.calcTransformAtTime(&identityOwner, 0));

    copy.translation()->at(0)->changeKeyFrame(0, 9.0);
    copy.anchor()->at(1)->addKeyFrame(10, 4.0);
    EXPECT_EQ(TransformMatrix::translate(1, 2, 3), transformer.calcTransformAtTime(&identityOwner, 10));
    EXPECT_EQ(1, transformer.anchor()->at(1)->numKeyFrames());
    EXPECT_EQ("anchor1", copy.anchor()->at(1)->ident());
}

}  // namespace
}  // namespace ZelmarMediaLib
