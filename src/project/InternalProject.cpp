#include <ZelmarMediaLib/project/detail/InternalProject.h>

#include <ZelmarMediaLib/clipbin/ClipBoard.h>
#include <ZelmarMediaLib/clipbin/Source.h>
#include <ZelmarMediaLib/clipbin/SourceBin.h>
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/commands/CommandHistory.h>
#include <ZelmarMediaLib/commands/edgemods/DefaultEdgeModCommandHandler.h>
#include <ZelmarMediaLib/commands/keyframes/KeyFrameTime.h>
#include <ZelmarMediaLib/commands/placement/AddMediaGuard.h>
#include <ZelmarMediaLib/datatypes/NotifyDelay.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/effects/Effect.h>
#include <ZelmarMediaLib/effects/Effectable.h>
#include <ZelmarMediaLib/exceptions/DanglingWeakPtrException.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/parameters/ParameterInterface.h>
#include <ZelmarMediaLib/project/CommandObserver.h>
#include <ZelmarMediaLib/timeline/AudioMixer.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>
#include <ZelmarMediaLib/timeline/ImageTrack.h>
#include <ZelmarMediaLib/timeline/Media.h>
#include <ZelmarMediaLib/timeline/Timeline.h>
#include <ZelmarMediaLib/timeline/VisualMixer.h>
#include <ZelmarMediaLib/timeline/VisualTrack.h>

#include <optional>
#include <ostream>
#include <utility>

