#pragma once
// A command that writes what happens to it into a shared log, and can decline or fail on request.
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace ZelmarMediaLib {
namespace test {

typedef std::vector<std::string> Log;

class RecordingCommand : public Command {
public:
    enum Failure { none, libraryError, foreignError };

    static shared_ptr<RecordingCommand> create(Log* log, std::string const& name) {
        return shared_ptr<RecordingCommand>(new RecordingCommand(log, name));
    }

    RecordingCommand* clone() const override { return new RecordingCommand(*this); }

    bool execute(CommandHandler* handler) override { return record("execute", handler, executeFailure) && accepts; }
    bool unexecute(CommandHandler* handler) override { return record("unexecute", handler, unexecuteFailure); }
    bool reexecute(CommandHandler* handler) override { return record("reexecute", handler, executeFailure); }

    void xmlName(XMLable::Options& options) const override { *options.stream << "RecordingCommand"; }
    void xmlAttributes(XMLable::Options& options) const override { *options.stream << "name=\"" << name << '"'; }
    void xmlBody(XMLable::Options&, int) const override {}

    std::string name;
    bool accepts = true;
    Failure executeFailure = none;
    Failure unexecuteFailure = none;
    CommandHandler* lastHandler = nullptr;

private:
    RecordingCommand(Log* log, std::string const& name) : name(name), log_(log) {}
    RecordingCommand(RecordingCommand const&) = default;

    bool record(char const* what, CommandHandler* handler, Failure failure) {
        lastHandler = handler;
        log_->push_back(std::string(what) + " " + name);
        if (failure == libraryError)
            throw ZelmarMediaLibException(name + " failed");
        if (failure == foreignError)
            throw std::runtime_error(name + " failed");
        return true;
    }

    Log* log_;
};

}  // namespace test
}  // namespace ZelmarMediaLib
