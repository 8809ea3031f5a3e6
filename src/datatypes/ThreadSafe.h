#pragma once
// Access to the project-wide lock that guards every object of a document.
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class ReadWriteMutex;

class ZML_EXPORT ThreadSafe {
public:
    virtual ~ThreadSafe() = default;
    virtual ReadWriteMutex& mutex() const = 0;
};

}  // namespace ZelmarMediaLib
