// Interpolaters and the two concrete parameter kinds: blending per value type, held values,
// the interpolater lane, dispatch.
#include <ZelmarMediaLib/datatypes/AudioPosition.h>
#include <ZelmarMediaLib/datatypes/Color.h>
#include <ZelmarMediaLib/datatypes/Point.h>
#include <ZelmarMediaLib/datatypes/TransformMatrix.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/parameters/LeftParameter.h>
#include <ZelmarMediaLib/project/Project.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <thread>

namespace ZelmarMediaLib {
namespace {

double const nan = std::numeric_limits<double>::quiet_NaN();

class InterpolationTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<InterpolatingParam<double> > volume = boost::make_shared<InterpolatingParam<double> >(project, "volume");

    // A ramp from 0 at time 0 to 100 at time 100 whose lane switches to the given interpolater at 50.
    void rampSwitchingAt50(shared_ptr<Interpolater<double> > later) {
        volume->addKeyFrame(0, 0.0);
        volume->addKeyFrame(100, 100.0);
        volume->interpolaterParam()->addKeyFrame(50, later);
    }
};

TEST_F(InterpolationTest, EqualEndsComeBackUnblendedEvenForANaNFraction) {
    Interpolater<double> const& linear = *LinearInterpolater<double>::instance();
    EXPECT_EQ(1.0, linear.interpolate(1.0, 1.0, nan));
    EXPECT_EQ(1.0, linear.interpolate(1.0, 1.0, 7.0));
    EXPECT_TRUE(std::isnan(linear.interpolate(nan, nan, 0.5))) << "NaN is never equal, so it blends";
    EXPECT_EQ(3.0, linear.interpolate(1.0, 2.0, 2.0)) << "outside 0 to 1 it extrapolates";
}

TEST_F(InterpolationTest, LinearBlendsEachValueTypeComponentwise) {
    EXPECT_EQ(Point(1, 2, 3), LinearInterpolater<Point>::instance()->interpolate(Point(0, 0, 0), Point(2, 4, 6), 0.5));
    AudioPosition const mid =
        LinearInterpolater<AudioPosition>::instance()->interpolate(AudioPosition(0, 0, 1), AudioPosition(2, 2, 3), 0.25);
    EXPECT_EQ(AudioPosition(0.5f, 0.5f, 1.5f), mid);
    // All sixteen entries blend: half way between the identity and twice it is 1.5 times it.
    TransformMatrix const blended = LinearInterpolater<TransformMatrix>::instance()->interpolate(
        TransformMatrix(), TransformMatrix::scale(2, 2, 2) * 2.0, 0.5);
    EXPECT_EQ(2.5, blended.at(0, 0));
    EXPECT_EQ(1.5, blended.at(3, 3));
}

TEST_F(InterpolationTest, FloatBlendRunsInDoubleAndRoundsOnce) {
    float const left = 0.1f, right = 0.7f;
    double const fraction = 1.0 / 3.0;
    float const expected = static_cast<float>((1.0 - fraction) * double(left) + fraction * double(right));
    EXPECT_EQ(expected, LinearInterpolater<float>::instance()->interpolate(left, right, fraction));
}

TEST_F(InterpolationTest, LeftParameterHoldsTheEarlierValueUpToTheNextKey) {
    LeftParameter<Color> tint(project, "tint");
    tint.addKeyFrame(0, Color::black());
    tint.addKeyFrame(10, Color::white());
    EXPECT_EQ(Color::black(), tint.valueAtTime(9.999));
    EXPECT_EQ(Color::white(), tint.valueAtTime(10.0));
    EXPECT_FALSE(tint.interpolaterParam());
    EXPECT_EQ("left", tint.interpolaterAtTime(5.0)->name());
}

TEST_F(InterpolationTest, NewInterpolatingParamIsLinearEverywhereThroughItsLane) {
    EXPECT_EQ(1, volume->numParameters());
    shared_ptr<Parameter<shared_ptr<Interpolater<double> > > > lane = volume->interpolaterParam();
    EXPECT_EQ("interpolater", lane->ident());
    EXPECT_EQ(std::vector<long long>({0}), *lane->keyframeTimes());
    EXPECT_EQ(LinearInterpolater<double>::instance(), lane->valueAtTime(0.0));
    EXPECT_EQ(LinearInterpolater<double>::instance(), volume->interpolaterAtTime(-100.0));

    std::unique_ptr<ParameterVector> parameters(volume->parameterVector());
    ASSERT_EQ(1u, parameters->size());
    EXPECT_EQ(lane.get(), dynamic_cast<ParameterInterface const*>(parameters->front().get()));
}

TEST_F(InterpolationTest, LaneKeyframesSwitchTheInterpolaterFromTheirTimeOn) {
    rampSwitchingAt50(LeftInterpolater<double>::instance());
    EXPECT_DOUBLE_EQ(25.0, volume->valueAtTime(25.0));
    EXPECT_EQ(0.0, volume->valueAtTime(75.0));
}

// An application's own interpolater, written against the documented signature.
class MidpointInterpolater : public Interpolater<double> {
public:
    MidpointInterpolater() : Interpolater<double>("mid") {}

protected:
    double doInterpolate(double left, double right, double) const override { return (left + right) / 2.0; }
};

// Regression: doInterpolate took its ends by const reference, so an override with the
// documented signature, by value and const, did not override anything.
TEST_F(InterpolationTest, ApplicationInterpolaterOverridingDoInterpolateIsUsedByTheParameter) {
    rampSwitchingAt50(shared_ptr<Interpolater<double> >(new MidpointInterpolater));
    EXPECT_DOUBLE_EQ(25.0, volume->valueAtTime(25.0));
    EXPECT_EQ(50.0, volume->valueAtTime(60.0));
    EXPECT_EQ("mid", volume->interpolaterAtTime(60.0)->name());
}

TEST_F(InterpolationTest, SharedInstanceIsMadeOnceWhenFirstUsedOnSeveralThreads) {
    std::vector<Interpolater<Point>*> seen(8);
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < seen.size(); ++i)
        threads.emplace_back([&seen, i] { seen[i] = LeftInterpolater<Point>::instance().get(); });
    for (std::thread& thread : threads)
        thread.join();
    for (Interpolater<Point>* instance : seen)
        EXPECT_EQ(LeftInterpolater<Point>::s_instance.get(), instance);
}

