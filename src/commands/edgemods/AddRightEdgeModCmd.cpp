#include <ZelmarMediaLib/commands/edgemods/AddRightEdgeModCmd.h>

#include <ZelmarMediaLib/commands/edgemods/detail/EdgeSide.h>
#include <ZelmarMediaLib/timeline/Media.h>

#include <ostream>

namespace ZelmarMediaLib {

AddRightEdgeModCmd::AddRightEdgeModCmd(shared_ptr<Media const> media, EdgeModification const& modification)
    : AddEdgeModCmd(detail::rightEdge(), media, modification) {}

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

}  // namespace ZelmarMediaLib