namespace ZelmarMediaLib {

namespace {
char const* const defaultVersion = "1.0";

// The object behind a command's handle, which the project edits; a null handle is refused.
template <class T>
shared_ptr<T> editable(shared_ptr<T const> const& handle, char const* refusal) {
    if (!handle)
        throw ZelmarMediaLibException(refusal);
    return const_pointer_cast<T>(handle);
}

char const* const nullTrackText = "attempting to edit a media on a null track";
char const* const nullMediaText = "attempting to link a null media";
char const* const nullEffectableText = "attempting to edit the effects of nothing";
}

InternalProject::InternalProject(rational<unsigned long> editRate)
    : commandHistory_(boost::make_shared<CommandHistory>(this)),
      editRate_(editRate),
      version_(defaultVersion),
      mutex_(new ReadWriteMutex),
      commandObserver_(nullptr),
      combineNext_(false),
      edgeModCommandHandler_(new DefaultEdgeModCommandHandler) {}

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
      combineNext_(false),
      edgeModCommandHandler_(new DefaultEdgeModCommandHandler) {
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
    auto const lock = readLock();
    *options.stream << "editRate=\"" << editRate_.numerator() << '/' << editRate_.denominator() << "\" version=\""
                    << version_ << '"';
}

void InternalProject::xmlBody(XMLable::Options& options, int indent) const {
    auto const lock = readLock();
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
    // The flag is read by execute under the write lock, so it is set under it too.
    ReadWriteMutex::ScopedWriteLock lock(&mutex());
    combineNext_ = true;
}

CommandHistoryState InternalProject::commandState() const {
    auto const lock = readLock();
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
    ReadWriteMutex::ScopedWriteLock lock(&mutex());
    if (commandObserver_)
        throw ZelmarMediaLibException("currently only supports one observer.");
    commandObserver_ = observer;
}

void InternalProject::detachCommandObserver(CommandObserver* observer) {
    ReadWriteMutex::ScopedWriteLock lock(&mutex());
    // A null pointer matches the empty slot.
    if (observer != commandObserver_)
        throw ZelmarMediaLibException("trying to detach a non observer");
    commandObserver_ = nullptr;
}

shared_ptr<Timeline> InternalProject::timeline() const {
    auto const lock = readLock();
    return timeline_;
}

shared_ptr<SourceBin> InternalProject::sourceBin() const {
    auto const lock = readLock();
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
    auto const lock = readLock();
    return clipBoard_;
}

shared_ptr<CommandHistory> InternalProject::commandHistory() const {
    auto const lock = readLock();
    return commandHistory_;
}

rational<unsigned long> InternalProject::editRate() const {
    auto const lock = readLock();
    return editRate_;
}

ReadWriteMutex& InternalProject::mutex() const {
    // A clone is made without a lock; asking it for one is a caller's fault.
    if (!mutex_)
        throw ZelmarMediaLibException("a project clone has no lock");
    return *mutex_;
}

shared_ptr<VisualMixer> InternalProject::visualMixer() const {
    auto const lock = readLock();
    return timeline_->visualMixer();
}

shared_ptr<AudioMixer> InternalProject::audioMixer() const {
    auto const lock = readLock();
    return timeline_->audioMixer();
}

shared_ptr<VisualMixer> InternalProject::newVisualMixer(float width, float height) {
    return timeline_->newVisualMixer(width, height);
}

shared_ptr<VisualMixer> InternalProject::newVisualMixer(shared_ptr<VisualMixer> mixer) {
    return timeline_->newVisualMixer(mixer);
}

shared_ptr<VisualMixer> InternalProject::removeVisualMixer() {
    return timeline_->removeVisualMixer();
}

shared_ptr<AudioMixer> InternalProject::newAudioMixer(unsigned int sampleRate, unsigned int bitDepth,
                                                      unsigned int numChannels) {
    return timeline_->newAudioMixer(sampleRate, bitDepth, numChannels);
}

shared_ptr<AudioMixer> InternalProject::newAudioMixer(shared_ptr<AudioMixer> mixer) {
    return timeline_->newAudioMixer(mixer);
}

shared_ptr<AudioMixer> InternalProject::removeAudioMixer() {
    return timeline_->removeAudioMixer();
}

shared_ptr<VisualTrack> InternalProject::newVisualTrack(int index) {
    return timeline_->newTrack<VisualTrack>(timeline_->visualMixer(), index);
}

shared_ptr<ImageTrack> InternalProject::newImageTrack(int index) {
    return timeline_->newTrack<ImageTrack>(timeline_->visualMixer(), index);
}

shared_ptr<AudioTrack> InternalProject::newAudioTrack(int index) {
    return timeline_->newTrack<AudioTrack>(timeline_->audioMixer(), index);
}

shared_ptr<Track> InternalProject::newTrack(shared_ptr<Mixer const> mixer, int index) {
    shared_ptr<VisualMixer> const visual = timeline_->visualMixer();
    if (mixer && mixer == visual)
        return timeline_->newTrack<VisualTrack>(visual, index);
    shared_ptr<AudioMixer> const audio = timeline_->audioMixer();
    if (mixer && mixer == audio)
        return timeline_->newTrack<AudioTrack>(audio, index);
    throw ZelmarMediaLibException("mixer doesn't belong to project");
}

shared_ptr<Track> InternalProject::addTrack(shared_ptr<Mixer const> mixer, shared_ptr<Track> track, int index) {
    timeline_->addTrack(const_pointer_cast<Mixer>(mixer), track, index);
    return track;
}

std::pair<shared_ptr<Track>, int> InternalProject::removeTrack(shared_ptr<Mixer const> mixer,
                                                               shared_ptr<Track const> track) {
    return timeline_->removeTrack(const_pointer_cast<Mixer>(mixer), track);
}

void InternalProject::swapTrackOrder(shared_ptr<Mixer const> mixer, shared_ptr<Track const> first,
                                     shared_ptr<Track const> second) {
    editable(mixer, "attempting to swap tracks on a null mixer")->swapTrackOrder(first, second);
}

void InternalProject::addMedia(shared_ptr<Track const> track, shared_ptr<Media const> media, long long time) {
    shared_ptr<Track> const target = editable(track, "attempting to add a media to a null track");
    AddMediaGuard::instance()->performGuard(sourceBin_, media);
    target->addMedia(const_pointer_cast<Media>(media), time);
}

// Each media comes off its own parent track: the track named is only checked for null.
//   track 1:  [A ]            ->
//   track 2:  [A']   [B ]     ->          [B ]      returns ((A', 2), (A, 1))
shared_ptr<CommandHandler::RemovedMediaList> InternalProject::removeMedia(shared_ptr<Track const> track,
                                                                          shared_ptr<Media const> media) {
    if (!track)
        throw ZelmarMediaLibException("attempting to remove a media with a null track");
    checkParentTracks(media);
    shared_ptr<RemovedMediaList> const removed = boost::make_shared<RemovedMediaList>();
    // A removal leaves the links standing, so the list can be walked while medias come off.
    for (ConstIterator<Media::LinkList> link = media->linkBegin(), end = media->linkEnd(); link != end; ++link)
        removeSingleMedia(*removed, link->lock());
    removeSingleMedia(*removed, media);
    return removed;
}

void InternalProject::removeMedia(shared_ptr<Track const>, shared_ptr<Media const> media, long long time) {
    shared_ptr<Media> const placed = editable(media, "attempting to remove a null media");
    shared_ptr<Track> const track = placed->parentTrack().lock();
    // Callers guarantee a placed media; a null track is still never dereferenced.
    if (!track)
        throw ZelmarMediaLibException("trying to remove a media thats already removed");
    track->removeMedia(placed, false);
    // Another media under the same start is what came off instead; then this one is still placed.
    if (!placed->parentTrack().expired())
        throw ValueException<shared_ptr<Media> >("trying to edit parented media like a parentless media", placed);
    placed->setTrackStart(time);
}

void InternalProject::move(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset) {
    editable(track, nullTrackText)->move(media, offset, true);
}

void InternalProject::trimStart(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset) {
    editable(track, nullTrackText)->trimStart(media, offset, true);
}

void InternalProject::trimEnd(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset) {
    editable(track, nullTrackText)->trimEnd(media, offset, true);
}

double InternalProject::stretch(shared_ptr<Track const> track, shared_ptr<Media const> media, double scalar) {
    return editable(track, nullTrackText)->stretch(media, scalar, true);
}

void InternalProject::addLink(shared_ptr<Media const> media, shared_ptr<Media const> other) {
    editable(media, nullMediaText)->addLink(editable(other, nullMediaText));
}

void InternalProject::removeLink(shared_ptr<Media const> media, shared_ptr<Media const> other) {
    editable(media, nullMediaText)->removeLink(editable(other, nullMediaText));
}

void InternalProject::addEffect(shared_ptr<Effectable const> effectable, shared_ptr<Effect const> effect) {
    editable(effectable, nullEffectableText)->addEffect(const_pointer_cast<Effect>(effect));
}

void InternalProject::insertEffect(shared_ptr<Effectable const> effectable, shared_ptr<Effect const> effect,
                                   int index) {
    editable(effectable, nullEffectableText)->insertEffect(const_pointer_cast<Effect>(effect), index);
}

void InternalProject::swapEffectOrder(shared_ptr<Effectable const> effectable, int first, int second) {
    editable(effectable, nullEffectableText)->swapEffectOrder(first, second);
}

EffectRemoval InternalProject::removeEffect(shared_ptr<Effectable const> effectable,
                                            shared_ptr<Effect const> effect) {
    return editable(effectable, nullEffectableText)->removeEffect(effect);
}

void InternalProject::moveParameterKeyFrame(shared_ptr<Parametric const> parametric,
                                            shared_ptr<ParameterInterface const> parameter, long long from,
                                            long long to) {
    if (!parametric || !parameter)
        throw ZelmarMediaLibException("attempting to move a key frame of a null parameter");
    long long const convertedFrom = toParameterKeyFrameTime(*parametric, from);
    long long const convertedTo = toParameterKeyFrameTime(*parametric, to);
    const_pointer_cast<ParameterInterface>(parameter)->moveKeyFrame(convertedFrom, convertedTo);
}

shared_ptr<Source> InternalProject::loadSource(std::string const& path) {
    return sourceBin_->loadFile(path);
}

void InternalProject::loadSource(shared_ptr<Source const> source) {
    sourceBin_->addSource(const_pointer_cast<Source>(source));
}

void InternalProject::unloadSource(shared_ptr<Source const> source) {
    if (timeline_->hasInstanceOf(source))
        throw ValueException<shared_ptr<Source const> >(
            "unable to remove a source that still has instances on the timeline.", source);
    sourceBin_->removeSource(source);
}

void InternalProject::addClipping(shared_ptr<Clipping> clipping) {
    clipBoard_->addClipping(clipping);
}

void InternalProject::removeClipping(shared_ptr<Clipping> clipping) {
    clipBoard_->removeClipping(clipping);
}

void InternalProject::checkParentTracks(shared_ptr<Media const> const& media) {
    if (!media)
        throw ZelmarMediaLibException("attempting to remove a null media");
    if (media->parentTrack().expired())
        throw ZelmarMediaLibException("attempting to remove with null parent");
    for (ConstIterator<Media::LinkList> link = media->linkBegin(), end = media->linkEnd(); link != end; ++link) {
        shared_ptr<Media const> const linked = link->lock();
        if (!linked)
            throw DanglingWeakPtrException<Media>("dead link when removing a media", *link);
        if (linked->parentTrack().expired())
            throw ZelmarMediaLibException("attempting to remove with null parent");
    }
}

void InternalProject::removeSingleMedia(RemovedMediaList& removed, shared_ptr<Media const> const& media) {
    shared_ptr<Track const> const track = media->parentTrack().lock();
    if (!track)
        throw ZelmarMediaLibException("trying to remove a media thats already removed");
    const_pointer_cast<Track>(track)->removeMedia(const_pointer_cast<Media>(media), false);
    removed.push_back(std::make_pair(media, track));
}

std::optional<ReadWriteMutex::ScopedReadLock> InternalProject::readLock() const {
    // A clone is nobody's shared document: it is read without a lock, since it has none.
    if (!mutex_)
        return std::nullopt;
    return std::optional<ReadWriteMutex::ScopedReadLock>(std::in_place, mutex_.get());
}

EdgeModCommandHandler* InternalProject::edgeModCommandHandler() {
    return edgeModCommandHandler_.get();
}

void InternalProject::setCommandHandler(CommandHandler* handler) {
    commandHistory_->setCommandHandler(handler);
}

std::string InternalProject::author() const {
    auto const lock = readLock();
    return author_;
}

std::string InternalProject::version() const {
    auto const lock = readLock();
    return version_;
}

std::string InternalProject::comment() const {
    auto const lock = readLock();
    return comment_;
}

std::string InternalProject::system() const {
    auto const lock = readLock();
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
