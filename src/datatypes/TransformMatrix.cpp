#include <ZelmarMediaLib/datatypes/TransformMatrix.h>

#include <ZelmarMediaLib/datatypes/VectorUtil.h>

#include <cmath>
#include <sstream>

namespace ZelmarMediaLib {

namespace {

TransformMatrix zeroMatrix() {
    double const zeros[16] = {};
    return TransformMatrix(zeros);
}

double determinant3(double a, double b, double c, double d, double e, double f, double g, double h, double i) {
    return a * (e * i - f * h) - b * (d * i - f * g) + c * (d * h - e * g);
}

enum class Triangle { Upper, Lower };

// Gauss-Jordan on a triangular matrix: scales each row to a unit diagonal, then clears the
// entries off the diagonal column by column, applying every step to inverse as well. A row
// with a 0 on the diagonal is left unscaled, and the result is then not an inverse.
void reduceTriangular(TransformMatrix& triangular, TransformMatrix& inverse, Triangle triangle) {
    for (int row = 0; row < 4; ++row) {
        double const pivot = triangular(row, row);
        if (pivot != 0.0) {
            triangular.rowOpMultiply(row, 1.0 / pivot);
            inverse.rowOpMultiply(row, 1.0 / pivot);
        }
    }
    auto clear = [&](int row, int column) {
        double const factor = -triangular(row, column);
        triangular.rowOpAddRow(row, column, factor);
        inverse.rowOpAddRow(row, column, factor);
    };
    if (triangle == Triangle::Upper) {
        for (int column = 3; column >= 1; --column) {
            for (int row = 0; row < column; ++row)
                clear(row, column);
        }
    } else {
        for (int column = 0; column <= 2; ++column) {
            for (int row = column + 1; row < 4; ++row)
                clear(row, column);
        }
    }
}

// Into a fresh matrix, so that append and prepend may pass *this as an operand.
TransformMatrix product(TransformMatrix const& a, TransformMatrix const& b) {
    TransformMatrix result = zeroMatrix();
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            double sum = 0.0;
            for (int k = 0; k < 4; ++k)
                sum += a(row, k) * b(k, column);
            result(row, column) = sum;
        }
    }
    return result;
}

void writeEntries(std::ostream& out, TransformMatrix const& matrix, char const* separator) {
    out << '{';
    for (int row = 0; row < 4; ++row) {
        if (row > 0)
            out << ',';
        out << '{';
        for (int column = 0; column < 4; ++column) {
            if (column > 0)
                out << separator;
            out << matrix(row, column);
        }
        out << '}';
    }
    out << '}';
}

// sqrt(sin^2 / (1 - sin^2)), which is abs(tan): the sign of the angle is lost.
double shearFactor(double angle) {
    double const sine = std::sin(angle);
    return std::sqrt(sine * sine / (1.0 - sine * sine));
}

}  // namespace

TransformMatrix::TransformMatrix() {
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column)
            m_[row][column] = row == column ? 1.0 : 0.0;
    }
}

TransformMatrix::TransformMatrix(double const* entries) {
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column)
            m_[row][column] = entries[row * 4 + column];
    }
}

std::string TransformMatrix::description() const {
    std::ostringstream out;
    writeEntries(out, *this, ", ");
    return out.str();
}

bool TransformMatrix::operator==(TransformMatrix const& other) const {
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            if (!(m_[row][column] == other.m_[row][column]))
                return false;
        }
    }
    return true;
}

TransformMatrix TransformMatrix::operator*(double factor) const {
    TransformMatrix result = *this;
    result *= factor;
    return result;
}

TransformMatrix& TransformMatrix::operator*=(double factor) {
    for (auto& row : m_) {
        for (double& entry : row)
            entry *= factor;
    }
    return *this;
}

TransformMatrix TransformMatrix::operator+(TransformMatrix const& other) const {
    TransformMatrix result = *this;
    result += other;
    return result;
}

TransformMatrix& TransformMatrix::operator+=(TransformMatrix const& other) {
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column)
            m_[row][column] += other.m_[row][column];
    }
    return *this;
}

TransformMatrix& TransformMatrix::operator-=(TransformMatrix const& other) {
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column)
            m_[row][column] -= other.m_[row][column];
    }
    return *this;
}

