#include <ZelmarMediaLib/commands/edgemods/AddLeftEdgeModCmd.h>

#include <ZelmarMediaLib/commands/edgemods/EdgeModCommandHandler.h>
#include <ZelmarMediaLib/timeline/Media.h>

#include <ostream>

namespace ZelmarMediaLib {

AddLeftEdgeModCmd::AddLeftEdgeModCmd(shared_ptr<Media const> media, EdgeModification const& modification)
    : AddEdgeModCmd(media, modification) {}

shared_ptr<AddLeftEdgeModCmd> AddLeftEdgeModCmd::create(shared_ptr<Media const> media,
                                                      EdgeModification const& modification) {
    return shared_ptr<AddLeftEdgeModCmd>(new AddLeftEdgeModCmd(media, modification));
}

AddLeftEdgeModCmd* AddLeftEdgeModCmd::clone() const {
    return new AddLeftEdgeModCmd(*this);
}

void AddLeftEdgeModCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "AddLeftEdgeModCmd";
}

void AddLeftEdgeModCmd::addEdgeMod(EdgeModCommandHandler* edge, shared_ptr<Media const> media,
                                   EdgeModification modification) {
    edge->addLeftEdgeModification(media, modification);
}

void AddLeftEdgeModCmd::removeEdgeMod(EdgeModCommandHandler* edge, shared_ptr<Media const> media,
                                      EdgeModification modification) {
    edge->removeLeftEdgeModification(media, modification.parameter());
}

}  // namespace ZelmarMediaLib
