#pragma once
// One edge of a media, as the edge commands see it: which length and which handler operations
// are that edge's, so that a command is written once for both edges.
#include <ZelmarMediaLib/commands/edgemods/EdgeModCommandHandler.h>
#include <ZelmarMediaLib/edgemods/EdgeModifiable.h>

namespace ZelmarMediaLib {
namespace detail {

struct EdgeSide {
    long long (EdgeModifiable::*length)() const;
    void (EdgeModCommandHandler::*setLength)(shared_ptr<EdgeModifiable const>, long long);
    void (EdgeModCommandHandler::*add)(shared_ptr<EdgeModifiable const>, EdgeModification const&);
    EdgeModification (EdgeModCommandHandler::*remove)(shared_ptr<EdgeModifiable const>,
                                                      shared_ptr<Parameter<double> const>);
};

inline EdgeSide const& leftEdge() {
    static EdgeSide const side = {&EdgeModifiable::leftEdgeModificationLength,
                                  &EdgeModCommandHandler::setLeftEdgeModificationLength,
                                  &EdgeModCommandHandler::addLeftEdgeModification,
                                  &EdgeModCommandHandler::removeLeftEdgeModification};
    return side;
}

inline EdgeSide const& rightEdge() {
    static EdgeSide const side = {&EdgeModifiable::rightEdgeModificationLength,
                                  &EdgeModCommandHandler::setRightEdgeModificationLength,
                                  &EdgeModCommandHandler::addRightEdgeModification,
                                  &EdgeModCommandHandler::removeRightEdgeModification};
    return side;
}

}  // namespace detail
}  // namespace ZelmarMediaLib
