#pragma once
// A 4 by 4 homogeneous transform, row-major, applied to column vectors on its right; angles in radians.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Point.h>
#include <ZelmarMediaLib/datatypes/Quad.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

#include <ostream>
#include <string>
#include <utility>

namespace ZelmarMediaLib {

class ZML_EXPORT TransformMatrix : public ZelmarObject {
public:
    // The identity.
    TransformMatrix();
    // Sixteen numbers in row-major order.
    explicit TransformMatrix(double const* entries);

    std::string description() const override;

    // No bounds check on either index.
    double& at(int row, int column) { return m_[row][column]; }
    double at(int row, int column) const { return m_[row][column]; }
    double& operator()(int row, int column) { return m_[row][column]; }
    double operator()(int row, int column) const { return m_[row][column]; }

    // All sixteen entries equal; a NaN entry makes a matrix unequal even to itself.
    bool operator==(TransformMatrix const& other) const;
    bool operator!=(TransformMatrix const& other) const { return !(*this == other); }

    TransformMatrix operator*(double factor) const;
    TransformMatrix& operator*=(double factor);
    TransformMatrix operator+(TransformMatrix const& other) const;
    TransformMatrix& operator+=(TransformMatrix const& other);
    TransformMatrix& operator-=(TransformMatrix const& other);

    // With the perspective division by the fourth row's sum; a sum of 0 is not tested.
    Point operator*(Point const& point) const;
    Quad operator*(Quad const& quad) const;

    // this = this * other: other acts on a point first.
    void append(TransformMatrix const& other);
    // this = other * this: other acts on a point last.
    void prepend(TransformMatrix const& other);

    double determinant() const;

    // Defined here so that the decomposition and the inverse, which run them in loops, can inline
    // them: in a shared library an out-of-line member may be interposed and is called as such.
    void rowOpMultiply(int row, double factor) {
        for (double& entry : m_[row])
            entry *= factor;
    }
    // row[destination] += factor * row[source]
    void rowOpAddRow(int destination, int source, double factor) {
        for (int column = 0; column < 4; ++column)
            m_[destination][column] += factor * m_[source][column];
    }
    void rowOpSwapRow(int a, int b) {
        for (int column = 0; column < 4; ++column)
            std::swap(m_[a][column], m_[b][column]);
    }
    // Divides each entry by the entry of row 3 in its column, so that row 3 becomes all ones.
    // A 0 in row 3 gives infinities or NaN in its column.
    void normalizeColumnVectors();

    // Doolittle's form without pivoting: L has ones on its diagonal, U is upper triangular,
    // and this = L * U as long as no pivot is 0. A pivot of 0 is skipped, not swapped away.
    void luDecomposition(TransformMatrix& lower, TransformMatrix& upper) const;
    // U^-1 * L^-1 from the decomposition. A singular matrix raises nothing; the result is then
    // simply not an inverse. Nor is it for a regular matrix with a pivot of exactly 0, such as
    // one that swaps x and y, since no rows are exchanged.
    TransformMatrix inverse() const;

    static TransformMatrix translate(double x, double y, double z);
    static TransformMatrix scale(double x, double y, double z);
    static TransformMatrix rotateAroundX(double angle);
    static TransformMatrix rotateAroundY(double angle);
    static TransformMatrix rotateAroundZ(double angle);
    // Each angle enters as abs(tan), so a negative angle shears as the positive one, and an
    // angle of pi / 2 gives an infinite entry.
    static TransformMatrix shear(double x, double y);
    // x and y of a point go to where the line from eye through it meets the plane z = distance.
    static TransformMatrix perspectiveProjection(Point const& eye, double distance);
    static TransformMatrix perspectiveProjection(double fieldOfView, double aspect, double zNear, double zFar);
    // Laid out for row vectors, unlike the rest of this class.
    static TransformMatrix perspectiveProjectionLH(double fieldOfView, double aspect, double zNear, double zFar);
    // The last column is the negated eye itself, not the eye projected on the camera's axes.
    static TransformMatrix cameraLookAt(Point const& eye, Point const& center, Point const& up);
    // Laid out for row vectors, unlike the rest of this class.
    static TransformMatrix cameraLookAtLH(Point const& eye, Point const& center, Point const& up);
    // The four corners as columns, each with a 1 below it.
    static TransformMatrix quad(Point const* corners);

private:
    double m_[4][4];
};

// Writes {{m00,m01,m02,m03},{m10,...},{...},{...}}, the form of keyframe values.
ZML_EXPORT std::ostream& operator<<(std::ostream& out, TransformMatrix const& matrix);

}  // namespace ZelmarMediaLib
