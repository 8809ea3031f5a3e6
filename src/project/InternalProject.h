#pragma once
// The only implementation of Project: owns the model, the history and the lock, and is the commands' handler.
#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/datatypes/Cloneable.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>
#include <ZelmarMediaLib/project/Project.h>

#include <memory>
#include <string>

namespace ZelmarMediaLib {

class ReadWriteMutex;
class SourceBin;
class Timeline;

class InternalProject : public virtual ZelmarObject,
                        public virtual Cloneable,
                        public Project,
                        public CommandHandler,
                        public enable_shared_from_this<InternalProject> {
public:
    // Construction has two steps: the project must live in a shared_ptr before init()
    // can hand weak references to itself to the model objects it makes.
    static shared_ptr<InternalProject> create(rational<unsigned long> editRate);

    ~InternalProject() override;

    std::string description() const override;
    // A deliberately partial copy: a cloned timeline, a cloned history bound to the copy, no
    // source bin, no lock, no observer.
    InternalProject* clone() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

    bool execute(shared_ptr<Command> command) override;
    void undo() override;
    void redo() override;
    void combineLastCommands() override;
    void combineNextCommand() override;
    CommandHistoryState commandState() const override;
    void restoreCommandState(CommandHistoryState const& state) override;
    void attachCommandObserver(CommandObserver* observer) override;
    void detachCommandObserver(CommandObserver* observer) override;
    shared_ptr<Timeline> timeline() const override;
    shared_ptr<SourceBin> sourceBin() const override;
    shared_ptr<CommandHistory> commandHistory() const override;
    // Null on a clone.
    shared_ptr<ClipBoard> clipBoard() override;
    // A null source is refused.
    void changeSourcesFile(shared_ptr<Source const> source, std::string const& path) override;
    void addSourceBinSentry(shared_ptr<SourceBinSentry> sentry) override;

    rational<unsigned long> editRate() const override;
    // A clone has no lock: asking it for one raises.
    ReadWriteMutex& mutex() const override;

    // The commands that run from now on call this handler instead of the project.
    void setCommandHandler(CommandHandler* handler);

    // The document's text fields; the write lock is taken for a change.
    std::string author() const;
    std::string version() const;
    std::string comment() const;
    std::string system() const;
    void setAuthor(std::string const& author);
    void setVersion(std::string const& version);
    void setComment(std::string const& comment);
    void setSystem(std::string const& system);

protected:
    explicit InternalProject(rational<unsigned long> editRate);
    InternalProject(InternalProject const& other);
    InternalProject& operator=(InternalProject const&);

    // Makes the model objects that the project owns: the source bin, the timeline, the clipboard.
    void init();

private:
    void setText(std::string& field, std::string const& value);

    shared_ptr<Timeline> timeline_;
    shared_ptr<SourceBin> sourceBin_;
    shared_ptr<CommandHistory> commandHistory_;
    shared_ptr<ClipBoard> clipBoard_;
    rational<unsigned long> editRate_;
    std::string author_;
    std::string version_;
    std::string comment_;
    std::string system_;
    // Declared after the model so that it dies before it: nothing that dies with the
    // model may take the lock, whose weak references have expired by then anyway.
    std::unique_ptr<ReadWriteMutex> mutex_;
    CommandObserver* commandObserver_;
    bool combineNext_;
};

}  // namespace ZelmarMediaLib
