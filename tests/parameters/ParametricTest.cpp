// Owners of parameters: lookup by name, keyframe ranges, whether times differ, vectors of
// parameters.
#include <ZelmarMediaLib/exceptions/KeyFrameException.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/parameters/KeyframeUtil.h>
#include <ZelmarMediaLib/parameters/ParametricTemporalDifferentiater.h>
#include <ZelmarMediaLib/parameters/VectorParam.h>
#include <ZelmarMediaLib/project/Project.h>

#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ZelmarMediaLib {
namespace {

typedef shared_ptr<InterpolatingParam<double> > DoubleParam;

// An owner of a few double parameters whose parameter time runs offset from its own.
class Owner : public Parametric {
public:
    Owner(weak_ptr<ThreadSafe const> project, long long offset) : project_(project), offset_(offset) {}

    DoubleParam add(std::string const& name, std::initializer_list<std::pair<long long, double> > keys) {
        DoubleParam parameter = boost::make_shared<InterpolatingParam<double> >(project_, name);
        for (auto const& key : keys)
            parameter->addKeyFrame(key.first, key.second);
        parameters_.push_back(parameter);
        return parameter;
    }

    double toParameterTime(double time) const override { return time + static_cast<double>(offset_); }
    double fromParameterTime(double time) const override { return time - static_cast<double>(offset_); }
    long long fromGlobalToParametricTime(long long time) const override { return time; }
    int numParameters() const override { return static_cast<int>(parameters_.size()); }
    ParameterVector* parameterVector() const override {
        ParameterVector* list = new ParameterVector(project_);
        list->insert(list->end(), parameters_.begin(), parameters_.end());
        return list;
    }

private:
    weak_ptr<ThreadSafe const> project_;
    long long offset_;
    std::vector<DoubleParam> parameters_;
};

class ParametricTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<Owner> owner = boost::make_shared<Owner>(project, 0);
};

TEST_F(ParametricTest, ParameterIsFoundByItsExactNameAndTheFirstOfTwinsWins) {
    DoubleParam first = owner->add("gain", {});
    owner->add("gain", {});
    owner->add("gainer", {});
    EXPECT_EQ(first, owner->paramWithName("gain"));
    EXPECT_FALSE(owner->paramWithName("gai"));
    EXPECT_FALSE(owner->paramWithName("unknown"));
    EXPECT_EQ(0, project->mutex().readerCount()) << "the walk's lock is gone";
}

TEST_F(ParametricTest, KeyframeRangeOfNoParametersIsEmptyAtZeroAndOfAnUnkeyedFirstRaises) {
    EXPECT_EQ(Range<long long>(0, 0), KeyframeUtil::keyframeRange(owner.get()));
    owner->add("bare", {});
    EXPECT_THROW(KeyframeUtil::keyframeRange(owner.get()), KeyFrameException);
}

TEST_F(ParametricTest, KeyframeRangeWidensToALaterEndButDropsTheDistanceByWhichTheStartMovesEarlier) {
    owner->add("first", {{0, 0.0}, {10, 1.0}});
    owner->add("second", {{5, 0.0}, {40, 1.0}});
    EXPECT_EQ(Range<long long>(0, 40), KeyframeUtil::keyframeRange(owner.get()));
    shared_ptr<Owner> other = boost::make_shared<Owner>(project, 0);
    other->add("late", {{10, 0.0}, {20, 1.0}});
    other->add("constant", {{-100, 5.0}});
    other->add("early", {{0, 0.0}, {5, 1.0}});
    EXPECT_EQ(Range<long long>(0, 10), KeyframeUtil::keyframeRange(other.get()));
}

TEST_F(ParametricTest, TimesDifferLooksInParameterTime) {
    shared_ptr<Owner> shifted = boost::make_shared<Owner>(project, 100);
    shifted->add("steady", {{0, 1.0}});
    EXPECT_FALSE(ParametricTemporalDifferentiater::timesDiffer(shifted, 0, 50));
    shifted->add("ramp", {{100, 0.0}, {200, 1.0}});
    EXPECT_TRUE(ParametricTemporalDifferentiater::timesDiffer(shifted, 0, 50));
    EXPECT_FALSE(ParametricTemporalDifferentiater::timesDiffer(shifted, 30, 30));
    EXPECT_FALSE(ParametricTemporalDifferentiater::timesDiffer(owner, 0, 50)) << "no parameters, no difference";
}

TEST_F(ParametricTest, TransformedValueIsTheValueAtParameterTimeWithoutAnOverride) {
    shared_ptr<Owner> shifted = boost::make_shared<Owner>(project, 10);
    DoubleParam ramp = shifted->add("ramp", {{0, 0.0}, {100, 100.0}});
    EXPECT_EQ(ramp->valueAtTime(35.0), shifted->transformedDoubleParameterValueAtTime(ramp, 25.0));
}

TEST_F(ParametricTest, VectorParamNamesItsComponentsAndListsThemInOrder) {
    shared_ptr<VectorParam> translation = boost::make_shared<VectorParam>(project, 3, "translation");
    EXPECT_EQ("translation", translation->identAttribute()->value());
    ParameterVector list(project);
    Parametric::addVectorParamToParameters(translation, &list);
    ASSERT_EQ(3u, list.size());
    EXPECT_EQ("translation0", list[0]->ident());
    EXPECT_EQ("translation2", list[2]->ident());
}

TEST_F(ParametricTest, VectorParamXmlPutsComponentsAtItsBodyLevel) {
    VectorParam shear(project, 2, "shear");
    VectorParam empty(project, 0, "nothing");
    std::ostringstream out;
    XMLable::Options options(&out);
    empty.toXML(options, 0, "name=\"nothing\"");
    EXPECT_EQ("<VectorParam id=\"" + std::to_string(empty.xmlIdent()) + "\"  name=\"nothing\">\n</VectorParam>\n",
              out.str());

    out.str("");
    shear.toXML(options, 0, "name=\"shear\"");
    std::string const text = out.str();
    std::string const firstComponent =
        "\n <InterpolatingParam id=\"" + std::to_string(shear.at(0)->xmlIdent()) + "\"  >\n  <Parameters>\n";
    EXPECT_NE(std::string::npos, text.find(firstComponent)) << text;
    EXPECT_TRUE(test::isWellFormedXml(text));
}

TEST_F(ParametricTest, ClonedVectorParamHasIndependentComponents) {
    VectorParam scale(project, 3, "scale");
    scale.at(0)->addKeyFrame(0, 1.0);
    std::unique_ptr<VectorParam> copy(scale.clone());
    copy->at(0)->changeKeyFrame(0, 2.0);
    EXPECT_EQ(1.0, scale.at(0)->valueAtTime(0.0));
    EXPECT_EQ("scale", copy->identAttribute()->value());
}

}  // namespace
}  // namespace ZelmarMediaLib
