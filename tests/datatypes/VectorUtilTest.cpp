#include <ZelmarMediaLib/datatypes/VectorUtil.h>

#include <gtest/gtest.h>

#include <cmath>

using namespace ZelmarMediaLib;
using namespace ZelmarMediaLib::VectorUtil;

TEST(VectorArithmeticTest, ProductsLengthsAndNormalsWithNaNForZeroLength) {
    EXPECT_EQ(Point(-3, 6, -3), crossProduct(Point(1, 2, 3), Point(4, 5, 6)));
    EXPECT_EQ(Point(3, 2, 1), createVector(Point(1, 1, 1), Point(4, 3, 2)));
    EXPECT_EQ(Point(0, 0, -1), computeNormal(Point(0, 2, 0), Point(2, 0, 0)));
    EXPECT_EQ(Point(0, 0, 1), computeNormal(Quad(Rect<double>(0, 0, 5, 5))));
    EXPECT_TRUE(std::isnan(computeNormal(Point(1, 0, 0), Point(2, 0, 0)).z));
}

// z is ignored, and the turn test is strict with no special case for contact: collinear overlap
// is no crossing, and a touching end point counts or not by the direction of the other segment.
TEST(SegmentTest, CrossingFollowsTheStrictTurnTest) {
    EXPECT_TRUE(linesIntersect2D(Point(0, 0, -5), Point(2, 2, -5), Point(0, 2, 5), Point(2, 0, 5)));
    EXPECT_FALSE(linesIntersect2D(Point(0, 0, 0), Point(1, 1, 0), Point(3, 0, 0), Point(0, 3, 0)));
    EXPECT_FALSE(linesIntersect2D(Point(0, 0, 0), Point(2, 0, 0), Point(1, 0, 0), Point(3, 0, 0)));
    EXPECT_TRUE(linesIntersect2D(Point(1, 0, 0), Point(1, 1, 0), Point(0, 0, 0), Point(2, 0, 0)));
    EXPECT_FALSE(linesIntersect2D(Point(1, 0, 0), Point(1, 1, 0), Point(2, 0, 0), Point(0, 0, 0)));
}

class QuadGeometryTest : public ::testing::Test {
protected:
    // Quad(Rect) runs up, then across: clockwise with y pointing up.
    Quad const clockwise{Rect<double>(0, 0, 10, 10)};
    Quad const counterClockwise{Point(0, 0, 0), Point(10, 0, 0), Point(10, 10, 0), Point(0, 10, 0)};
    Quad const overlapping{Rect<double>(5, 5, 10, 10)};
    Quad const inner{Rect<double>(2, 2, 1, 1)};
    Quad const apart{Rect<double>(20, 20, 5, 5)};
};

TEST_F(QuadGeometryTest, ContainsInteriorPointsOfEitherWinding) {
    EXPECT_TRUE(quadContainsPoint(clockwise, Point(5, 5, 100)));
    EXPECT_TRUE(quadContainsPoint(counterClockwise, Point(5, 5, 0)));
    EXPECT_FALSE(quadContainsPoint(clockwise, Point(11, 5, 0)));
    EXPECT_FALSE(quadContainsPoint(clockwise, Point(std::nan(""), 5, 0)));
}

// A 0 on the first edge counts as the clockwise sign, so only there can an edge be inside.
TEST_F(QuadGeometryTest, PointOnAnEdgeIsOutsideExceptOnFirstEdgeOfClockwiseQuad) {
    EXPECT_FALSE(quadContainsPoint(clockwise, Point(5, 10, 0)));
    EXPECT_FALSE(quadContainsPoint(clockwise, Point(10, 5, 0)));
    EXPECT_FALSE(quadContainsPoint(clockwise, Point(5, 0, 0)));
    EXPECT_TRUE(quadContainsPoint(clockwise, Point(0, 5, 0)));
    EXPECT_FALSE(quadContainsPoint(counterClockwise, Point(5, 0, 0)));
}

// The name promises all corners; the behaviour is any one corner, and it is kept.
TEST_F(QuadGeometryTest, QuadInsideOfQuadNeedsOnlyOneCorner) {
    EXPECT_TRUE(quadInsideOfQuad(overlapping, clockwise));
    EXPECT_TRUE(quadInsideOfQuad(inner, clockwise));
    EXPECT_FALSE(quadInsideOfQuad(clockwise, inner));
    EXPECT_FALSE(quadInsideOfQuad(apart, clockwise));
}

TEST_F(QuadGeometryTest, QuadsIntersectBySidesOrByNesting) {
    Quad const wide(Rect<double>(-5, 4, 20, 2));
    Quad const tall(Rect<double>(4, -5, 2, 20));
    EXPECT_TRUE(quadsIntersect2D(wide, tall));
    EXPECT_TRUE(quadsIntersect2D(inner, clockwise));
    EXPECT_TRUE(quadsIntersect2D(clockwise, inner));
    EXPECT_FALSE(quadsIntersect2D(clockwise, apart));
}

// Neither a point behind the origin nor a parallel ray is refused.
TEST_F(QuadGeometryTest, RayMeetsThePlaneOfTheQuad) {
    Quad const raised(Point(0, 0, 5), Point(0, 1, 5), Point(1, 1, 5), Point(1, 0, 5));
    EXPECT_EQ(Point(3, 4, 5), intersectionOfRayWithPlane(Point(1, 2, 0), Point(2, 2, 5), raised));
    EXPECT_EQ(Point(1, 2, 5), intersectionOfRayWithPlane(Point(1, 2, 10), Point(0, 0, 2), raised));
    EXPECT_FALSE(std::isfinite(intersectionOfRayWithPlane(Point(1, 2, 0), Point(1, 0, 0), raised).x));
}
