#pragma once
// An object with two edge zones, each a length and a list of modifications.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/edgemods/EdgeModification.h>

#include <list>

namespace ZelmarMediaLib {

class ZML_EXPORT EdgeModifiable {
public:
    virtual ~EdgeModifiable() = default;

    virtual void setLeftEdgeModificationLength(long long length) = 0;
    virtual void setRightEdgeModificationLength(long long length) = 0;
    // The effective lengths: the two zones never overlap, whatever is stored.
    virtual long long leftEdgeModificationLength() const = 0;
    virtual long long rightEdgeModificationLength() const = 0;
    virtual std::list<EdgeModification> leftEdgeModifications() const = 0;
    virtual std::list<EdgeModification> rightEdgeModifications() const = 0;
    // One modification per parameter and side.
    virtual void addLeftEdgeModification(EdgeModification const& modification) = 0;
    virtual void addRightEdgeModification(EdgeModification const& modification) = 0;
    virtual EdgeModification removeLeftEdgeModification(shared_ptr<Parameter<double> const> parameter) = 0;
    virtual EdgeModification removeRightEdgeModification(shared_ptr<Parameter<double> const> parameter) = 0;
};

}  // namespace ZelmarMediaLib
