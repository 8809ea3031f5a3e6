#include <ZelmarMediaLib/datatypes/TransformMatrix.h>
#include <ZelmarMediaLib/datatypes/VectorUtil.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>

using namespace ZelmarMediaLib;

namespace {

double const pi = 3.14159265358979323846;

// Determinant -45. The 0 at m11 becomes a pivot only by elimination; the 0 at m30 is a divisor
// for normalizeColumnVectors.
double const generalEntries[16] = {2, -1, 3, 5, 4, 0, 1, -2, 1, 3, -2, 0, 0, 2, 1, 7};

void expectNear(TransformMatrix const& expected, TransformMatrix const& actual) {
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column)
            EXPECT_NEAR(expected(row, column), actual(row, column), 1e-12) << "at " << row << "," << column;
    }
}

void expectNear(Point const& expected, Point const& actual) {
    EXPECT_NEAR(0, VectorUtil::length(expected - actual), 1e-12) << actual;
}

TransformMatrix product(TransformMatrix a, TransformMatrix const& b) {
    a.append(b);
    return a;
}

}  // namespace

TEST(TransformMatrixTest, AppendedMatrixActsOnThePointFirst) {
    TransformMatrix matrix = TransformMatrix::translate(1, 2, 3);
    matrix.append(TransformMatrix::scale(2, 2, 2));
    EXPECT_EQ(Point(3, 2, 3), matrix * Point(1, 0, 0));
    matrix.prepend(TransformMatrix::scale(1, 1, -1));
    EXPECT_EQ(Point(3, 2, -3), matrix * Point(1, 0, 0));
    EXPECT_EQ(-3, matrix(2, 3));
}

TEST(TransformMatrixTest, PointsAreDividedByTheFourthRowSum) {
    TransformMatrix matrix;
    matrix(3, 0) = 1;
    EXPECT_EQ(Point(0.5, 1, 1.5), matrix * Point(1, 2, 3));
    EXPECT_EQ(Point(3, 0, 0), (TransformMatrix::translate(1, 0, 0) * Quad(Rect<double>(0, 0, 2, 3)))[3]);
}

TEST(TransformMatrixTest, RotationsAreCounterClockwiseAboutEachAxis) {
    expectNear(Point(0, 1, 0), TransformMatrix::rotateAroundZ(pi / 2) * Point(1, 0, 0));
    expectNear(Point(0, 0, 1), TransformMatrix::rotateAroundX(pi / 2) * Point(0, 1, 0));
    expectNear(Point(1, 0, 0), TransformMatrix::rotateAroundY(pi / 2) * Point(0, 0, 1));
}

TEST(TransformMatrixTest, ShearLosesTheSignOfItsAngle) {
    TransformMatrix const sheared = TransformMatrix::shear(0.3, 0.2);
    EXPECT_EQ(sheared, TransformMatrix::shear(-0.3, 0.2));
    EXPECT_EQ(sheared, TransformMatrix::shear(0.3, -0.2));
    double const a = std::tan(0.3), b = std::tan(0.2);
    expectNear(Point(a * b + 1 + a, b + 1, 0), sheared * Point(1, 1, 0));
    EXPECT_TRUE(std::isinf(TransformMatrix::shear(pi / 2, 0.2)(0, 1)));
}

TEST(TransformMatrixTest, NaNEntryMakesMatrixUnequalEvenToItself) {
    TransformMatrix matrix;
    matrix(3, 2) = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(matrix == matrix);
}

TEST(TransformMatrixTest, DeterminantFollowsRowOperations) {
    TransformMatrix matrix(generalEntries);
    EXPECT_DOUBLE_EQ(-45, matrix.determinant());
    matrix.rowOpSwapRow(0, 3);
    EXPECT_DOUBLE_EQ(45, matrix.determinant());
    matrix.rowOpAddRow(1, 0, 2);
    EXPECT_EQ(4, matrix(1, 1));
    matrix.rowOpMultiply(2, -2);
    EXPECT_DOUBLE_EQ(-90, matrix.determinant());
}