Point TransformMatrix::operator*(Point const& point) const {
    double const w = m_[3][0] * point.x + m_[3][1] * point.y + m_[3][2] * point.z + m_[3][3];
    return Point((m_[0][0] * point.x + m_[0][1] * point.y + m_[0][2] * point.z + m_[0][3]) / w,
                 (m_[1][0] * point.x + m_[1][1] * point.y + m_[1][2] * point.z + m_[1][3]) / w,
                 (m_[2][0] * point.x + m_[2][1] * point.y + m_[2][2] * point.z + m_[2][3]) / w);
}

Quad TransformMatrix::operator*(Quad const& quad) const {
    return Quad(*this * quad[0], *this * quad[1], *this * quad[2], *this * quad[3]);
}

void TransformMatrix::append(TransformMatrix const& other) {
    *this = product(*this, other);
}

void TransformMatrix::prepend(TransformMatrix const& other) {
    *this = product(other, *this);
}

double TransformMatrix::determinant() const {
    double const (&m)[4][4] = m_;
    return m[0][0] * determinant3(m[1][1], m[1][2], m[1][3], m[2][1], m[2][2], m[2][3], m[3][1], m[3][2], m[3][3]) -
           m[0][1] * determinant3(m[1][0], m[1][2], m[1][3], m[2][0], m[2][2], m[2][3], m[3][0], m[3][2], m[3][3]) +
           m[0][2] * determinant3(m[1][0], m[1][1], m[1][3], m[2][0], m[2][1], m[2][3], m[3][0], m[3][1], m[3][3]) -
           m[0][3] * determinant3(m[1][0], m[1][1], m[1][2], m[2][0], m[2][1], m[2][2], m[3][0], m[3][1], m[3][2]);
}

void TransformMatrix::normalizeColumnVectors() {
    // Row 3 comes last in row-major order, so the other rows are divided by its entries
    // before it divides itself.
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column)
            m_[row][column] /= m_[3][column];
    }
}

void TransformMatrix::luDecomposition(TransformMatrix& lower, TransformMatrix& upper) const {
    upper = *this;
    lower = TransformMatrix();
    for (int i = 0; i < 3; ++i) {
        double const pivot = upper(i, i);
        lower(i, i) = pivot != 0.0 ? pivot : 1.0;
        for (int j = i + 1; j < 4; ++j) {
            double const factor = pivot != 0.0 ? -upper(j, i) / pivot : 0.0;
            lower(j, i) = upper(j, i);
            upper.rowOpAddRow(j, i, factor);
        }
        // Column i of lower held the pivot and the entries below it; dividing by the pivot
        // leaves the multipliers with a 1 on the diagonal.
        double const reciprocal = 1.0 / lower(i, i);
        for (int k = i; k < 4; ++k)
            lower(k, i) *= reciprocal;
    }
}

TransformMatrix TransformMatrix::inverse() const {
    TransformMatrix lower;
    TransformMatrix upper;
    luDecomposition(lower, upper);
    TransformMatrix upperInverse;
    reduceTriangular(upper, upperInverse, Triangle::Upper);
    TransformMatrix lowerInverse;
    reduceTriangular(lower, lowerInverse, Triangle::Lower);
    return product(upperInverse, lowerInverse);
}

TransformMatrix TransformMatrix::translate(double x, double y, double z) {
    TransformMatrix result;
    result(0, 3) = x;
    result(1, 3) = y;
    result(2, 3) = z;
    return result;
}

TransformMatrix TransformMatrix::scale(double x, double y, double z) {
    TransformMatrix result;
    result(0, 0) = x;
    result(1, 1) = y;
    result(2, 2) = z;
    return result;
}

TransformMatrix TransformMatrix::rotateAroundX(double angle) {
    TransformMatrix result;
    result(1, 1) = std::cos(angle);
    result(1, 2) = -std::sin(angle);
    result(2, 1) = std::sin(angle);
    result(2, 2) = std::cos(angle);
    return result;
}

TransformMatrix TransformMatrix::rotateAroundY(double angle) {
    TransformMatrix result;
    result(0, 0) = std::cos(angle);
    result(0, 2) = std::sin(angle);
    result(2, 0) = -std::sin(angle);
    result(2, 2) = std::cos(angle);
    return result;
}

