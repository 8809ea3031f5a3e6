#include <ZelmarMediaLib/commands/edgemods/RemoveLeftEdgeModCmd.h>

#include <ZelmarMediaLib/commands/edgemods/detail/EdgeSide.h>

#include <ostream>

namespace ZelmarMediaLib {

RemoveLeftEdgeModCmd::RemoveLeftEdgeModCmd(shared_ptr<EdgeModifiable const> target,
        shared_ptr<Parameter<double> const> parameter)
    : RemoveEdgeModCmd(detail::leftEdge(), target, parameter) {}

shared_ptr<RemoveLeftEdgeModCmd> RemoveLeftEdgeModCmd::create(shared_ptr<EdgeModifiable const> target,
        shared_ptr<Parameter<double> const> parameter) {
    return shared_ptr<RemoveLeftEdgeModCmd>(new RemoveLeftEdgeModCmd(target, parameter));
}

RemoveLeftEdgeModCmd* RemoveLeftEdgeModCmd::clone() const {
    return new RemoveLeftEdgeModCmd(*this);
}

void RemoveLeftEdgeModCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "RemoveLeftEdgeModCmd";
}

}  // namespace ZelmarMediaLib
