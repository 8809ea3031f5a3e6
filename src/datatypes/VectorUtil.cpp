#include <ZelmarMediaLib/datatypes/VectorUtil.h>

#include <cmath>

namespace ZelmarMediaLib {
namespace VectorUtil {

namespace {

// Strictly greater, so three collinear points never turn; z is ignored.
bool ccw(Point const& a, Point const& b, Point const& c) {
    return (c.y - a.y) * (b.x - a.x) > (b.y - a.y) * (c.x - a.x);
}

}  // namespace

Point createVector(Point const& a, Point const& b) {
    return b - a;
}

double length(Point const& v) {
    return std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
}

void normalize(Point& v) {
    v = v / length(v);
}

Point midPoint(Point const& a, Point const& b) {
    return (a + b) * 0.5;
}

double dotProduct(Point const& a, Point const& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

Point crossProduct(Point const& a, Point const& b) {
    return Point(a.y * b.z - b.y * a.z, b.x * a.z - a.x * b.z, a.x * b.y - a.y * b.x);
}

Point computeNormal(Point const& a, Point const& b) {
    Point normal = crossProduct(a, b);
    normalize(normal);
    return normal;
}

Point computeNormal(Quad const& quad) {
    return computeNormal(quad[0] - quad[3], quad[0] - quad[1]);
}

bool linesIntersect2D(Point const& a, Point const& b, Point const& c, Point const& d) {
    return ccw(a, c, d) != ccw(b, c, d) && ccw(a, b, c) != ccw(a, b, d);
}

bool lineIntersectsQuad2D(Point const& a, Point const& b, Quad const& quad) {
    for (int i = 0; i < 4; ++i) {
        if (linesIntersect2D(a, b, quad[i], quad[(i + 1) % 4]))
            return true;
    }
    return false;
}

bool quadContainsPoint(Quad const& quad, Point const& point) {
    // The first edge only picks the winding; an exact 0 there picks the negative one.
    double const sign = crossProduct(quad[1] - quad[0], point - quad[0]).z > 0 ? 1.0 : -1.0;
    for (int i = 1; i < 4; ++i) {
        double const turn = crossProduct(quad[(i + 1) % 4] - quad[i], point - quad[i]).z;
        if (!(sign * turn > 0))
            return false;
    }
    return true;
}

bool quadInsideOfQuad(Quad const& inner, Quad const& outer) {
    for (int i = 0; i < 4; ++i) {
        if (quadContainsPoint(outer, inner[i]))
            return true;
    }
    return false;
}

bool quadsIntersect2D(Quad const& q, Quad const& r) {
    for (int i = 0; i < 4; ++i) {
        if (lineIntersectsQuad2D(q[i], q[(i + 1) % 4], r))
            return true;
    }
    return quadInsideOfQuad(q, r) || quadInsideOfQuad(r, q);
}

Point intersectionOfRayWithPlane(Point const& origin, Point const& direction, Quad const& quad) {
    Point const normal = computeNormal(quad[3] - quad[0], quad[1] - quad[0]);
    double const t = dotProduct(quad[0] - origin, normal) / dotProduct(direction, normal);
    return origin + direction * t;
}

}  // namespace VectorUtil
}  // namespace ZelmarMediaLib
