#include <ZelmarMediaLib/commands/placement/StretchCmd.h>

#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/timeline/Media.h>

#include <ostream>

namespace ZelmarMediaLib {

StretchCmd::StretchCmd(shared_ptr<Track const> track, shared_ptr<Media const> media, double scalar)
    : track_(track), media_(media), requestedScalar_(scalar), oldScalar_(scalar), actualScalar_(scalar) {}

shared_ptr<StretchCmd> StretchCmd::create(shared_ptr<Track const> track, shared_ptr<Media const> media,
                                          double scalar) {
    return shared_ptr<StretchCmd>(new StretchCmd(track, media, scalar));
}

StretchCmd* StretchCmd::clone() const {
    return new StretchCmd(*this);
}

bool StretchCmd::execute(CommandHandler* handler) {
    if (!media_)
        throw ZelmarMediaLibException("attempting to stretch a null media");
    double const before = media_->scalar();
    actualScalar_ = handler->stretch(track_, media_, requestedScalar_);
    // Only a stretch that happened has a scalar to return to.
    oldScalar_ = before;
    return true;
}

bool StretchCmd::unexecute(CommandHandler* handler) {
    handler->stretch(track_, media_, oldScalar_);
    return true;
}

shared_ptr<Command> StretchCmd::combine(shared_ptr<Command> next) {
    shared_ptr<StretchCmd> const later = dynamic_pointer_cast<StretchCmd>(next);
    if (later && later->track_ == track_ && later->media_ == media_)
        return later;
    return groupCommands(shared_from_this(), next);
}

void StretchCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "StretchCmd";
}

void StretchCmd::xmlAttributes(XMLable::Options& options) const {
    *options.stream << "track=\"" << static_cast<void const*>(track_.get()) << "\" media=\""
                    << static_cast<void const*>(media_.get()) << "\" requestedScalar=\"" << requestedScalar_
                    << "\" oldScalar=\"" << oldScalar_ << "\" actualScalar=\"" << actualScalar_ << '"';
}

void StretchCmd::xmlBody(XMLable::Options&, int) const {}

}  // namespace ZelmarMediaLib
