#pragma once
// The root of most classes of the library: a printable description for debugging.
#include <ZelmarMediaLib/datatypes/Export.h>

#include <string>

namespace ZelmarMediaLib {

// Model classes inherit this virtually, since many reach it along several paths.
class ZML_EXPORT ZelmarObject {
public:
    virtual ~ZelmarObject();
    virtual std::string description() const;
};

}  // namespace ZelmarMediaLib
