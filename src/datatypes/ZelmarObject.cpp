#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

namespace ZelmarMediaLib {

ZelmarObject::~ZelmarObject() = default;

std::string ZelmarObject::description() const {
    return std::string();
}

}  // namespace ZelmarMediaLib
