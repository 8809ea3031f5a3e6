#pragma once
// A function applied to a double parameter's value across an edge zone of a media.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>

#include <string>

namespace ZelmarMediaLib {

class AuxEdgeModInfo;

class ZML_EXPORT EdgeModFunc : public XMLable {
public:
    // Owned by the caller.
    virtual EdgeModFunc* clone() const = 0;
    // fraction runs from 0 to 1 across the zone; value is the parameter's value there.
    virtual double execute(double fraction, double value) const = 0;
    virtual std::string ident() const = 0;
    virtual void setAuxInfo(AuxEdgeModInfo const& info) = 0;
};

}  // namespace ZelmarMediaLib
