#pragma once
// The place of a sound: three floats, (0, 0, 1) by default.
#include <ZelmarMediaLib/datatypes/Export.h>

#include <iosfwd>

namespace ZelmarMediaLib {

// A plain value with no base class.
class ZML_EXPORT AudioPosition {
public:
    AudioPosition() : x(0.0f), y(0.0f), z(1.0f) {}
    AudioPosition(float xValue, float yValue, float zValue) : x(xValue), y(yValue), z(zValue) {}

    // A NaN in any field makes positions unequal.
    bool operator==(AudioPosition const& other) const { return x == other.x && y == other.y && z == other.z; }
    bool operator!=(AudioPosition const& other) const { return !(*this == other); }
    AudioPosition operator+(AudioPosition const& other) const {
        return AudioPosition(x + other.x, y + other.y, z + other.z);
    }
    // Each component is widened, scaled and narrowed back.
    AudioPosition operator*(double factor) const {
        return AudioPosition(static_cast<float>(x * factor), static_cast<float>(y * factor),
                             static_cast<float>(z * factor));
    }

    float x;
    float y;
    float z;
};

// (x,y,z) in the stream's default number format.
ZML_EXPORT std::ostream& operator<<(std::ostream& out, AudioPosition const& position);

}  // namespace ZelmarMediaLib
