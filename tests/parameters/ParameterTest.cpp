// The keyframe store: lookups between and beyond keyframes, refused operations, moves,
// notifications, iteration and the keyframe XML.
#include <ZelmarMediaLib/datatypes/Color.h>
#include <ZelmarMediaLib/exceptions/KeyFrameException.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/parameters/LeftParameter.h>
#include <ZelmarMediaLib/project/Project.h>

#include "support/CountingObserver.h"
#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>

namespace ZelmarMediaLib {
namespace {

long long const largest = std::numeric_limits<long long>::max();
long long const smallest = std::numeric_limits<long long>::min();
double const nan = std::numeric_limits<double>::quiet_NaN();

class ParameterTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<InterpolatingParam<double> > opacity =
        boost::make_shared<InterpolatingParam<double> >(project, "opacity");
    test::CountingObserver observer;

    void SetUp() override { opacity->attach(&observer); }

    void keys(std::initializer_list<std::pair<long long, double> > keyframes) {
        for (auto const& keyframe : keyframes)
            opacity->addKeyFrame(keyframe.first, keyframe.second);
        observer.calls = 0;
    }

    std::string xml(XMLable const& object, std::string const& extra = "") const {
        std::ostringstream out;
        XMLable::Options options(&out);
        object.toXML(options, 0, extra);
        return out.str();
    }

