#pragma once
// An owner of attributes: writes one Attribute element for each, named by an extra attribute.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>

namespace ZelmarMediaLib {

class ZML_EXPORT Attributable {
public:
    virtual ~Attributable() = default;
    virtual void xmlOfAttributes(XMLable::Options& options, int indent) const = 0;
};

}  // namespace ZelmarMediaLib
