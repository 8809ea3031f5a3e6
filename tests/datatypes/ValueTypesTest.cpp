#include <ZelmarMediaLib/datatypes/Color.h>
#include <ZelmarMediaLib/datatypes/Pair.h>
#include <ZelmarMediaLib/datatypes/Point.h>
#include <ZelmarMediaLib/datatypes/Quad.h>
#include <ZelmarMediaLib/datatypes/Rect.h>

#include <gtest/gtest.h>

#include <limits>
#include <sstream>
#include <string>

using namespace ZelmarMediaLib;

namespace {

template <class T>
std::string text(T const& value) {
    std::ostringstream out;
    out << value;
    return out.str();
}

}  // namespace

TEST(ValueTextTest, EachTypeWritesItsFieldsInOrder) {
    EXPECT_EQ("(1,-2,0,-4)", text(Rect<int>(1, -2, 0, -4)));
    EXPECT_EQ("(1,-2.5,1e-07)", text(Point(1, -2.5, 1e-7)));
    EXPECT_EQ("(0,0,0) (0,0,0) (1,2,3) (0,0,0)", text(Quad(Point(), Point(), Point(1, 2, 3), Point())));
    EXPECT_EQ("(200,-1,3,255)", text(Color(200, -1, 3, 255)));
    EXPECT_EQ("(3,4)", text(Pair<int>(3, 4)));
}

TEST(ValueTextTest, PointAndColorReadBackWithoutCheckingSeparators) {
    Point point;
    Color color;
    std::istringstream in("(1,-2.5,3) [4;5|6] (200,-1,3,255)");
    in >> point;
    EXPECT_EQ(Point(1, -2.5, 3), point);
    in >> point >> color;
    EXPECT_EQ(Point(4, 5, 6), point);
    EXPECT_EQ(Color(200, -1, 3, 255), color);
    EXPECT_TRUE(in);
}

TEST(PointTest, NaNComponentMakesPointUnequalEvenToItself) {
    Point const withNaN(0, std::numeric_limits<double>::quiet_NaN(), 0);
    EXPECT_FALSE(withNaN == withNaN);
    EXPECT_TRUE(withNaN != withNaN);
}

TEST(QuadTest, RectCornersRunUpThenAcross) {
    Quad quad(Rect<double>(1, 2, 10, 20));
    EXPECT_EQ(Point(1, 2, 0), quad[0]);
    EXPECT_EQ(Point(1, 22, 0), quad[1]);
    EXPECT_EQ(Point(11, 22, 0), quad[2]);
    EXPECT_EQ(Point(11, 2, 0), quad[3]);
    EXPECT_EQ(Point(1, 12, 0), quad.leftMid());
    EXPECT_EQ(Point(6, 22, 0), quad.topMid());
    EXPECT_EQ(Point(11, 12, 0), quad.rightMid());
    EXPECT_EQ(Point(6, 2, 0), quad.bottomMid());
    quad.setAt(3, Point(-4, 30, 0));
    EXPECT_EQ(-4, quad.minX());
    EXPECT_EQ(30, quad.maxY());
}

TEST(ColorTest, DefaultIsTransparentBlack) {
    EXPECT_EQ(Color(0, 0, 0, 0), Color());
    EXPECT_EQ(Color(0, 0, 0, 255), Color::black());
    EXPECT_EQ(Color(255, 255, 255, 255), Color::white());
}

TEST(ColorTest, ScalingTruncatesTowardZeroAndSumsAreNotClamped) {
    EXPECT_EQ(Color(100, 50, 25, 127), Color(200, 100, 50, 255) * 0.5);
    EXPECT_EQ(Color(-1, 1, 0, 0), Color(-3, 3, 1, 0) * 0.5);
    EXPECT_EQ(Color(510, 510, 510, 510), Color::white() + Color::white());
    // Converting a double beyond the range of int is undefined; such a channel gets the lowest int.
    EXPECT_EQ(std::numeric_limits<int>::min(), (Color(1, 0, 0, 0) * std::numeric_limits<double>::quiet_NaN()).red());
}
