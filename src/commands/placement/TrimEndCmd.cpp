#include <ZelmarMediaLib/commands/placement/TrimEndCmd.h>

#include <ZelmarMediaLib/commands/CommandHandler.h>

#include <ostream>

namespace ZelmarMediaLib {

TrimEndCmd::TrimEndCmd(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset)
    : AtomicEditCmd(track, media, offset) {}

shared_ptr<TrimEndCmd> TrimEndCmd::create(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset) {
    return shared_ptr<TrimEndCmd>(new TrimEndCmd(track, media, offset));
}

TrimEndCmd* TrimEndCmd::clone() const {
    return new TrimEndCmd(*this);
}

bool TrimEndCmd::execute(CommandHandler* handler) {
    handler->trimEnd(track(), media(), offset());
    return true;
}

bool TrimEndCmd::unexecute(CommandHandler* handler) {
    handler->trimEnd(track(), media(), -offset());
    return true;
}

shared_ptr<Command> TrimEndCmd::combine(shared_ptr<Command> next) {
    return combineAtomicEdit<TrimEndCmd>(next);
}

void TrimEndCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "TrimEndCmd";
}

}  // namespace ZelmarMediaLib
