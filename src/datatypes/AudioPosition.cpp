#include <ZelmarMediaLib/datatypes/AudioPosition.h>

#include <ostream>

namespace ZelmarMediaLib {

std::ostream& operator<<(std::ostream& out, AudioPosition const& position) {
    return out << '(' << position.x << ',' << position.y << ',' << position.z << ')';
}

}  // namespace ZelmarMediaLib
