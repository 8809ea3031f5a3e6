#include <ZelmarMediaLib/commands/edgemods/MoveLeftEdgeModCmd.h>

#include <ZelmarMediaLib/commands/edgemods/detail/EdgeSide.h>

#include <ostream>

namespace ZelmarMediaLib {

MoveLeftEdgeModCmd::MoveLeftEdgeModCmd(shared_ptr<EdgeModifiable const> target, long long delta)
    : MoveEdgeModCmd(detail::leftEdge(), target, delta) {}

shared_ptr<MoveLeftEdgeModCmd> MoveLeftEdgeModCmd::create(shared_ptr<EdgeModifiable const> target, long long delta) {
    return shared_ptr<MoveLeftEdgeModCmd>(new MoveLeftEdgeModCmd(target, delta));
}

MoveLeftEdgeModCmd* MoveLeftEdgeModCmd::clone() const {
    return new MoveLeftEdgeModCmd(*this);
}

void MoveLeftEdgeModCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "MoveLeftEdgeModCmd";
}

}  // namespace ZelmarMediaLib
