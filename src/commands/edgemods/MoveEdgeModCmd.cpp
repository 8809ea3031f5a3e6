#include <ZelmarMediaLib/commands/edgemods/MoveEdgeModCmd.h>

#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/commands/edgemods/detail/EdgeSide.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

namespace ZelmarMediaLib {

MoveEdgeModCmd::MoveEdgeModCmd(detail::EdgeSide const& side, shared_ptr<EdgeModifiable const> target,
                               long long delta)
    : side_(&side), target_(target), delta_(delta), formerLength_(0) {}

bool MoveEdgeModCmd::execute(CommandHandler* handler) {
    if (!target_)
        throw ZelmarMediaLibException("attempting to edit the edge modifications of nothing");
    formerLength_ = ((*target_).*(side_->length))();
    setLength(handler, formerLength_ + delta_);
    return true;
}

bool MoveEdgeModCmd::unexecute(CommandHandler* handler) {
    setLength(handler, formerLength_);
    return true;
}

bool MoveEdgeModCmd::reexecute(CommandHandler* handler) {
    setLength(handler, formerLength_ + delta_);
    return true;
}

void MoveEdgeModCmd::setLength(CommandHandler* handler, long long length) const {
    (handler->edgeModCommandHandler()->*(side_->setLength))(target_, length);
}

void MoveEdgeModCmd::xmlAttributes(XMLable::Options&) const {}

void MoveEdgeModCmd::xmlBody(XMLable::Options&, int) const {}

}  // namespace ZelmarMediaLib
