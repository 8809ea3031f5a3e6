#include <ZelmarMediaLib/commands/edgemods/AddRightEdgeModCmd.h>

#include <ZelmarMediaLib/commands/edgemods/EdgeModCommandHandler.h>
#include <ZelmarMediaLib/timeline/Media.h>

#include <ostream>

namespace ZelmarMediaLib {

AddRightEdgeModCmd::AddRightEdgeModCmd(shared_ptr<Media const> media, EdgeModification const& modification)
    : AddEdgeModCmd(media, modification) {}

shared_ptr<AddRightEdgeModCmd> AddRightEdgeModCmd::create(shared_ptr<Media const> media,
                                                      EdgeModification const& modification) {
    return shared_ptr<AddRightEdgeModCmd>(new AddRightEdgeModCmd(media, modification));
}

AddRightEdgeModCmd* AddRightEdgeModCmd::clone() const {
    return new AddRightEdgeModCmd(*this);
}

void AddRightEdgeModCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "AddRightEdgeModCmd";
}

void AddRightEdgeModCmd::addEdgeMod(EdgeModCommandHandler* edge, shared_ptr<Media const> media,
                                   EdgeModification modification) {
    edge->addRightEdgeModification(media, modification);
}

void AddRightEdgeModCmd::removeEdgeMod(EdgeModCommandHandler* edge, shared_ptr<Media const> media,
                                      EdgeModification modification) {
    edge->removeRightEdgeModification(media, modification.parameter());
}

}  // namespace ZelmarMediaLib
