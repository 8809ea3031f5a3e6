#pragma once
// The one object an application holds: it runs commands, walks their history and hands out the model.
#include <ZelmarMediaLib/commands/CommandHistoryState.h>
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/ProjectEditRate.h>
#include <ZelmarMediaLib/datatypes/Subject.h>
#include <ZelmarMediaLib/datatypes/ThreadSafe.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>

#include <string>

namespace ZelmarMediaLib {

class Command;
class ClipBoard;
class CommandHistory;
class CommandObserver;
class Source;
class SourceBin;
class SourceBinSentry;
class Timeline;

// Every change goes through execute(); each call is complete when it returns.
class ZML_EXPORT Project : public XMLable, public virtual ThreadSafe, public ProjectEditRate, public Subject {
public:
    // Raises boost::bad_rational for a zero denominator.
    static shared_ptr<Project> create(unsigned int numerator, unsigned int denominator);
    static shared_ptr<Project> create(rational<unsigned long> editRate);

    ~Project() override;

    // False when the command had nothing to do; the history then records nothing.
    virtual bool execute(shared_ptr<Command> command) = 0;
    virtual void undo() = 0;
    virtual void redo() = 0;
    virtual void combineLastCommands() = 0;
    // The next command executed merges into the previous one as a single undo step.
    virtual void combineNextCommand() = 0;
    virtual CommandHistoryState commandState() const = 0;
    virtual void restoreCommandState(CommandHistoryState const& state) = 0;
    // One observer at a time.
    virtual void attachCommandObserver(CommandObserver* observer) = 0;
    virtual void detachCommandObserver(CommandObserver* observer) = 0;
    // The model that the project owns, for reading; it changes only through commands.
    virtual shared_ptr<Timeline> timeline() const = 0;
    virtual shared_ptr<SourceBin> sourceBin() const = 0;
    virtual shared_ptr<CommandHistory> commandHistory() const = 0;
    // The clippings that cut and copy made.
    virtual shared_ptr<ClipBoard> clipBoard() = 0;
    // Not commands, and not undone: the source that the handle names is pointed at another
    // file of the same kind, and a sentry joins the source bin. Neither takes the lock.
    virtual void changeSourcesFile(shared_ptr<Source const> source, std::string const& path) = 0;
    virtual void addSourceBinSentry(shared_ptr<SourceBinSentry> sentry) = 0;
};

}  // namespace ZelmarMediaLib
