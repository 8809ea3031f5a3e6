#pragma once
// An undoable edit: applies itself through a CommandHandler and knows how to take itself back.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Cloneable.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

namespace ZelmarMediaLib {

class CommandHandler;

// Every concrete command is made by a static create() and lives in a shared_ptr, since
// combine() needs shared_from_this(). Constructors only store their arguments; model
// objects are named by shared_ptr<X const> handles that keep them alive on the stacks.
class ZML_EXPORT Command : public virtual ZelmarObject,
                public virtual Cloneable,
                public XMLable,
                public enable_shared_from_this<Command> {
public:
    ~Command() override;

    Command* clone() const override = 0;
    // False means there was nothing to do: the history then records nothing.
    virtual bool execute(CommandHandler* handler) = 0;
    virtual bool unexecute(CommandHandler* handler) = 0;
    // Calls execute with the same handler unless a command knows better.
    virtual bool reexecute(CommandHandler* handler);
    // Merges a later command into one undo step; by default a CommandPair of the two.
    virtual shared_ptr<Command> combine(shared_ptr<Command> next);

    static shared_ptr<Command> groupCommands(shared_ptr<Command> first, shared_ptr<Command> second);

protected:
    Command() = default;
    Command(Command const& other) = default;
};

}  // namespace ZelmarMediaLib
