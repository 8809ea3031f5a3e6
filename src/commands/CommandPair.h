#pragma once
// Two commands merged into one undo step.
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class ZML_EXPORT CommandPair : public Command {
public:
    static shared_ptr<CommandPair> create(shared_ptr<Command> first, shared_ptr<Command> second);

    // A shallow copy that shares both halves, unlike every other command's clone.
    CommandPair* clone() const override;
    // Runs both; if the second raises anything, the first is undone and the exception passes on.
    bool execute(CommandHandler* handler) override;
    // The second is undone first; if the first then raises, the second is redone.
    bool unexecute(CommandHandler* handler) override;
    bool reexecute(CommandHandler* handler) override;

    shared_ptr<Command> const& first() const { return first_; }
    shared_ptr<Command> const& second() const { return second_; }

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    CommandPair(shared_ptr<Command> first, shared_ptr<Command> second);
    CommandPair(CommandPair const& other) = default;

private:
    shared_ptr<Command> first_;
    shared_ptr<Command> second_;
};

}  // namespace ZelmarMediaLib
