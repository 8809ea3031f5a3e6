#pragma once
// A point or a vector in three dimensions; the library uses the one type for both.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

#include <istream>
#include <ostream>
#include <string>

namespace ZelmarMediaLib {

class ZML_EXPORT Point : public ZelmarObject {
public:
    Point() : x(0.0), y(0.0), z(0.0) {}
    Point(double xValue, double yValue, double zValue) : x(xValue), y(yValue), z(zValue) {}
    // Reads three doubles: x, y, z.
    explicit Point(double const* xyz) : x(xyz[0]), y(xyz[1]), z(xyz[2]) {}

    std::string description() const override;

    Point operator+(Point const& other) const { return Point(x + other.x, y + other.y, z + other.z); }
    Point operator-(Point const& other) const { return Point(x - other.x, y - other.y, z - other.z); }
    Point operator*(double factor) const { return Point(x * factor, y * factor, z * factor); }
    Point operator/(double divisor) const { return Point(x / divisor, y / divisor, z / divisor); }

    // Componentwise, so a point with a NaN component equals nothing, not even itself.
    bool operator==(Point const& other) const { return x == other.x && y == other.y && z == other.z; }
    bool operator!=(Point const& other) const { return !(*this == other); }

    double x;
    double y;
    double z;
};

// Writes (x,y,z).
ZML_EXPORT std::ostream& operator<<(std::ostream& out, Point const& point);
// Reads back the written form: a bracket, then each number followed by one character.
// The separators are taken as they come and are not checked.
ZML_EXPORT std::istream& operator>>(std::istream& in, Point& point);

}  // namespace ZelmarMediaLib
