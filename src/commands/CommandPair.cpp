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

// Only the library's own failures are caught: anything else leaves the first half done.
bool CommandPair::execute(CommandHandler* handler) {
    first_->execute(handler);
    try {
        second_->execute(handler);
    } catch (ZelmarMediaLibException const&) {
        first_->unexecute(handler);
        throw;
    }
    return true;
}

bool CommandPair::unexecute(CommandHandler* handler) {
    second_->unexecute(handler);
    first_->unexecute(handler);
    return true;
}

bool CommandPair::reexecute(CommandHandler* handler) {
    first_->reexecute(handler);
    try {
        second_->reexecute(handler);
    } catch (ZelmarMediaLibException const&) {
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
