#pragma once
// The only implementation of Project: owns the model, the history and the lock, and is the commands' handler.
#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/datatypes/Cloneable.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>
#include <ZelmarMediaLib/project/Project.h>

#include <memory>
#include <optional>
#include <string>

namespace ZelmarMediaLib {

class SourceBin;
class Timeline;

// Exported for the unit tests only: applications never name this class.
class ZML_EXPORT InternalProject : public virtual ZelmarObject,
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
    // A deliberately partial copy: a cloned timeline, a cloned history bound to the copy, the
    // text fields afresh, and no source bin, clipboard, lock or observer. A clone is read
    // without a lock.
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

    // The handler's operations take no lock and open no delay: the command path holds both.
    // Only the two mixer getters read-lock.
    shared_ptr<VisualMixer> visualMixer() const override;
    shared_ptr<AudioMixer> audioMixer() const override;
    shared_ptr<VisualMixer> newVisualMixer(float width, float height) override;
    shared_ptr<VisualMixer> newVisualMixer(shared_ptr<VisualMixer> mixer) override;
    shared_ptr<VisualMixer> removeVisualMixer() override;
    shared_ptr<AudioMixer> newAudioMixer(unsigned int sampleRate, unsigned int bitDepth,
                                         unsigned int numChannels) override;
    shared_ptr<AudioMixer> newAudioMixer(shared_ptr<AudioMixer> mixer) override;
    shared_ptr<AudioMixer> removeAudioMixer() override;
    shared_ptr<VisualTrack> newVisualTrack(int index) override;
    shared_ptr<ImageTrack> newImageTrack(int index) override;
    shared_ptr<AudioTrack> newAudioTrack(int index) override;
    // Raises "mixer doesn't belong to project" for a mixer that is neither of the timeline's.
    shared_ptr<Track> newTrack(shared_ptr<Mixer const> mixer, int index) override;
    shared_ptr<Track> addTrack(shared_ptr<Mixer const> mixer, shared_ptr<Track> track, int index) override;
    std::pair<shared_ptr<Track>, int> removeTrack(shared_ptr<Mixer const> mixer,
                                                  shared_ptr<Track const> track) override;
    void swapTrackOrder(shared_ptr<Mixer const> mixer, shared_ptr<Track const> first,
                        shared_ptr<Track const> second) override;
    // The add guard first: a file media must come from this project's source bin.
    void addMedia(shared_ptr<Track const> track, shared_ptr<Media const> media, long long time) override;
    shared_ptr<RemovedMediaList> removeMedia(shared_ptr<Track const> track, shared_ptr<Media const> media) override;
    // The caller guarantees that the media is placed: nothing checks it here.
    void removeMedia(shared_ptr<Track const> track, shared_ptr<Media const> media, long long time) override;
    void move(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset) override;
    void trimStart(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset) override;
    void trimEnd(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset) override;
    double stretch(shared_ptr<Track const> track, shared_ptr<Media const> media, double scalar) override;
    void addLink(shared_ptr<Media const> media, shared_ptr<Media const> other) override;
    void removeLink(shared_ptr<Media const> media, shared_ptr<Media const> other) override;
    void addEffect(shared_ptr<Effectable const> effectable, shared_ptr<Effect const> effect) override;
    void insertEffect(shared_ptr<Effectable const> effectable, shared_ptr<Effect const> effect, int index) override;
    void swapEffectOrder(shared_ptr<Effectable const> effectable, int first, int second) override;
    EffectRemoval removeEffect(shared_ptr<Effectable const> effectable, shared_ptr<Effect const> effect) override;
    void moveParameterKeyFrame(shared_ptr<Parametric const> parametric, shared_ptr<ParameterInterface const> parameter,
                               long long from, long long to) override;
    shared_ptr<Source> loadSource(std::string const& path) override;
    void loadSource(shared_ptr<Source const> source) override;
    void unloadSource(shared_ptr<Source const> source) override;
    void addClipping(shared_ptr<Clipping> clipping) override;
    void removeClipping(shared_ptr<Clipping> clipping) override;
    // Takes no lock. A clone has a handler of its own.
    EdgeModCommandHandler* edgeModCommandHandler() override;

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
    // The project's read lock, or none on a clone.
    std::optional<ReadWriteMutex::ScopedReadLock> readLock() const;
    // The media and each media linked with it must stand on a track; all are checked before
    // anything comes off.
    static void checkParentTracks(shared_ptr<Media const> const& media);
    static void removeSingleMedia(RemovedMediaList& removed, shared_ptr<Media const> const& media);

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
    std::unique_ptr<EdgeModCommandHandler> edgeModCommandHandler_;
};

}  // namespace ZelmarMediaLib
