#include <ZelmarMediaLib/datatypes/Point.h>

namespace ZelmarMediaLib {

std::string Point::description() const {
    return std::string();
}

std::ostream& operator<<(std::ostream& out, Point const& point) {
    return out << '(' << point.x << ',' << point.y << ',' << point.z << ')';
}

std::istream& operator>>(std::istream& in, Point& point) {
    char separator;
    return in >> separator >> point.x >> separator >> point.y >> separator >> point.z >> separator;
}

}  // namespace ZelmarMediaLib
