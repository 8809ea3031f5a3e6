#pragma once
// The project's own edge modification handler: each call goes straight to the object behind the handle.
#include <ZelmarMediaLib/commands/edgemods/EdgeModCommandHandler.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

// A null handle raises "attempting to edit the edge modifications of nothing".
class ZML_EXPORT DefaultEdgeModCommandHandler : public EdgeModCommandHandler {
public:
    void setLeftEdgeModificationLength(shared_ptr<EdgeModifiable const> target, long long length) override;
    void setRightEdgeModificationLength(shared_ptr<EdgeModifiable const> target, long long length) override;
    void addLeftEdgeModification(shared_ptr<EdgeModifiable const> target, EdgeModification const& modification) override;
    void addRightEdgeModification(shared_ptr<EdgeModifiable const> target,
                                  EdgeModification const& modification) override;
    EdgeModification removeLeftEdgeModification(shared_ptr<EdgeModifiable const> target,
                                                shared_ptr<Parameter<double> const> parameter) override;
    EdgeModification removeRightEdgeModification(shared_ptr<EdgeModifiable const> target,
                                                 shared_ptr<Parameter<double> const> parameter) override;
};

}  // namespace ZelmarMediaLib
