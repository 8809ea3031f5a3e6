#include <ZelmarMediaLib/commands/links/AddLinkCmd.h>

#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/timeline/Media.h>

#include <ostream>

namespace ZelmarMediaLib {

AddLinkCmd::AddLinkCmd(shared_ptr<Media const> media, shared_ptr<Media const> mediaToAdd) : media_(media), mediaToAdd_(mediaToAdd) {}

shared_ptr<AddLinkCmd> AddLinkCmd::create(shared_ptr<Media const> media, shared_ptr<Media const> mediaToAdd) {
    return shared_ptr<AddLinkCmd>(new AddLinkCmd(media, mediaToAdd));
}

AddLinkCmd* AddLinkCmd::clone() const {
    return new AddLinkCmd(*this);
}

bool AddLinkCmd::execute(CommandHandler* handler) {
    if (!media_ || !mediaToAdd_)
        throw ZelmarMediaLibException("attempting to link a null media");
    handler->addLink(media_, mediaToAdd_);
    return true;
}

bool AddLinkCmd::unexecute(CommandHandler* handler) {
    handler->removeLink(media_, mediaToAdd_);
    return true;
}

void AddLinkCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "AddLinkCmd";
}

void AddLinkCmd::xmlAttributes(XMLable::Options& options) const {
    *options.stream << "media=\"" << media_->xmlIdent() << "\" mediaToAdd=\"" << mediaToAdd_->xmlIdent() << '"';
}

void AddLinkCmd::xmlBody(XMLable::Options&, int) const {}

}  // namespace ZelmarMediaLib
