#pragma once
// Four points in order along an outline: a rectangle after a transform, as the hit tester sees it.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Point.h>
#include <ZelmarMediaLib/datatypes/Rect.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

#include <ostream>
#include <string>

namespace ZelmarMediaLib {

class ZML_EXPORT Quad : public ZelmarObject {
public:
    Quad();
    Quad(Point const& p0, Point const& p1, Point const& p2, Point const& p3);
    // Corners at z = 0 in the order (x, y), (x, y + height), (x + width, y + height), (x + width, y).
    explicit Quad(Rect<double> const& rect);

    std::string description() const override;

    // No bounds test: an index outside 0 to 3 is undefined.
    Point const& operator[](int index) const { return points_[index]; }
    void setAt(int index, Point const& point) { points_[index] = point; }

    double minX() const;
    double maxX() const;
    double minY() const;
    double maxY() const;

    Point leftMid() const;
    Point topMid() const;
    Point rightMid() const;
    Point bottomMid() const;

private:
    Point points_[4];
};

// Writes the four points in their own form, separated by one blank.
ZML_EXPORT std::ostream& operator<<(std::ostream& out, Quad const& quad);

}  // namespace ZelmarMediaLib
