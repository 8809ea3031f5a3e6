#include <ZelmarMediaLib/commands/links/RemoveLinkCmd.h>

#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/timeline/Media.h>

#include <ostream>

namespace ZelmarMediaLib {

RemoveLinkCmd::RemoveLinkCmd(shared_ptr<Media const> media, shared_ptr<Media const> mediaToRemove) : media_(media), mediaToRemove_(mediaToRemove) {}

shared_ptr<RemoveLinkCmd> RemoveLinkCmd::create(shared_ptr<Media const> media, shared_ptr<Media const> mediaToRemove) {
    return shared_ptr<RemoveLinkCmd>(new RemoveLinkCmd(media, mediaToRemove));
}

RemoveLinkCmd* RemoveLinkCmd::clone() const {
    return new RemoveLinkCmd(*this);
}

bool RemoveLinkCmd::execute(CommandHandler* handler) {
    if (!media_ || !mediaToRemove_)
        throw ZelmarMediaLibException("attempting to unlink a null media");
    handler->removeLink(media_, mediaToRemove_);
    return true;
}

bool RemoveLinkCmd::unexecute(CommandHandler* handler) {
    handler->addLink(media_, mediaToRemove_);
    return true;
}

void RemoveLinkCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "RemoveLinkCmd";
}

void RemoveLinkCmd::xmlAttributes(XMLable::Options& options) const {
    *options.stream << "media=\"" << media_->xmlIdent() << "\" mediaToRemove=\"" << mediaToRemove_->xmlIdent() << '"';
}

void RemoveLinkCmd::xmlBody(XMLable::Options&, int) const {}

}  // namespace ZelmarMediaLib
