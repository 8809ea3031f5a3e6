#include <ZelmarMediaLib/commands/edgemods/RemoveLeftEdgeModCmd.h>

#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/commands/edgemods/EdgeModCommandHandler.h>
#include <ZelmarMediaLib/parameters/Parameter.h>

#include <ostream>

namespace ZelmarMediaLib {

RemoveLeftEdgeModCmd::RemoveLeftEdgeModCmd(shared_ptr<EdgeModifiable const> target,
                                           shared_ptr<Parameter<double> const> parameter)
    : target_(target), parameter_(parameter) {}

shared_ptr<RemoveLeftEdgeModCmd> RemoveLeftEdgeModCmd::create(shared_ptr<EdgeModifiable const> target,
                                                            shared_ptr<Parameter<double> const> parameter) {
    return shared_ptr<RemoveLeftEdgeModCmd>(new RemoveLeftEdgeModCmd(target, parameter));
}

RemoveLeftEdgeModCmd* RemoveLeftEdgeModCmd::clone() const {
    return new RemoveLeftEdgeModCmd(*this);
}

bool RemoveLeftEdgeModCmd::execute(CommandHandler* handler) {
    // Moved in, so the function keeps the number it was drawn when it came off.
    removed_ = handler->edgeModCommandHandler()->removeLeftEdgeModification(target_, parameter_);
    return true;
}

bool RemoveLeftEdgeModCmd::unexecute(CommandHandler* handler) {
    handler->edgeModCommandHandler()->addLeftEdgeModification(target_, *removed_);
    // Dropped only after the media has its copy: identity numbers are reused last retired
    // first, so the copy takes the number the function had on the media before, and the
    // document comes back byte for byte.
    removed_.reset();
    return true;
}

void RemoveLeftEdgeModCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "RemoveLeftEdgeModCmd";
}

void RemoveLeftEdgeModCmd::xmlAttributes(XMLable::Options&) const {}

void RemoveLeftEdgeModCmd::xmlBody(XMLable::Options&, int) const {}

}  // namespace ZelmarMediaLib
