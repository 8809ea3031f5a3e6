// Intersections of half-open ranges, including the contact cases that give (0,0).
#include <ZelmarMediaLib/datatypes/Range.h>

#include <gtest/gtest.h>

#include <sstream>

namespace ZelmarMediaLib {
namespace {

typedef Range<long long> TimeRange;

TEST(RangeTest, IntersectionOfOverlappingAndContainedRanges) {
    EXPECT_EQ(TimeRange(3, 4), TimeRange(0, 10).intersection(TimeRange(3, 4)));
    EXPECT_EQ(TimeRange(8, 2), TimeRange(0, 10).intersection(TimeRange(8, 5)));
    EXPECT_EQ(TimeRange(8, 2), TimeRange(8, 5).intersection(TimeRange(0, 10)));
    EXPECT_EQ(TimeRange(-5, 2), TimeRange(-10, 7).intersection(TimeRange(-5, 20)));
}

TEST(RangeTest, TouchingOrDisjointRangesGiveZeroNotThePlaceOfContact) {
    EXPECT_EQ(TimeRange(0, 0), TimeRange(0, 10).intersection(TimeRange(10, 5)));
    EXPECT_EQ(TimeRange(0, 0), TimeRange(10, 5).intersection(TimeRange(0, 10)));
    EXPECT_EQ(TimeRange(0, 0), TimeRange(20, 5).intersection(TimeRange(0, 10)));
}

TEST(RangeTest, EmptyRangeInsideAnotherKeepsItsPlace) {
    EXPECT_EQ(TimeRange(5, 0), TimeRange(5, 0).intersection(TimeRange(0, 10)));
}

TEST(RangeTest, TextFormHasNoBlanks) {
    std::ostringstream out;
    out << TimeRange(-3, 12) << Range<double>(1.5, 0.25);
    EXPECT_EQ("(-3,12)(1.5,0.25)", out.str());
}

}  // namespace
}  // namespace ZelmarMediaLib
