#include <ZelmarMediaLib/commands/edgemods/AddLeftEdgeModCmd.h>

#include <ZelmarMediaLib/commands/edgemods/detail/EdgeSide.h>
#include <ZelmarMediaLib/timeline/Media.h>

#include <ostream>

namespace ZelmarMediaLib {

AddLeftEdgeModCmd::AddLeftEdgeModCmd(shared_ptr<Media const> media, EdgeModification const& modification)
    : AddEdgeModCmd(detail::leftEdge(), media, modification) {}

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

}  // namespace ZelmarMediaLib
