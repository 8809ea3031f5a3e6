#include <ZelmarMediaLib/commands/MultiCommand.h>

#include <ZelmarMediaLib/commands/CommandHistory.h>

#include <cstddef>

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

// Undo and redo are all or nothing too: when a part raises, the parts that this call already
// took back or redid are run the other way again, so the model stands as before the call and
// the outer history can keep the command where it was.
bool MultiCommand::unexecute(CommandHandler* handler) {
    history_->setCommandHandler(handler);
    std::size_t const undone = history_->redoStack().size();
    try {
        history_->undoAll();
    } catch (...) {
        while (history_->redoStack().size() > undone)
            history_->redo();
        throw;
    }
    return true;
}

bool MultiCommand::reexecute(CommandHandler* handler) {
    history_->setCommandHandler(handler);
    std::size_t const done = history_->undoStack().size();
    try {
        history_->redoAll();
    } catch (...) {
        while (history_->undoStack().size() > done)
            history_->undo();
        throw;
    }
    return true;
}

int MultiCommand::numUndoCommands() const {
    return static_cast<int>(history_->undoStack().size());
}

bool MultiCommand::execute(shared_ptr<Command> part) {
    return history_->execute(part);
}

}  // namespace ZelmarMediaLib
