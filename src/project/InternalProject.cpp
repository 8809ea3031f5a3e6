#include <ZelmarMediaLib/project/InternalProject.h>

#include <ZelmarMediaLib/clipbin/Source.h>
#include <ZelmarMediaLib/clipbin/ClipBoard.h>
#include <ZelmarMediaLib/clipbin/SourceBin.h>
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/commands/CommandHistory.h>
#include <ZelmarMediaLib/datatypes/NotifyDelay.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/project/CommandObserver.h>
#include <ZelmarMediaLib/timeline/Timeline.h>

#include <ostream>

namespace ZelmarMediaLib {

namespace {
char const* const defaultVersion = "1.0";
}

InternalProject::InternalProject(rational<unsigned long> editRate)
    : commandHistory_(boost::make_shared<CommandHistory>(this)),
      editRate_(editRate),
      version_(defaultVersion),
      mutex_(new ReadWriteMutex),
      commandObserver_(nullptr),
      combineNext_(false) {}

InternalProject::InternalProject(InternalProject const& other)
    : XMLIdentified(other),
      Project(other),
      CommandHandler(other),
      enable_shared_from_this<InternalProject>(),
      timeline_(other.timeline_ ? other.timeline_->clone() : nullptr),
      commandHistory_(other.commandHistory_->clone()),
      editRate_(other.editRate_),
      version_(defaultVersion),
      commandObserver_(nullptr),
      combineNext_(false) {
    commandHistory_->setCommandHandler(this);
}

InternalProject& InternalProject::operator=(InternalProject const&) {
    return *this;
}

InternalProject::~InternalProject() = default;

shared_ptr<InternalProject> InternalProject::create(rational<unsigned long> editRate) {
    shared_ptr<InternalProject> project(new InternalProject(editRate));
    project->init();
    return project;
}

void InternalProject::init() {
    // Raises bad_weak_ptr unless the project already lives in a shared_ptr. The model holds
    // only weak references to the project, so that the project owns it without a cycle.
    shared_ptr<InternalProject> const self = shared_from_this();
    sourceBin_ = boost::make_shared<SourceBin>(weak_ptr<ThreadSafe const>(self), weak_ptr<ProjectEditRate>(self));
    timeline_ = boost::make_shared<Timeline>(weak_ptr<ThreadSafe const>(self));
    clipBoard_ = boost::make_shared<ClipBoard>(weak_ptr<ThreadSafe const>(self));
}

std::string InternalProject::description() const {
    return std::string();
}

InternalProject* InternalProject::clone() const {
    return new InternalProject(*this);
}

void InternalProject::xmlName(XMLable::Options& options) const {
    *options.stream << "Project";
}

void InternalProject::xmlAttributes(XMLable::Options& options) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    *options.stream << "editRate=\"" << editRate_.numerator() << '/' << editRate_.denominator() << "\" version=\""
                    << version_ << '"';
}

void InternalProject::xmlBody(XMLable::Options& options, int indent) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    std::ostream& out = *options.stream;
    // The text fields go out as they stand, unescaped.
    std::string const blanks = genIndent(indent);
    out << blanks << "<Author>" << author_ << "</Author>\n";
    out << blanks << "<Comment>" << comment_ << "</Comment>\n";
    out << blanks << "<System>" << system_ << "</System>\n";
    // At the level received, unlike most bodies, which go one deeper.
    if (sourceBin_)
        sourceBin_->toXML(options, indent, "");
    if (timeline_)
        timeline_->toXML(options, indent, "");
}

bool InternalProject::execute(shared_ptr<Command> command) {
    // Unlike undo and redo, the observer hears before the lock is taken.
    if (commandObserver_)
        commandObserver_->preCommand();
    ReadWriteMutex::ScopedWriteLock lock(&mutex());
    NotifyDelay delay;
    bool const result = commandHistory_->execute(command);
    // Even a command that declined consumes the flag; then the two commands on top of
    // the stack, neither of them the declined one, become one step. An exception above
    // leaves the flag set.
    if (combineNext_) {
        combineLastCommands();
        combineNext_ = false;
    }
    return result;
}

void InternalProject::undo() {
    ReadWriteMutex::ScopedWriteLock lock(&mutex());
    if (commandObserver_)
        commandObserver_->preCommand();
    NotifyDelay delay;
    commandHistory_->undo();
}

void InternalProject::redo() {
    ReadWriteMutex::ScopedWriteLock lock(&mutex());
    if (commandObserver_)
        commandObserver_->preCommand();
    NotifyDelay delay;
    commandHistory_->redo();
}

void InternalProject::combineLastCommands() {
    ReadWriteMutex::ScopedWriteLock lock(&mutex());
    commandHistory_->combineLastCommands();
}

void InternalProject::combineNextCommand() {
    combineNext_ = true;
}

CommandHistoryState InternalProject::commandState() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return commandHistory_->state();
}

void InternalProject::restoreCommandState(CommandHistoryState const& state) {
    ReadWriteMutex::ScopedWriteLock lock(&mutex());
    if (commandObserver_)
        commandObserver_->preCommand();
    NotifyDelay delay;
    commandHistory_->restoreState(state);
}

void InternalProject::attachCommandObserver(CommandObserver* observer) {
    if (commandObserver_)
        throw ZelmarMediaLibException("currently only supports one observer.");
    commandObserver_ = observer;
}

void InternalProject::detachCommandObserver(CommandObserver* observer) {
    // A null pointer matches the empty slot.
    if (observer != commandObserver_)
        throw ZelmarMediaLibException("trying to detach a non observer");
    commandObserver_ = nullptr;
}

shared_ptr<Timeline> InternalProject::timeline() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return timeline_;
}

shared_ptr<SourceBin> InternalProject::sourceBin() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return sourceBin_;
}

void InternalProject::changeSourcesFile(shared_ptr<Source const> source, std::string const& path) {
    if (!source)
        throw ZelmarMediaLibException("attempting to change the file of a null source");
    const_pointer_cast<Source>(source)->changeFile(path);
}

void InternalProject::addSourceBinSentry(shared_ptr<SourceBinSentry> sentry) {
    if (!sourceBin_)
        throw ZelmarMediaLibException("a project clone has no source bin");
    sourceBin_->addSentry(sentry);
}

shared_ptr<ClipBoard> InternalProject::clipBoard() {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return clipBoard_;
}

shared_ptr<CommandHistory> InternalProject::commandHistory() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return commandHistory_;
}

rational<unsigned long> InternalProject::editRate() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return editRate_;
}

ReadWriteMutex& InternalProject::mutex() const {
    // A clone is made without a lock; asking it for one is a caller's fault.
    if (!mutex_)
        throw ZelmarMediaLibException("a project clone has no lock");
    return *mutex_;
}

void InternalProject::setCommandHandler(CommandHandler* handler) {
    commandHistory_->setCommandHandler(handler);
}

std::string InternalProject::author() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return author_;
}

std::string InternalProject::version() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return version_;
}

std::string InternalProject::comment() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return comment_;
}

std::string InternalProject::system() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return system_;
}

void InternalProject::setAuthor(std::string const& author) {
    setText(author_, author);
}

void InternalProject::setVersion(std::string const& version) {
    setText(version_, version);
}

void InternalProject::setComment(std::string const& comment) {
    setText(comment_, comment);
}

void InternalProject::setSystem(std::string const& system) {
    setText(system_, system);
}

void InternalProject::setText(std::string& field, std::string const& value) {
    ReadWriteMutex::ScopedWriteLock lock(&mutex());
    NotifyDelay delay;
    field = value;
    notify();
}

}  // namespace ZelmarMediaLib
