#pragma once
// A command built of commands, which it runs, undoes and redoes through a private history.
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class CommandHistory;

class ZML_EXPORT MultiCommand : public Command {
public:
    ~MultiCommand() override;

    // Runs executeCommands; if any part raises, the parts that ran are undone in reverse
    // and the exception passes on.
    bool execute(CommandHandler* handler) override;
    // Both roll back the parts that they got through when a later part raises.
    bool unexecute(CommandHandler* handler) override;
    bool reexecute(CommandHandler* handler) override;

    // The number of parts that ran and would be undone.
    int numUndoCommands() const;

protected:
    MultiCommand();
    // The parts are cloned along with the private history.
    MultiCommand(MultiCommand const& other);

    // Builds the parts, reading the model through the handler, and runs each through
    // execute(shared_ptr<Command>); all edits go through the parts.
    virtual void executeCommands(CommandHandler const* handler) = 0;
    bool execute(shared_ptr<Command> part);

    shared_ptr<CommandHistory> const& history() const { return history_; }

private:
    // Bound afresh to the handler of each call, which is what makes a cloned history work.
    shared_ptr<CommandHistory> history_;
};

}  // namespace ZelmarMediaLib
