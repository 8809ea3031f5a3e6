#include <ZelmarMediaLib/datatypes/GraphicsUtil.h>
#include <ZelmarMediaLib/datatypes/VectorUtil.h>

#include <gtest/gtest.h>

#include <cmath>

using namespace ZelmarMediaLib;

namespace {

double const pi = 3.14159265358979323846;

void expectNear(Point const& expected, Point const& actual, double tolerance = 1e-12) {
    EXPECT_NEAR(0, VectorUtil::length(expected - actual), tolerance) << actual;
}

}  // namespace

class ComponentsTest : public ::testing::Test {
protected:
    TransformMatrix compose() const {
        return GraphicsUtil::calcTransformFromComponents(scale, translation, rotation, shear, anchor);
    }

    double scale[3] = {1, 1, 1};
    double translation[3] = {0, 0, 0};
    double rotation[3] = {0, 0, 0};
    double shear[2] = {0, 0};
    double anchor[3] = {0, 0, 0};
};

TEST_F(ComponentsTest, DefaultsGiveIdentityAndTranslationStandsInLastColumn) {
    EXPECT_EQ(TransformMatrix(), compose());
    translation[0] = 1, translation[1] = 2, translation[2] = 3;
    EXPECT_EQ(TransformMatrix::translate(1, 2, 3), compose());
}

// The anchor is not added back: the object's anchor point lands on the translation.
TEST_F(ComponentsTest, AnchorThenScaleThenRotationThenTranslation) {
    anchor[0] = 1;
    scale[0] = 2, scale[1] = 3;
    rotation[2] = pi / 2;
    translation[0] = 10;
    expectNear(Point(10, 0, 0), compose() * Point(1, 0, 0));
    expectNear(Point(10, 2, 0), compose() * Point(2, 0, 0));
}

TEST_F(ComponentsTest, RotationAboutZThenYThenXThenShear) {
    rotation[0] = pi / 2, rotation[1] = pi / 2;
    expectNear(Point(1, 0, 0), compose() * Point(0, 0, 1));
    rotation[0] = 0, rotation[1] = 0, rotation[2] = pi / 2;
    shear[0] = 0.5;
    expectNear(Point(std::tan(0.5), 1, 0), compose() * Point(1, 0, 0));
}

class ProjectionTest : public ::testing::Test {
protected:
    Rect<int> const viewport{10, 20, 200, 100};
    TransformMatrix const identity;
};

TEST_F(ProjectionTest, ProjectMapsUnitCubeOntoViewportAfterFirstThenSecondMatrix) {
    expectNear(Point(110, 70, 0.5), GraphicsUtil::project(Point(), identity, identity, viewport));
    expectNear(Point(210, 120, 1), GraphicsUtil::project(Point(1, 1, 1), identity, identity, viewport));
    Point const projected = GraphicsUtil::project(Point(), TransformMatrix::translate(1, 0, 0),
                                                  TransformMatrix::scale(0.5, 1, 1), viewport);
    EXPECT_DOUBLE_EQ(160, projected.x);
}

TEST_F(ProjectionTest, UnProjectUndoesProjectAndAcceptsEmptyViewport) {
    TransformMatrix modelView = TransformMatrix::translate(0.5, -1, -8);
    modelView.append(TransformMatrix::rotateAroundY(0.3));
    TransformMatrix const projection = TransformMatrix::perspectiveProjection(pi / 3, 2, 1, 100);
    Point const point(1.5, 2, -0.25);
    Point const projected = GraphicsUtil::project(point, modelView, projection, viewport);
    expectNear(point, GraphicsUtil::unProject(projected, modelView, projection, viewport), 1e-9);
    // An empty viewport divides by zero and reports nothing.
    EXPECT_FALSE(std::isfinite(GraphicsUtil::unProject(Point(1, 1, 0.5), identity, identity, Rect<int>()).x));
}
