#include <ZelmarMediaLib/commands/CommandPair.h>

#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

#include <ostream>

namespace ZelmarMediaLib {

CommandPair::CommandPair(shared_ptr<Command> first, shared_ptr<Command> second) : first_(first), second_(second) {}

shared_ptr<CommandPair> CommandPair::create(shared_ptr<Command> first, shared_ptr<Command> second) {
    return shared_ptr<CommandPair>(new CommandPair(first, second));
}

CommandPair* CommandPair::clone() const {
    return new CommandPair(*this);
}

// A pair is one undo step, so it runs whole or not at all: whatever the second half throws,
// the library's failures or any other, the first half is taken back before it passes on.
bool CommandPair::execute(CommandHandler* handler) {
    first_->execute(handler);
    try {
        second_->execute(handler);
    } catch (...) {
        first_->unexecute(handler);
        throw;
    }
    return true;
}

// Likewise backwards: a first half that fails to undo gets its second half redone, and the
// model stands as before the call.
bool CommandPair::unexecute(CommandHandler* handler) {
    second_->unexecute(handler);
    try {
        first_->unexecute(handler);
    } catch (...) {
        second_->reexecute(handler);
        throw;
    }
    return true;
}

bool CommandPair::reexecute(CommandHandler* handler) {
    first_->reexecute(handler);
    try {
        second_->reexecute(handler);
    } catch (...) {
        first_->unexecute(handler);
        throw;
    }
    return true;
}

void CommandPair::xmlName(XMLable::Options& options) const {
    *options.stream << "CommandPair";
}

void CommandPair::xmlAttributes(XMLable::Options&) const {}

void CommandPair::xmlBody(XMLable::Options& options, int indent) const {
    std::ostream& out = *options.stream;
    out << "<Command1>\n";
    first_->toXML(options, indent + 1, "");
    out << "</Command1>\n";
    out << "<Command2>\n";
    second_->toXML(options, indent + 1, "");
    out << "</Command2>\n";
}

}  // namespace ZelmarMediaLib
