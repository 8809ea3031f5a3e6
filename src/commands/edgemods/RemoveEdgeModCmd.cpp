#include <ZelmarMediaLib/commands/edgemods/RemoveEdgeModCmd.h>

#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/commands/edgemods/detail/EdgeSide.h>
#include <ZelmarMediaLib/parameters/Parameter.h>

namespace ZelmarMediaLib {

RemoveEdgeModCmd::RemoveEdgeModCmd(detail::EdgeSide const& side, shared_ptr<EdgeModifiable const> target,
                                   shared_ptr<Parameter<double> const> parameter)
    : side_(&side), target_(target), parameter_(parameter) {}

bool RemoveEdgeModCmd::execute(CommandHandler* handler) {
    // Moved in, so the function keeps the number it was drawn when it came off.
    removed_ = (handler->edgeModCommandHandler()->*(side_->remove))(target_, parameter_);
    return true;
}

bool RemoveEdgeModCmd::unexecute(CommandHandler* handler) {
    (handler->edgeModCommandHandler()->*(side_->add))(target_, *removed_);
    // Dropped only after the media has its copy: identity numbers are reused last retired
    // first, so the copy takes the number the function had on the media before, and the
    // document comes back byte for byte.
    removed_.reset();
    return true;
}

void RemoveEdgeModCmd::xmlAttributes(XMLable::Options&) const {}

void RemoveEdgeModCmd::xmlBody(XMLable::Options&, int) const {}

}  // namespace ZelmarMediaLib