// Row 3 divides the others before itself; a 0 there spreads infinities and NaN in its column.
TEST(TransformMatrixTest, NormalizeColumnVectorsDividesByLastRow) {
    TransformMatrix matrix(generalEntries);
    matrix.normalizeColumnVectors();
    EXPECT_EQ(-0.5, matrix(0, 1));
    EXPECT_EQ(1, matrix(3, 1));
    EXPECT_TRUE(std::isinf(matrix(0, 0)));
    EXPECT_TRUE(std::isnan(matrix(3, 0)));
}

TEST(TransformMatrixTest, InverseUndoesProductsOfTranslateRotateAndScaleAndSingularGivesNoError) {
    TransformMatrix matrix = TransformMatrix::translate(3, -4, 12.5);
    matrix.append(TransformMatrix::rotateAroundZ(0.7));
    matrix.append(TransformMatrix::rotateAroundX(-0.4));
    matrix.append(TransformMatrix::scale(2, 0.5, 3));
    matrix.append(TransformMatrix::rotateAroundY(1.1));
    for (TransformMatrix const& m : {matrix, TransformMatrix(generalEntries)}) {
        expectNear(TransformMatrix(), product(m, m.inverse()));
        expectNear(TransformMatrix(), product(m.inverse(), m));
    }
    double const zeros[16] = {};
    EXPECT_NO_THROW(TransformMatrix(zeros).inverse());
    EXPECT_NO_THROW(TransformMatrix::scale(1, 0, 1).inverse());
}

TEST(TransformMatrixProjectionTest, PerspectiveMapsNearAndFarPlanesToMinusOneAndOne) {
    TransformMatrix const projection = TransformMatrix::perspectiveProjection(pi / 2, 2, 1, 3);
    expectNear(Point(0.5, 1, -1), projection * Point(1, 1, -1));
    expectNear(Point(0.5, 1, 1), projection * Point(3, 3, -3));
    Point const fromEye = TransformMatrix::perspectiveProjection(Point(0, 0, 10), 0) * Point(1, -1, 5);
    EXPECT_EQ(2, fromEye.x);
    EXPECT_EQ(-2, fromEye.y);
}

// Laid out for row vectors, so the translation stands in the last row.
TEST(TransformMatrixProjectionTest, LeftHandedFormsAreForRowVectors) {
    EXPECT_EQ(1, TransformMatrix::perspectiveProjectionLH(pi / 2, 1, 1, 3)(2, 3));
    TransformMatrix const camera = TransformMatrix::cameraLookAtLH(Point(0, 0, -5), Point(), Point(0, 1, 0));
    double const expected[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 5, 1};
    EXPECT_EQ(TransformMatrix(expected), camera);
}

// Kept as it is: the eye is not projected on the camera's axes, so a turned camera is off.
TEST(TransformMatrixProjectionTest, CameraLookAtPutsThePlainNegatedEyeInLastColumn) {
    TransformMatrix const camera = TransformMatrix::cameraLookAt(Point(1, 2, 3), Point(2, 2, 3), Point(0, 5, 0));
    double const expected[16] = {0, 0, 1, -1, 0, 1, 0, -2, -1, 0, 0, -3, 0, 0, 0, 1};
    EXPECT_EQ(TransformMatrix(expected), camera);
}

TEST(TransformMatrixTextTest, StreamFormAndDescription) {
    TransformMatrix const matrix = TransformMatrix::translate(0.5, -2, 1e-7);
    std::ostringstream out;
    out << matrix;
    EXPECT_EQ("{{1,0,0,0.5},{0,1,0,-2},{0,0,1,1e-07},{0,0,0,1}}", out.str());
    EXPECT_EQ("{{1, 0, 0, 0.5},{0, 1, 0, -2},{0, 0, 1, 1e-07},{0, 0, 0, 1}}", matrix.description());
}
