#include <ZelmarMediaLib/commands/placement/MoveCmd.h>

#include <ZelmarMediaLib/commands/CommandHandler.h>

#include <ostream>

namespace ZelmarMediaLib {

MoveCmd::MoveCmd(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset)
    : AtomicEditCmd(track, media, offset) {}

shared_ptr<MoveCmd> MoveCmd::create(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset) {
    return shared_ptr<MoveCmd>(new MoveCmd(track, media, offset));
}

MoveCmd* MoveCmd::clone() const {
    return new MoveCmd(*this);
}

bool MoveCmd::execute(CommandHandler* handler) {
    handler->move(track(), media(), offset());
    return true;
}

bool MoveCmd::unexecute(CommandHandler* handler) {
    handler->move(track(), media(), -offset());
    return true;
}

shared_ptr<Command> MoveCmd::combine(shared_ptr<Command> next) {
    return combineAtomicEdit<MoveCmd>(next);
}

void MoveCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "MoveCmd";
}

}  // namespace ZelmarMediaLib