    // Runs the call, which must be refused with that time, and proves that nothing changed.
    template <class Call>
    void expectRefused(Call call, long long time) {
        std::string const before = xml(*opacity);
        try {
            call();
            FAIL() << "expected a KeyFrameException";
        } catch (KeyFrameException const& error) {
            EXPECT_EQ(time, error.time());
            EXPECT_EQ("Invalid KeyFrame operation at time " + std::to_string(time), error.what());
        }
        EXPECT_EQ(before, xml(*opacity));
        EXPECT_EQ(0, observer.calls);
    }
};

TEST_F(ParameterTest, EmptyParameterRefusesValuesWithTimeZero) {
    expectRefused([&] { opacity->valueAtTime(50.0); }, 0);
    EXPECT_EQ(largest, opacity->firstKeyFrameTime());
    EXPECT_TRUE(opacity->begin() == opacity->end());
    EXPECT_THROW(opacity->keyframeRange(), KeyFrameException);
}

TEST_F(ParameterTest, ValuesBeyondTheKeyframesAreTheOutermostOnesAndALoneKeyAnswersEverywhere) {
    keys({{0, 0.0}, {100, 10.0}});
    EXPECT_EQ(0.0, opacity->valueAtTime(-5.0));
    EXPECT_EQ(10.0, opacity->valueAtTime(100.5));
    EXPECT_EQ(10.0, opacity->valueAtTime(100.0));
    EXPECT_EQ(5.0, opacity->valueAtTime(50.0));
    EXPECT_DOUBLE_EQ(5.025, opacity->valueAtTime(50.25));
    opacity->removeKeyFrame(100);
    EXPECT_EQ(0.0, opacity->valueAtTime(-1e9)) << "one keyframe answers everywhere";
    EXPECT_EQ(0.0, opacity->valueAtTime(nan));
}

TEST_F(ParameterTest, FractionsFindTheirNeighboursByTheTruncatedTime) {
    keys({{0, 0.0}, {2, 2.0}, {5, 8.0}});
    EXPECT_DOUBLE_EQ(3.0, opacity->valueAtTime(2.5));
    EXPECT_EQ(2.0, opacity->valueAtTime(2.0)) << "a whole time on a key is its value exactly";

    // A negative time with a fraction truncates toward zero and still finds the key below.
    opacity->removeKeyFrame(0);
    opacity->removeKeyFrame(2);
    opacity->addKeyFrame(-10, 0.0);
    opacity->addKeyFrame(-2, 8.0);
    EXPECT_DOUBLE_EQ(7.5, opacity->valueAtTime(-2.5));
}

TEST_F(ParameterTest, SegmentWidthIsNarrowedToSinglePrecision) {
    // 16777217 is not a float; the width becomes 16777216.
    keys({{0, 0.0}, {16777217, 1.0}});
    double const fraction = 1.0 / 16777216.0;
    EXPECT_EQ((1.0 - fraction) * 0.0 + fraction * 1.0, opacity->valueAtTime(1.0));
    EXPECT_NE(1.0 / 16777217.0, opacity->valueAtTime(1.0));
}

TEST_F(ParameterTest, NaNTimeIsBlendedRatherThanTakenAsBeforeTheFirstKey) {
    keys({{0, 0.0}, {10, 10.0}});
    EXPECT_TRUE(std::isnan(opacity->valueAtTime(nan)));
    opacity->changeKeyFrame(10, 0.0);
    EXPECT_EQ(0.0, opacity->valueAtTime(nan)) << "equal ends are returned without blending";
}

TEST_F(ParameterTest, RefusedOperationsChangeNothing) {
    keys({{0, 1.0}, {10, 2.0}});
    expectRefused([&] { opacity->addKeyFrame(10, 5.0); }, 10);
    expectRefused([&] { opacity->addKeyFrame(boost::make_shared<KeyFrame<double> >(0, 5.0)); }, 0);
    expectRefused([&] { opacity->changeKeyFrame(5, 5.0); }, 5);
    expectRefused([&] { opacity->changeKeyFrame(5, boost::make_shared<KeyFrame<double> >(5, 5.0)); }, 5);
    expectRefused([&] { opacity->removeKeyFrame(5); }, 5);
    expectRefused([&] { opacity->moveKeyFrame(5, 7); }, 5);
    expectRefused([&] { opacity->moveKeyFrame(0, 10); }, 10);
    expectRefused([&] { opacity->moveKeyFrame(10, 10); }, 10);
    expectRefused([&] { opacity->keyframeAtTime(3); }, 3);
}

TEST_F(ParameterTest, MutatorsKeepTheirKeyframeObjectsAndNotifyOnce) {
    shared_ptr<KeyFrame<double> > given = boost::make_shared<KeyFrame<double> >(0, 1.0);
    opacity->addKeyFrame(given);
    EXPECT_EQ(given, opacity->keyframeAtTime(0));

    EXPECT_EQ(1.0, opacity->changeKeyFrame(0, 4.0));
    EXPECT_EQ(given, opacity->keyframeAtTime(0)) << "a changed value stays in the same keyframe";

    shared_ptr<KeyFrame<double> > replacement = boost::make_shared<KeyFrame<double> >(99, 7.0);
    EXPECT_EQ(given, opacity->changeKeyFrame(0, replacement));
    EXPECT_EQ(0, replacement->time) << "the replacement takes the time it replaces";

    opacity->moveKeyFrame(0, 20);
    EXPECT_EQ(replacement, opacity->keyframeAtTime(20));
    EXPECT_EQ(20, replacement->time);
    EXPECT_EQ(7.0, opacity->removeKeyFrame(20));
    EXPECT_EQ(5, observer.calls);
}

TEST_F(ParameterTest, NeighbourQueriesNeverCountAKeyAtTheTimeItself) {
    keys({{0, 1.0}, {10, 2.0}, {20, 3.0}});
    EXPECT_EQ(smallest, opacity->previousKeyFrameTime(0));
    EXPECT_EQ(0, opacity->previousKeyFrameTime(10));
    EXPECT_EQ(10, opacity->previousKeyFrameTime(15));
    EXPECT_EQ(largest, opacity->nextKeyFrameTime(20));
    EXPECT_EQ(20, opacity->nextKeyFrameTime(10));
    EXPECT_TRUE(opacity->hasKeyFrameInRange(Range<long long>(5, 5))) << "the end counts";
    EXPECT_FALSE(opacity->hasKeyFrameInRange(Range<long long>(11, 8)));
    EXPECT_TRUE(opacity->hasKeyFrameAtTime(20));
    EXPECT_FALSE(opacity->hasKeyFrameAtTime(21));
    EXPECT_EQ(std::vector<long long>({0, 10, 20}), *opacity->keyframeTimes());
    EXPECT_EQ(Range<long long>(0, 20), opacity->keyframeRange());
}

TEST_F(ParameterTest, MovingAllKeyframesSlidesThemOverEachOtherWithOneNotification) {
    keys({{0, 1.0}, {10, 2.0}, {20, 3.0}});
    shared_ptr<KeyFrame<double> > before = opacity->keyframeAtTime(10);
    opacity->moveKeyframes(10);
    EXPECT_EQ(std::vector<long long>({10, 20, 30}), *opacity->keyframeTimes());
    EXPECT_EQ(2.0, opacity->valueAtTime(20.0));
    EXPECT_NE(before, opacity->keyframeAtTime(20)) << "the keyframes are new objects";
    EXPECT_EQ(1, observer.calls);
    opacity->moveKeyframes(-15);
    EXPECT_EQ(std::vector<long long>({-5, 5, 15}), *opacity->keyframeTimes());
    EXPECT_EQ(std::vector<long long>({0}), *opacity->interpolaterParam()->keyframeTimes()) << "the lane stays";
}

TEST_F(ParameterTest, IteratorWalksKeyframesUnderAReadLockAndKeepsItsRecords) {
    keys({{0, 1.0}, {10, 2.0}});
    std::vector<TimedValue<double> const*> seen;
    {
        ParameterIterator<double> it = opacity->begin();
        EXPECT_EQ(1, project->mutex().readerCount());
        for (ParameterIterator<double> const end = opacity->end(); it != end; ++it)
            seen.push_back(&*it);
        ASSERT_EQ(2u, seen.size());
        EXPECT_EQ(0, seen[0]->time);
        EXPECT_EQ(2.0, seen[1]->value) << "records stay valid while the iterator lives";
    }
    EXPECT_EQ(0, project->mutex().readerCount());
}

TEST_F(ParameterTest, ValuesDifferCountsNaNAsADifference) {
    keys({{0, 1.0}, {10, 1.0}, {20, nan}});
    EXPECT_FALSE(opacity->valuesDifferAtTimes(0, 10));
    EXPECT_TRUE(opacity->valuesDifferAtTimes(20, 20));
    EXPECT_TRUE(opacity->valuesDifferAtTimes(0, 20));
}

TEST_F(ParameterTest, InterpolatingParamXmlHoldsItsLaneThenItsKeyframes) {
    keys({{0, 1.0}, {30, 0.5}});
    std::string const id = std::to_string(opacity->xmlIdent());
    std::string const laneId = std::to_string(opacity->interpolaterParam()->xmlIdent());
    std::string const expected = "<InterpolatingParam id=\"" + id + "\"  name=\"opacity\">\n"
                                 " <Parameters>\n"
                                 "  <Parameter id=\"" + laneId + "\"  name=\"interpolater\">\n"
                                 "   <Keyframes>\n"
                                 "    <Keyframe time=\"0\" value=\"linr\"/>\n"
                                 "   </Keyframes>\n"
                                 "  </Parameter>\n"
                                 " </Parameters>\n"
                                 " <Keyframes>\n"
                                 "  <Keyframe time=\"0\" value=\"1\"/>\n"
                                 "  <Keyframe time=\"30\" value=\"0.5\"/>\n"
                                 " </Keyframes>\n"
                                 "</InterpolatingParam>\n";
    EXPECT_EQ(expected, xml(*opacity, "name=\"opacity\""));
    EXPECT_TRUE(test::isWellFormedXml(expected));
}

TEST_F(ParameterTest, KeyframeBlockIsLeftOutWhenEmptyEscapesStringsAndStreamsColours) {
    LeftParameter<std::string> title(project, "title");
    EXPECT_EQ("<Parameter id=\"" + std::to_string(title.xmlIdent()) + "\"  >\n</Parameter>\n", xml(title));
    title.addKeyFrame(5, "Tom & \"Jerry\"");
    EXPECT_NE(std::string::npos, xml(title).find("<Keyframe time=\"5\" value=\"Tom &amp; &quot;Jerry&quot;\"/>"));
    EXPECT_TRUE(test::isWellFormedXml(xml(title)));
    LeftParameter<Color> tint(project, "tint");
    tint.addKeyFrame(0, Color(1, 2, 3, 255));
    EXPECT_NE(std::string::npos, xml(tint).find("value=\"(1,2,3,255)\""));
}

TEST_F(ParameterTest, CloneHasItsOwnKeyframesAndLaneButSharesTheInterpolaters) {
    keys({{0, 1.0}});
    std::unique_ptr<InterpolatingParam<double> > copy(opacity->clone());
    EXPECT_EQ("opacity", copy->ident());
    copy->addKeyFrame(10, 2.0);
    copy->interpolaterParam()->addKeyFrame(50, LinearInterpolater<double>::instance());
    EXPECT_EQ(1, opacity->numKeyFrames());
    EXPECT_EQ(1, opacity->interpolaterParam()->numKeyFrames());
    EXPECT_EQ(opacity->interpolaterAtTime(3.0), copy->interpolaterAtTime(3.0));
    EXPECT_NE(opacity->keyframeAtTime(0), copy->keyframeAtTime(0));
    EXPECT_NE(opacity->xmlIdent(), copy->xmlIdent());
}

}  // namespace
}  // namespace ZelmarMediaLib
