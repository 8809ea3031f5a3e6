#include <ZelmarMediaLib/commands/edgemods/MoveRightEdgeModCmd.h>

#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/commands/edgemods/EdgeModCommandHandler.h>
#include <ZelmarMediaLib/edgemods/EdgeModifiable.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

#include <ostream>

namespace ZelmarMediaLib {

MoveRightEdgeModCmd::MoveRightEdgeModCmd(shared_ptr<EdgeModifiable const> target, long long delta)
    : target_(target), delta_(delta), formerLength_(0) {}

shared_ptr<MoveRightEdgeModCmd> MoveRightEdgeModCmd::create(shared_ptr<EdgeModifiable const> target, long long delta) {
    return shared_ptr<MoveRightEdgeModCmd>(new MoveRightEdgeModCmd(target, delta));
}

MoveRightEdgeModCmd* MoveRightEdgeModCmd::clone() const {
    return new MoveRightEdgeModCmd(*this);
}

bool MoveRightEdgeModCmd::execute(CommandHandler* handler) {
    if (!target_)
        throw ZelmarMediaLibException("attempting to edit the edge modifications of nothing");
    formerLength_ = target_->rightEdgeModificationLength();
    handler->edgeModCommandHandler()->setRightEdgeModificationLength(target_, formerLength_ + delta_);
    return true;
}

bool MoveRightEdgeModCmd::unexecute(CommandHandler* handler) {
    handler->edgeModCommandHandler()->setRightEdgeModificationLength(target_, formerLength_);
    return true;
}

bool MoveRightEdgeModCmd::reexecute(CommandHandler* handler) {
    handler->edgeModCommandHandler()->setRightEdgeModificationLength(target_, formerLength_ + delta_);
    return true;
}

void MoveRightEdgeModCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "MoveRightEdgeModCmd";
}

void MoveRightEdgeModCmd::xmlAttributes(XMLable::Options&) const {}

void MoveRightEdgeModCmd::xmlBody(XMLable::Options&, int) const {}

}  // namespace ZelmarMediaLib
