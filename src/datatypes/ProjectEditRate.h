#pragma once
// The project's edit rate: edit units per second, which turns file time into timeline time.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class ZML_EXPORT ProjectEditRate {
public:
    virtual ~ProjectEditRate() = default;
    virtual rational<unsigned long> editRate() const = 0;
};

}  // namespace ZelmarMediaLib
