#include <ZelmarMediaLib/commands/edgemods/RemoveRightEdgeModCmd.h>

#include <ZelmarMediaLib/commands/edgemods/detail/EdgeSide.h>

#include <ostream>

namespace ZelmarMediaLib {

RemoveRightEdgeModCmd::RemoveRightEdgeModCmd(shared_ptr<EdgeModifiable const> target,
        shared_ptr<Parameter<double> const> parameter)
    : RemoveEdgeModCmd(detail::rightEdge(), target, parameter) {}

shared_ptr<RemoveRightEdgeModCmd> RemoveRightEdgeModCmd::create(shared_ptr<EdgeModifiable const> target,
        shared_ptr<Parameter<double> const> parameter) {
    return shared_ptr<RemoveRightEdgeModCmd>(new RemoveRightEdgeModCmd(target, parameter));
}

RemoveRightEdgeModCmd* RemoveRightEdgeModCmd::clone() const {
    return new RemoveRightEdgeModCmd(*this);
}

void RemoveRightEdgeModCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "RemoveRightEdgeModCmd";
}

}  // namespace ZelmarMediaLib
