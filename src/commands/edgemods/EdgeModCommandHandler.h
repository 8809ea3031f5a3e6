#pragma once
// The path by which commands change edge modifications, which an application may watch or replace.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/edgemods/EdgeModification.h>

namespace ZelmarMediaLib {

class EdgeModifiable;
template <class T>
class Parameter;

// As with CommandHandler, a const handle names the object; the edit is done on the object
// behind it, under the lock and delay that the command path already holds.
class ZML_EXPORT EdgeModCommandHandler {
public:
    virtual ~EdgeModCommandHandler() = default;

    virtual void setLeftEdgeModificationLength(shared_ptr<EdgeModifiable const> target, long long length) = 0;
    virtual void setRightEdgeModificationLength(shared_ptr<EdgeModifiable const> target, long long length) = 0;
    virtual void addLeftEdgeModification(shared_ptr<EdgeModifiable const> target,
                                         EdgeModification const& modification) = 0;
    virtual void addRightEdgeModification(shared_ptr<EdgeModifiable const> target,
                                          EdgeModification const& modification) = 0;
    virtual EdgeModification removeLeftEdgeModification(shared_ptr<EdgeModifiable const> target,
                                                        shared_ptr<Parameter<double> const> parameter) = 0;
    virtual EdgeModification removeRightEdgeModification(shared_ptr<EdgeModifiable const> target,
                                                         shared_ptr<Parameter<double> const> parameter) = 0;
};

}  // namespace ZelmarMediaLib