class NameRecorder : public ConstParameterDispatcher {
public:
    void dispatch(shared_ptr<InterpolatingParam<double> const>) override { seen = "double"; }
    void dispatch(shared_ptr<InterpolatingParam<float> const>) override { seen = "float"; }
    void dispatch(shared_ptr<InterpolatingParam<Point> const>) override { seen = "point"; }
    void dispatch(shared_ptr<InterpolatingParam<TransformMatrix> const>) override { seen = "matrix"; }
    void dispatch(shared_ptr<InterpolatingParam<AudioPosition> const>) override { seen = "position"; }
    void dispatch(shared_ptr<LeftParameter<std::string> const>) override { seen = "string"; }
    void dispatch(shared_ptr<LeftParameter<Color> const>) override { seen = "color"; }
    void dispatch(shared_ptr<LeftParameter<shared_ptr<IMFile> > const>) override { seen = "image"; }
    void dispatch(shared_ptr<LeftParameter<shared_ptr<Interpolater<double> > > const>) override { seen = "lane"; }
    void dispatch(shared_ptr<LeftParameter<shared_ptr<Interpolater<float> > > const>) override {}
    void dispatch(shared_ptr<LeftParameter<shared_ptr<Interpolater<Point> > > const>) override {}
    void dispatch(shared_ptr<LeftParameter<shared_ptr<Interpolater<TransformMatrix> > > const>) override {}
    void dispatch(shared_ptr<LeftParameter<shared_ptr<Interpolater<AudioPosition> > > const>) override {}
    std::string seen;
};

TEST_F(InterpolationTest, DispatchReachesTheOverloadOfTheConcreteClass) {
    NameRecorder recorder;
    shared_ptr<ParameterInterface const> asInterface = volume;
    asInterface->receiveDispatcher(&recorder);
    EXPECT_EQ("double", recorder.seen);
    volume->interpolaterParam()->receiveDispatcher(static_cast<ConstParameterDispatcher*>(&recorder));
    EXPECT_EQ("lane", recorder.seen);

    LeftParameter<Color> unshared(project, "tint");
    EXPECT_THROW(unshared.receiveDispatcher(static_cast<ConstParameterDispatcher*>(&recorder)), boost::bad_weak_ptr);
}

}  // namespace
}  // namespace ZelmarMediaLib
