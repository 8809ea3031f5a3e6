#include <ZelmarMediaLib/commands/CommandHistory.h>

#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

#include <algorithm>
#include <iostream>
#include <iterator>
#include <sstream>

namespace ZelmarMediaLib {

namespace {

void cloneCommands(CommandHistory::CommandList const& from, CommandHistory::CommandList& to) {
    for (shared_ptr<Command> const& command : from)
        to.push_back(shared_ptr<Command>(command->clone()));
}

}  // namespace

CommandHistory::CommandHistory(CommandHandler* handler)
    : handler_(handler), undoStack_(new CommandList), redoStack_(new CommandList), undoLimit_(-1) {}

CommandHistory::CommandHistory(CommandHistory const& other)
    : XMLIdentified(other),
      Subject(other),
      XMLable(other),
      handler_(other.handler_),
      undoStack_(new CommandList),
      redoStack_(new CommandList),
      undoLimit_(other.undoLimit_) {
    cloneCommands(*other.undoStack_, *undoStack_);
    cloneCommands(*other.redoStack_, *redoStack_);
}

CommandHistory::~CommandHistory() = default;

std::string CommandHistory::description() const {
    std::ostringstream out;
    toXML(out);
    return out.str();
}

CommandHistory* CommandHistory::clone() const {
    return new CommandHistory(*this);
}

bool CommandHistory::execute(shared_ptr<Command> command) {
    // An exception passes on with both stacks untouched.
    if (!command->execute(handler_))
        return false;
    undoStack_->push_back(command);
    redoStack_->clear();
    applyUndoLimit();
    notify();
    return true;
}

void CommandHistory::undo() {
    if (undoStack_->empty())
        throw ZelmarMediaLibException("no commands to undo");
    // The command leaves its stack only once it has run: one that raises stays where it was,
    // so the history keeps describing the model and the edit can still be undone.
    shared_ptr<Command> const command = undoStack_->back();
    command->unexecute(handler_);
    undoStack_->pop_back();
    redoStack_->push_back(command);
    notify();
}

void CommandHistory::redo() {
    if (redoStack_->empty())
        throw ZelmarMediaLibException("no commands to redo");
    shared_ptr<Command> const command = redoStack_->back();
    command->reexecute(handler_);
    redoStack_->pop_back();
    // The undo limit is not applied here, so a redo can take the stack over it.
    undoStack_->push_back(command);
    notify();
}

void CommandHistory::undoAll() {
    while (!undoStack_->empty())
        undo();
}

void CommandHistory::redoAll() {
    while (!redoStack_->empty())
        redo();
}

void CommandHistory::combineLastCommands() {
    if (undoStack_->size() < 2)
        return;
    // Combined before either leaves the stack, so that a combine that raises loses nothing.
    shared_ptr<Command> const later = undoStack_->back();
    shared_ptr<Command> const earlier = *std::prev(undoStack_->end(), 2);
    shared_ptr<Command> const combined = earlier->combine(later);
    undoStack_->pop_back();
    undoStack_->pop_back();
    undoStack_->push_back(combined);
}

CommandHistoryState CommandHistory::state() const {
    CommandHistoryState state;
    if (!undoStack_->empty())
        state.undoTop = undoStack_->back();
    state.redoStack = *redoStack_;
    return state;
}

void CommandHistory::restoreState(CommandHistoryState const& state) {
    // A state can only go back: commands executed since it was taken are thrown away.
    CommandList* stack = nullptr;
    if (holds(*undoStack_, state.undoTop))
        stack = undoStack_.get();
    else if (holds(*redoStack_, state.undoTop))
        stack = redoStack_.get();
    else {
        std::cerr << description() << std::endl;
        throw ValueException<CommandHistoryState>("State cannot be restored, cannot find undo top", state);
    }
    CommandList undone;
    try {
        unrollStack(*stack, state.undoTop, undone);
    } catch (...) {
        // What was undone stays undone, so each command goes where the model says it
        // belongs: from the undo stack to the redo stack, as undo() would have put it; a
        // command taken from the redo stack goes back there. The failing one stays put.
        if (stack == undoStack_.get())
            redoStack_->insert(redoStack_->end(), undone.begin(), undone.end());
        else
            redoStack_->insert(redoStack_->end(), undone.rbegin(), undone.rend());
        if (!undone.empty())
            notify();
        throw;
    }
    *redoStack_ = state.redoStack;
    notify();
}

bool CommandHistory::holds(CommandList const& stack, shared_ptr<Command const> const& target) {
    return !target || std::find(stack.begin(), stack.end(), target) != stack.end();
}

void CommandHistory::unrollStack(CommandList& stack, shared_ptr<Command const> const& target,
                                 CommandList& undone) {
    while (!stack.empty() && stack.back() != target) {
        shared_ptr<Command> const command = stack.back();
        command->unexecute(handler_);
        stack.pop_back();
        undone.push_back(command);
    }
}

int CommandHistory::undoLimit() const {
    return undoLimit_;
}

void CommandHistory::setUndoLimit(int limit) {
    undoLimit_ = limit;
    applyUndoLimit();
    notify();
}

void CommandHistory::applyUndoLimit() {
    if (undoLimit_ < 0)
        return;
    while (undoStack_->size() > static_cast<std::size_t>(undoLimit_))
        undoStack_->pop_front();
}

CommandHandler* CommandHistory::commandHandler() const {
    return handler_;
}

void CommandHistory::setCommandHandler(CommandHandler* handler) {
    handler_ = handler;
}

CommandHistory::CommandList const& CommandHistory::undoStack() const {
    return *undoStack_;
}

CommandHistory::CommandList const& CommandHistory::redoStack() const {
    return *redoStack_;
}

void CommandHistory::xmlName(XMLable::Options& options) const {
    *options.stream << "CommandHistory";
}

void CommandHistory::xmlAttributes(XMLable::Options&) const {}

void CommandHistory::xmlBody(XMLable::Options& options, int indent) const {
    std::ostream& out = *options.stream;
    out << genIndent(indent) << "<UndoStack>\n";
    for (shared_ptr<Command> const& command : *undoStack_)
        command->toXML(options, indent + 1, "");
    out << "</UndoStack>\n";
    out << genIndent(indent) << "<RedoStack>\n";
    for (shared_ptr<Command> const& command : *redoStack_)
        command->toXML(options, indent + 1, "");
    out << "</RedoStack>\n";
}

}  // namespace ZelmarMediaLib
