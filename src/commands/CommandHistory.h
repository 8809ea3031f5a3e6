#pragma once
// The undo and redo stacks of commands, and the walks between them.
#include <ZelmarMediaLib/commands/CommandHistoryState.h>
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Cloneable.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Subject.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

#include <list>
#include <memory>

namespace ZelmarMediaLib {

class Command;
class CommandHandler;

// No lock of its own: the project holds its lock around every call. A command is on at
// most one stack; the top of each stack is the back of its list.
class ZML_EXPORT CommandHistory : public virtual ZelmarObject, public virtual Cloneable, public Subject, public XMLable {
public:
    typedef std::list<shared_ptr<Command> > CommandList;

    // The handler is not owned and may be null until a command runs.
    explicit CommandHistory(CommandHandler* handler);
    CommandHistory(CommandHistory const& other);
    CommandHistory& operator=(CommandHistory const&) = delete;
    ~CommandHistory() override;

    // The whole history as XML.
    std::string description() const override;
    // Each command of both stacks cloned once, in order; the same undo limit and handler.
    CommandHistory* clone() const override;

    bool execute(shared_ptr<Command> command);
    void undo();
    void redo();
    void undoAll();
    void redoAll();
    // Replaces the top two commands by the first's combine() of the second; runs neither.
    void combineLastCommands();
    CommandHistoryState state() const;
    void restoreState(CommandHistoryState const& state);

    int undoLimit() const;
    // A negative limit means none; otherwise drops commands from the bottom of the undo stack.
    void setUndoLimit(int limit);

    CommandHandler* commandHandler() const;
    void setCommandHandler(CommandHandler* handler);

    CommandList const& undoStack() const;
    CommandList const& redoStack() const;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

private:
    void applyUndoLimit();
    // A null target counts as held: unrolling to it empties the stack.
    static bool holds(CommandList const& stack, shared_ptr<Command const> const& target);
    // Unexecutes and pops from the top until the target is on top, each command leaving
    // only once its unexecute returned; the popped ones are appended to undone, top first.
    void unrollStack(CommandList& stack, shared_ptr<Command const> const& target, CommandList& undone);

    CommandHandler* handler_;
    std::unique_ptr<CommandList> undoStack_;
    std::unique_ptr<CommandList> redoStack_;
    int undoLimit_;
};

}  // namespace ZelmarMediaLib
