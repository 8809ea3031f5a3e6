#include <ZelmarMediaLib/commands/edgemods/DefaultEdgeModCommandHandler.h>

#include <ZelmarMediaLib/edgemods/EdgeModifiable.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

namespace ZelmarMediaLib {

namespace {

shared_ptr<EdgeModifiable> editable(shared_ptr<EdgeModifiable const> const& target) {
    if (!target)
        throw ZelmarMediaLibException("attempting to edit the edge modifications of nothing");
    return const_pointer_cast<EdgeModifiable>(target);
}

}  // namespace

void DefaultEdgeModCommandHandler::setLeftEdgeModificationLength(shared_ptr<EdgeModifiable const> target,
                                                                 long long length) {
    editable(target)->setLeftEdgeModificationLength(length);
}

void DefaultEdgeModCommandHandler::setRightEdgeModificationLength(shared_ptr<EdgeModifiable const> target,
                                                                  long long length) {
    editable(target)->setRightEdgeModificationLength(length);
}

void DefaultEdgeModCommandHandler::addLeftEdgeModification(shared_ptr<EdgeModifiable const> target,
                                                           EdgeModification const& modification) {
    editable(target)->addLeftEdgeModification(modification);
}

void DefaultEdgeModCommandHandler::addRightEdgeModification(shared_ptr<EdgeModifiable const> target,
                                                            EdgeModification const& modification) {
    editable(target)->addRightEdgeModification(modification);
}

EdgeModification DefaultEdgeModCommandHandler::removeLeftEdgeModification(shared_ptr<EdgeModifiable const> target,
                                                                          shared_ptr<Parameter<double> const> parameter) {
    return editable(target)->removeLeftEdgeModification(parameter);
}

EdgeModification DefaultEdgeModCommandHandler::removeRightEdgeModification(
    shared_ptr<EdgeModifiable const> target, shared_ptr<Parameter<double> const> parameter) {
    return editable(target)->removeRightEdgeModification(parameter);
}

}  // namespace ZelmarMediaLib
