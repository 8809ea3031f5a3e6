#pragma once
// A colour as four channels, nominally 0 to 255; nothing clamps them, so sums may run past 255.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

#include <istream>
#include <ostream>

namespace ZelmarMediaLib {

class ZML_EXPORT Color : public ZelmarObject {
public:
    // All four channels 0, which is transparent black, not opaque black.
    Color() : red_(0), green_(0), blue_(0), alpha_(0) {}
    Color(int red, int green, int blue, int alpha) : red_(red), green_(green), blue_(blue), alpha_(alpha) {}

    static Color black() { return Color(0, 0, 0, 255); }
    static Color white() { return Color(255, 255, 255, 255); }

    int red() const { return red_; }
    int green() const { return green_; }
    int blue() const { return blue_; }
    int alpha() const { return alpha_; }

    bool operator==(Color const& other) const {
        return red_ == other.red_ && green_ == other.green_ && blue_ == other.blue_ && alpha_ == other.alpha_;
    }
    bool operator!=(Color const& other) const { return !(*this == other); }

    // Each channel is multiplied as a double and truncated toward zero, so 255 * 0.5 gives 127.
    Color operator*(double factor) const;
    // No clamp: white plus white has 510 in every channel.
    Color operator+(Color const& other) const;

private:
    friend std::istream& operator>>(std::istream& in, Color& color);

    int red_;
    int green_;
    int blue_;
    int alpha_;
};

// Writes (red,green,blue,alpha).
ZML_EXPORT std::ostream& operator<<(std::ostream& out, Color const& color);
// Reads back the written form: a bracket, then each number followed by one character.
// The separators are taken as they come and are not checked.
ZML_EXPORT std::istream& operator>>(std::istream& in, Color& color);

}  // namespace ZelmarMediaLib