TransformMatrix TransformMatrix::rotateAroundZ(double angle) {
    TransformMatrix result;
    result(0, 0) = std::cos(angle);
    result(0, 1) = -std::sin(angle);
    result(1, 0) = std::sin(angle);
    result(1, 1) = std::cos(angle);
    return result;
}

TransformMatrix TransformMatrix::shear(double x, double y) {
    double const a = shearFactor(x);
    double const b = shearFactor(y);
    TransformMatrix result;
    result(0, 0) = a * b + 1.0;
    result(0, 1) = a;
    result(1, 0) = b;
    return result;
}

TransformMatrix TransformMatrix::perspectiveProjection(Point const& eye, double distance) {
    double const k = eye.z - distance;
    TransformMatrix result;
    result(0, 2) = -eye.x / k;
    result(0, 3) = distance * eye.x / k;
    result(1, 2) = -eye.y / k;
    result(1, 3) = distance * eye.y / k;
    result(3, 2) = -1.0 / k;
    result(3, 3) = eye.z / k;
    return result;
}

TransformMatrix TransformMatrix::perspectiveProjection(double fieldOfView, double aspect, double zNear, double zFar) {
    double const f = 1.0 / std::tan(0.5 * fieldOfView);
    TransformMatrix result = zeroMatrix();
    result(0, 0) = f / aspect;
    result(1, 1) = f;
    result(2, 2) = (zFar + zNear) / (zNear - zFar);
    result(2, 3) = zNear * (zFar + zFar) / (zNear - zFar);
    result(3, 2) = -1.0;
    return result;
}

TransformMatrix TransformMatrix::perspectiveProjectionLH(double fieldOfView, double aspect, double zNear,
                                                         double zFar) {
    double const f = 1.0 / std::tan(0.5 * fieldOfView);
    TransformMatrix result = zeroMatrix();
    result(0, 0) = f / aspect;
    result(1, 1) = f;
    result(2, 2) = zFar / (zFar - zNear);
    result(2, 3) = 1.0;
    result(3, 2) = -(zFar * zNear) / (zFar - zNear);
    return result;
}

TransformMatrix TransformMatrix::cameraLookAt(Point const& eye, Point const& center, Point const& up) {
    Point forward = center - eye;
    VectorUtil::normalize(forward);
    Point upward = up;
    VectorUtil::normalize(upward);
    Point const side = VectorUtil::crossProduct(forward, upward);
    Point const cameraUp = VectorUtil::crossProduct(side, forward);
    double const entries[16] = {side.x,     side.y,     side.z,     -eye.x,  //
                                cameraUp.x, cameraUp.y, cameraUp.z, -eye.y,  //
                                -forward.x, -forward.y, -forward.z, -eye.z,  //
                                0.0,        0.0,        0.0,        1.0};
    return TransformMatrix(entries);
}

TransformMatrix TransformMatrix::cameraLookAtLH(Point const& eye, Point const& center, Point const& up) {
    Point zAxis = center - eye;
    VectorUtil::normalize(zAxis);
    Point xAxis = VectorUtil::crossProduct(up, zAxis);
    VectorUtil::normalize(xAxis);
    Point const yAxis = VectorUtil::crossProduct(zAxis, xAxis);
    double const xEye = -VectorUtil::dotProduct(xAxis, eye);
    double const yEye = -VectorUtil::dotProduct(yAxis, eye);
    double const zEye = -VectorUtil::dotProduct(zAxis, eye);
    double const entries[16] = {xAxis.x, yAxis.x, zAxis.x, 0.0,  //
                                xAxis.y, yAxis.y, zAxis.y, 0.0,  //
                                xAxis.z, yAxis.z, zAxis.z, 0.0,  //
                                xEye,    yEye,    zEye,    1.0};
    return TransformMatrix(entries);
}

TransformMatrix TransformMatrix::quad(Point const* corners) {
    TransformMatrix result;
    for (int column = 0; column < 4; ++column) {
        result(0, column) = corners[column].x;
        result(1, column) = corners[column].y;
        result(2, column) = corners[column].z;
        result(3, column) = 1.0;
    }
    return result;
}

std::ostream& operator<<(std::ostream& out, TransformMatrix const& matrix) {
    writeEntries(out, matrix, ",");
    return out;
}

}  // namespace ZelmarMediaLib
