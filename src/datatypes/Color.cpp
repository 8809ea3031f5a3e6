#include <ZelmarMediaLib/datatypes/Color.h>

#include <cmath>
#include <limits>

namespace ZelmarMediaLib {

namespace {

// Converting a double outside the range of int, or NaN, is undefined in C++; such a channel
// gets the value that the processor's own truncating conversion gives, the lowest int.
int truncateToInt(double value) {
    double const truncated = std::trunc(value);
    if (truncated >= std::numeric_limits<int>::min() && truncated <= std::numeric_limits<int>::max())
        return static_cast<int>(truncated);
    return std::numeric_limits<int>::min();
}

}  // namespace

Color Color::operator*(double factor) const {
    return Color(truncateToInt(red_ * factor), truncateToInt(green_ * factor), truncateToInt(blue_ * factor),
                 truncateToInt(alpha_ * factor));
}

Color Color::operator+(Color const& other) const {
    return Color(red_ + other.red_, green_ + other.green_, blue_ + other.blue_, alpha_ + other.alpha_);
}

std::ostream& operator<<(std::ostream& out, Color const& color) {
    return out << '(' << color.red() << ',' << color.green() << ',' << color.blue() << ',' << color.alpha() << ')';
}

std::istream& operator>>(std::istream& in, Color& color) {
    char separator;
    return in >> separator >> color.red_ >> separator >> color.green_ >> separator >> color.blue_ >> separator >>
           color.alpha_ >> separator;
}

}  // namespace ZelmarMediaLib
