#include <ZelmarMediaLib/commands/MultiCommand.h>

#include <ZelmarMediaLib/commands/CommandHistory.h>

namespace ZelmarMediaLib {

MultiCommand::MultiCommand() : history_(boost::make_shared<CommandHistory>(nullptr)) {}

MultiCommand::MultiCommand(MultiCommand const& other)
    : XMLIdentified(other), Command(other), history_(other.history_->clone()) {}

MultiCommand::~MultiCommand() = default;

bool MultiCommand::execute(CommandHandler* handler) {
    history_->setCommandHandler(handler);
    try {
        executeCommands(handler);
    } catch (...) {
        history_->undoAll();
        throw;
    }
    return true;
}

bool MultiCommand::unexecute(CommandHandler* handler) {
    history_->setCommandHandler(handler);
    history_->undoAll();
    return true;
}

bool MultiCommand::reexecute(CommandHandler* handler) {
    history_->setCommandHandler(handler);
    history_->redoAll();
    return true;
}

int MultiCommand::numUndoCommands() const {
    return static_cast<int>(history_->undoStack().size());
}

bool MultiCommand::execute(shared_ptr<Command> part) {
    return history_->execute(part);
}

}  // namespace ZelmarMediaLib
