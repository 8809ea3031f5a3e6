#pragma once
// An axis-aligned rectangle by corner and size; never normalised, so sizes may be zero or negative.
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

#include <ostream>

namespace ZelmarMediaLib {

template <class T>
class Rect : public ZelmarObject {
public:
    Rect() : x(), y(), width(), height() {}
    Rect(T xValue, T yValue, T widthValue, T heightValue)
        : x(xValue), y(yValue), width(widthValue), height(heightValue) {}

    T x;
    T y;
    T width;
    T height;
};

template <class T>
std::ostream& operator<<(std::ostream& out, Rect<T> const& rect) {
    return out << '(' << rect.x << ',' << rect.y << ',' << rect.width << ',' << rect.height << ')';
}

}  // namespace ZelmarMediaLib
