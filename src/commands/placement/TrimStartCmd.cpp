#include <ZelmarMediaLib/commands/placement/TrimStartCmd.h>

#include <ZelmarMediaLib/commands/CommandHandler.h>

#include <ostream>

namespace ZelmarMediaLib {

TrimStartCmd::TrimStartCmd(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset)
    : AtomicEditCmd(track, media, offset) {}

shared_ptr<TrimStartCmd> TrimStartCmd::create(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset) {
    return shared_ptr<TrimStartCmd>(new TrimStartCmd(track, media, offset));
}

TrimStartCmd* TrimStartCmd::clone() const {
    return new TrimStartCmd(*this);
}

bool TrimStartCmd::execute(CommandHandler* handler) {
    handler->trimStart(track(), media(), offset());
    return true;
}

bool TrimStartCmd::unexecute(CommandHandler* handler) {
    handler->trimStart(track(), media(), -offset());
    return true;
}

shared_ptr<Command> TrimStartCmd::combine(shared_ptr<Command> next) {
    return combineAtomicEdit<TrimStartCmd>(next);
}

void TrimStartCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "TrimStartCmd";
}

}  // namespace ZelmarMediaLib
