#include <ZelmarMediaLib/commands/placement/AtomicEditCmd.h>

#include <ostream>

namespace ZelmarMediaLib {

AtomicEditCmd::AtomicEditCmd(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset)
    : track_(track), media_(media), offset_(offset) {}

void AtomicEditCmd::xmlAttributes(XMLable::Options& options) const {
    *options.stream << "track=\"" << static_cast<void const*>(track_.get()) << "\" media=\""
                    << static_cast<void const*>(media_.get()) << "\" offset=\"" << offset_ << '"';
}

void AtomicEditCmd::xmlBody(XMLable::Options&, int) const {}

}  // namespace ZelmarMediaLib
