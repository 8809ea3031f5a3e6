#include <ZelmarMediaLib/commands/links/LinkCmd.h>

#include <ZelmarMediaLib/commands/links/AddLinkCmd.h>
#include <ZelmarMediaLib/exceptions/DanglingWeakPtrException.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/timeline/Media.h>

#include <ostream>
#include <vector>

namespace ZelmarMediaLib {

namespace {

typedef std::vector<shared_ptr<Media const> > Group;

// The media first, then each media that it is linked with, in list order.
Group groupOf(shared_ptr<Media const> const& media) {
    Group group(1, media);
    for (ConstIterator<Media::LinkList> link = media->linkBegin(), end = media->linkEnd(); link != end; ++link) {
        shared_ptr<Media const> const linked = link->lock();
        if (!linked)
            throw DanglingWeakPtrException<Media const>("", weak_ptr<Media const>(*link));
        group.push_back(linked);
    }
    return group;
}

}  // namespace

LinkCmd::LinkCmd(shared_ptr<Media const> media1, shared_ptr<Media const> media2) : media1_(media1), media2_(media2) {}

shared_ptr<LinkCmd> LinkCmd::create(shared_ptr<Media const> media1, shared_ptr<Media const> media2) {
    return shared_ptr<LinkCmd>(new LinkCmd(media1, media2));
}

LinkCmd* LinkCmd::clone() const {
    return new LinkCmd(*this);
}

void LinkCmd::executeCommands(CommandHandler const*) {
    if (!media1_ || !media2_)
        throw ZelmarMediaLibException("attempting to link a null media");
    // Both groups are read before the first link is made, which would change them.
    Group const first = groupOf(media1_);
    Group const second = groupOf(media2_);
    for (shared_ptr<Media const> const& a : first) {
        for (shared_ptr<Media const> const& b : second) {
            execute(AddLinkCmd::create(a, b));
            execute(AddLinkCmd::create(b, a));
        }
    }
}

void LinkCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "LinkCmd";
}

void LinkCmd::xmlAttributes(XMLable::Options& options) const {
    *options.stream << "media1=\"" << media1_->xmlIdent() << "\" media2=\"" << media2_->xmlIdent() << '"';
}

void LinkCmd::xmlBody(XMLable::Options&, int) const {}

}  // namespace ZelmarMediaLib
