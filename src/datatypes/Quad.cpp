#include <ZelmarMediaLib/datatypes/Quad.h>

#include <ZelmarMediaLib/datatypes/VectorUtil.h>

#include <algorithm>

namespace ZelmarMediaLib {

Quad::Quad() = default;

Quad::Quad(Point const& p0, Point const& p1, Point const& p2, Point const& p3) : points_{p0, p1, p2, p3} {}

Quad::Quad(Rect<double> const& rect)
    : points_{Point(rect.x, rect.y, 0.0), Point(rect.x, rect.y + rect.height, 0.0),
              Point(rect.x + rect.width, rect.y + rect.height, 0.0), Point(rect.x + rect.width, rect.y, 0.0)} {}

std::string Quad::description() const {
    return std::string();
}

// A NaN coordinate loses every comparison, so it comes out only when it belongs to point 0.
double Quad::minX() const {
    return std::min({points_[0].x, points_[1].x, points_[2].x, points_[3].x});
}

double Quad::maxX() const {
    return std::max({points_[0].x, points_[1].x, points_[2].x, points_[3].x});
}

double Quad::minY() const {
    return std::min({points_[0].y, points_[1].y, points_[2].y, points_[3].y});
}

double Quad::maxY() const {
    return std::max({points_[0].y, points_[1].y, points_[2].y, points_[3].y});
}

Point Quad::leftMid() const {
    return VectorUtil::midPoint(points_[0], points_[1]);
}

Point Quad::topMid() const {
    return VectorUtil::midPoint(points_[1], points_[2]);
}

Point Quad::rightMid() const {
    return VectorUtil::midPoint(points_[2], points_[3]);
}

Point Quad::bottomMid() const {
    return VectorUtil::midPoint(points_[3], points_[0]);
}

std::ostream& operator<<(std::ostream& out, Quad const& quad) {
    return out << quad[0] << ' ' << quad[1] << ' ' << quad[2] << ' ' << quad[3];
}

}  // namespace ZelmarMediaLib
