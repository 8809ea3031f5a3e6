#include <ZelmarMediaLib/commands/edgemods/RemoveRightEdgeModCmd.h>

#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/commands/edgemods/EdgeModCommandHandler.h>
#include <ZelmarMediaLib/parameters/Parameter.h>

#include <ostream>

namespace ZelmarMediaLib {

RemoveRightEdgeModCmd::RemoveRightEdgeModCmd(shared_ptr<EdgeModifiable const> target,
                                           shared_ptr<Parameter<double> const> parameter)
    : target_(target), parameter_(parameter) {}

shared_ptr<RemoveRightEdgeModCmd> RemoveRightEdgeModCmd::create(shared_ptr<EdgeModifiable const> target,
                                                            shared_ptr<Parameter<double> const> parameter) {
    return shared_ptr<RemoveRightEdgeModCmd>(new RemoveRightEdgeModCmd(target, parameter));
}

RemoveRightEdgeModCmd* RemoveRightEdgeModCmd::clone() const {
    return new RemoveRightEdgeModCmd(*this);
}

bool RemoveRightEdgeModCmd::execute(CommandHandler* handler) {
    // Moved in, so the function keeps the number it was drawn when it came off.
    removed_ = handler->edgeModCommandHandler()->removeRightEdgeModification(target_, parameter_);
    return true;
}

bool RemoveRightEdgeModCmd::unexecute(CommandHandler* handler) {
    handler->edgeModCommandHandler()->addRightEdgeModification(target_, *removed_);
    // Dropped only after the media has its copy: identity numbers are reused last retired
    // first, so the copy takes the number the function had on the media before, and the
    // document comes back byte for byte.
    removed_.reset();
    return true;
}

void RemoveRightEdgeModCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "RemoveRightEdgeModCmd";
}

void RemoveRightEdgeModCmd::xmlAttributes(XMLable::Options&) const {}

void RemoveRightEdgeModCmd::xmlBody(XMLable::Options&, int) const {}

}  // namespace ZelmarMediaLib
