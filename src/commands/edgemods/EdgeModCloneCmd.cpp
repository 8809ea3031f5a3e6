#include <ZelmarMediaLib/commands/edgemods/EdgeModCloneCmd.h>

#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/commands/edgemods/EdgeModCommandHandler.h>
#include <ZelmarMediaLib/edgemods/EdgeModCloneUtil.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/parameters/Parameter.h>
#include <ZelmarMediaLib/timeline/Media.h>

#include <list>
#include <ostream>

namespace ZelmarMediaLib {

EdgeModCloneCmd::EdgeModCloneCmd(shared_ptr<Media const> media) : media_(media), formerRightLength_(0) {}

shared_ptr<EdgeModCloneCmd> EdgeModCloneCmd::create(shared_ptr<Media const> media) {
    return shared_ptr<EdgeModCloneCmd>(new EdgeModCloneCmd(media));
}

EdgeModCloneCmd* EdgeModCloneCmd::clone() const {
    return new EdgeModCloneCmd(*this);
}

bool EdgeModCloneCmd::execute(CommandHandler* handler) {
    if (!media_)
        throw ZelmarMediaLibException("attempting to edit the edge modifications of nothing");
    formerRightLength_ = media_->rightEdgeModificationLength();
    // Carries every modification of the media, on the clone's own parameters.
    clone_ = sharedClone(media_);
    splitEdges(handler->edgeModCommandHandler());
    return true;
}

bool EdgeModCloneCmd::reexecute(CommandHandler* handler) {
    splitEdges(handler->edgeModCommandHandler());
    return true;
}

void EdgeModCloneCmd::splitEdges(EdgeModCommandHandler* edge) {
    // The clone is nobody's yet, so it is set up directly.
    clone_->setLeftEdgeModificationLength(0);
    clone_->setRightEdgeModificationLength(media_->rightEdgeModificationLength());
    for (EdgeModification const& modification : clone_->leftEdgeModifications())
        clone_->removeLeftEdgeModification(modification.parameter());

    edge->setRightEdgeModificationLength(media_, 0);
    // Last first: identity numbers are reused last retired first, so undo, which adds them
    // back first first, gives each function the number it had on the media.
    std::list<EdgeModification> const right = media_->rightEdgeModifications();
    for (std::list<EdgeModification>::const_reverse_iterator it = right.rbegin(); it != right.rend(); ++it)
        edge->removeRightEdgeModification(media_, it->parameter());
}

bool EdgeModCloneCmd::unexecute(CommandHandler* handler) {
    EdgeModCommandHandler* const edge = handler->edgeModCommandHandler();
    edge->setRightEdgeModificationLength(media_, formerRightLength_);
    for (EdgeModification const& modification : clone_->rightEdgeModifications()) {
        shared_ptr<Parameter<double> const> const own =
            EdgeModCloneUtil::findDoubleParamWithName(media_.get(), modification.parameter()->ident());
        edge->addRightEdgeModification(media_, EdgeModification(own, modification.func()));
    }
    return true;
}

void EdgeModCloneCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "EdgeModCloneCmd";
}

void EdgeModCloneCmd::xmlAttributes(XMLable::Options&) const {}

void EdgeModCloneCmd::xmlBody(XMLable::Options&, int) const {}

}  // namespace ZelmarMediaLib
