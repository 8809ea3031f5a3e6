#include <ZelmarMediaLib/commands/links/UnlinkCmd.h>

#include <ZelmarMediaLib/commands/links/RemoveLinkCmd.h>
#include <ZelmarMediaLib/exceptions/DanglingWeakPtrException.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/timeline/Media.h>

#include <ostream>
#include <vector>

namespace ZelmarMediaLib {

UnlinkCmd::UnlinkCmd(shared_ptr<Media const> media) : media_(media) {}

shared_ptr<UnlinkCmd> UnlinkCmd::create(shared_ptr<Media const> media) {
    return shared_ptr<UnlinkCmd>(new UnlinkCmd(media));
}

UnlinkCmd* UnlinkCmd::clone() const {
    return new UnlinkCmd(*this);
}

void UnlinkCmd::executeCommands(CommandHandler const*) {
    if (!media_)
        throw ZelmarMediaLibException("attempting to unlink a null media");
    // The parts change the list, so a copy of it is walked.
    Media::LinkList const links(media_->linkBegin(), media_->linkEnd());
    std::vector<shared_ptr<Media const> > others;
    for (weak_ptr<Media> const& link : links) {
        shared_ptr<Media const> const other = link.lock();
        if (!other)
            throw DanglingWeakPtrException<Media const>("", weak_ptr<Media const>(link));
        // A link whose ranges have drifted apart is refused by its own removal. That removal
        // runs first, so the refusal comes before any link is gone: links taken back by a
        // rollback would return at the end of their lists and change the document.
        if (other->trackRange() != media_->trackRange())
            execute(RemoveLinkCmd::create(media_, other));
        others.push_back(other);
    }
    for (shared_ptr<Media const> const& other : others) {
        execute(RemoveLinkCmd::create(media_, other));
        execute(RemoveLinkCmd::create(other, media_));
    }
}

void UnlinkCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "UnlinkCmd";
}

void UnlinkCmd::xmlAttributes(XMLable::Options& options) const {
    *options.stream << "media=\"" << media_->xmlIdent() << '"';
}

void UnlinkCmd::xmlBody(XMLable::Options&, int) const {}

}  // namespace ZelmarMediaLib
