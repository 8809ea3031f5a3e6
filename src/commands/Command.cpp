#include <ZelmarMediaLib/commands/Command.h>

#include <ZelmarMediaLib/commands/CommandPair.h>

namespace ZelmarMediaLib {

Command::~Command() = default;

bool Command::reexecute(CommandHandler* handler) {
    return execute(handler);
}

shared_ptr<Command> Command::combine(shared_ptr<Command> next) {
    return groupCommands(shared_from_this(), next);
}

shared_ptr<Command> Command::groupCommands(shared_ptr<Command> first, shared_ptr<Command> second) {
    return CommandPair::create(first, second);
}

}  // namespace ZelmarMediaLib
