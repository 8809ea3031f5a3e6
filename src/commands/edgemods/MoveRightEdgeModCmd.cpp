#include <ZelmarMediaLib/commands/edgemods/MoveRightEdgeModCmd.h>

#include <ZelmarMediaLib/commands/edgemods/detail/EdgeSide.h>

#include <ostream>

namespace ZelmarMediaLib {

MoveRightEdgeModCmd::MoveRightEdgeModCmd(shared_ptr<EdgeModifiable const> target, long long delta)
    : MoveEdgeModCmd(detail::rightEdge(), target, delta) {}

shared_ptr<MoveRightEdgeModCmd> MoveRightEdgeModCmd::create(shared_ptr<EdgeModifiable const> target, long long delta) {
    return shared_ptr<MoveRightEdgeModCmd>(new MoveRightEdgeModCmd(target, delta));
}

MoveRightEdgeModCmd* MoveRightEdgeModCmd::clone() const {
    return new MoveRightEdgeModCmd(*this);
}

void MoveRightEdgeModCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "MoveRightEdgeModCmd";
}

}  // namespace ZelmarMediaLib
