#include <ZelmarMediaLib/commands/placement/AddMediaCmd.h>

#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/timeline/Media.h>

#include <ostream>

namespace ZelmarMediaLib {

AddMediaCmd::AddMediaCmd(shared_ptr<Track const> track, shared_ptr<Media const> media, long long time)
    : track_(track), media_(media), time_(time), priorStart_(0) {}

shared_ptr<AddMediaCmd> AddMediaCmd::create(shared_ptr<Track const> track, shared_ptr<Media const> media,
                                            long long time) {
    return shared_ptr<AddMediaCmd>(new AddMediaCmd(track, media, time));
}

AddMediaCmd* AddMediaCmd::clone() const {
    return new AddMediaCmd(*this);
}

bool AddMediaCmd::execute(CommandHandler* handler) {
    if (!media_)
        throw ZelmarMediaLibException("attempting to add a null media");
    priorStart_ = media_->trackRange().start;
    handler->addMedia(track_, media_, time_);
    return true;
}

bool AddMediaCmd::unexecute(CommandHandler* handler) {
    handler->removeMedia(track_, media_, priorStart_);
    return true;
}

void AddMediaCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "AddMediaCmd";
}

void AddMediaCmd::xmlAttributes(XMLable::Options& options) const {
    *options.stream << "track=\"" << static_cast<void const*>(track_.get()) << "\" media=\""
                    << static_cast<void const*>(media_.get()) << "\" time=\"" << time_ << '"';
}

void AddMediaCmd::xmlBody(XMLable::Options&, int) const {}

}  // namespace ZelmarMediaLib
