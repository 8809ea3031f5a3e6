#include <ZelmarMediaLib/commands/edgemods/MoveLeftEdgeModCmd.h>

#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/commands/edgemods/EdgeModCommandHandler.h>
#include <ZelmarMediaLib/edgemods/EdgeModifiable.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

#include <ostream>

namespace ZelmarMediaLib {

MoveLeftEdgeModCmd::MoveLeftEdgeModCmd(shared_ptr<EdgeModifiable const> target, long long delta)
    : target_(target), delta_(delta), formerLength_(0) {}

shared_ptr<MoveLeftEdgeModCmd> MoveLeftEdgeModCmd::create(shared_ptr<EdgeModifiable const> target, long long delta) {
    return shared_ptr<MoveLeftEdgeModCmd>(new MoveLeftEdgeModCmd(target, delta));
}

MoveLeftEdgeModCmd* MoveLeftEdgeModCmd::clone() const {
    return new MoveLeftEdgeModCmd(*this);
}

bool MoveLeftEdgeModCmd::execute(CommandHandler* handler) {
    if (!target_)
        throw ZelmarMediaLibException("attempting to edit the edge modifications of nothing");
    formerLength_ = target_->leftEdgeModificationLength();
    handler->edgeModCommandHandler()->setLeftEdgeModificationLength(target_, formerLength_ + delta_);
    return true;
}

bool MoveLeftEdgeModCmd::unexecute(CommandHandler* handler) {
    handler->edgeModCommandHandler()->setLeftEdgeModificationLength(target_, formerLength_);
    return true;
}

bool MoveLeftEdgeModCmd::reexecute(CommandHandler* handler) {
    handler->edgeModCommandHandler()->setLeftEdgeModificationLength(target_, formerLength_ + delta_);
    return true;
}

void MoveLeftEdgeModCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "MoveLeftEdgeModCmd";
}

void MoveLeftEdgeModCmd::xmlAttributes(XMLable::Options&) const {}

void MoveLeftEdgeModCmd::xmlBody(XMLable::Options&, int) const {}

}  // namespace ZelmarMediaLib
