#include <ZelmarMediaLib/commands/edgemods/AddEdgeModCmd.h>

#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/commands/edgemods/detail/EdgeSide.h>
#include <ZelmarMediaLib/edgemods/AuxEdgeModInfo.h>
#include <ZelmarMediaLib/edgemods/EdgeModFunc.h>
#include <ZelmarMediaLib/timeline/VisualMedia.h>
#include <ZelmarMediaLib/timeline/VisualMixer.h>

#include <memory>

namespace ZelmarMediaLib {

AddEdgeModCmd::AddEdgeModCmd(detail::EdgeSide const& side, shared_ptr<Media const> media,
                             EdgeModification const& modification)
    : side_(&side), media_(media), modification_(modification) {}

bool AddEdgeModCmd::execute(CommandHandler* handler) {
    EdgeModCommandHandler* const edge = handler->edgeModCommandHandler();
    std::unique_ptr<EdgeModFunc> const func(modification_.func().clone());
    AuxEdgeModInfo aux;
    aux.setVisualMixer(handler->visualMixer());
    // Stays empty for an audio media.
    aux.setVisualMedia(dynamic_pointer_cast<VisualMedia const>(media_));
    func->setAuxInfo(aux);
    (edge->*(side_->add))(media_, EdgeModification(modification_.parameter(), *func));
    return true;
}

bool AddEdgeModCmd::unexecute(CommandHandler* handler) {
    // The removed modification is dropped: the command keeps the one it was made with.
    (handler->edgeModCommandHandler()->*(side_->remove))(media_, modification_.parameter());
    return true;
}

void AddEdgeModCmd::xmlAttributes(XMLable::Options&) const {}

void AddEdgeModCmd::xmlBody(XMLable::Options&, int) const {}

}  // namespace ZelmarMediaLib
