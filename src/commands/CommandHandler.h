#pragma once
// The inner face of a project: the primitive edits that commands call, and their only path to the model.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>

#include <list>
#include <string>
#include <utility>

namespace ZelmarMediaLib {

class AudioMixer;
class AudioTrack;
class Clipping;
class Effect;
class EdgeModCommandHandler;
class Effectable;
class ImageTrack;
class Media;
class Mixer;
class ParameterInterface;
class Parametric;
class Source;
class Track;
class VisualMixer;
class VisualTrack;
struct EffectRemoval;

// Commands call these from inside execute, unexecute and reexecute, while the project's
// write lock and notification delay are already held: the operations take neither. A const
// object in an argument is the handle by which a command names the object; the edit is done
// on the object behind it. The edits of edge modifications have a handler of their own.
class ZML_EXPORT CommandHandler {
public:
    // What came off, and from where, in the order of removal.
    typedef std::list<std::pair<shared_ptr<Media const>, shared_ptr<Track const> > > RemovedMediaList;

    virtual ~CommandHandler() = default;

    virtual shared_ptr<VisualMixer> visualMixer() const = 0;
    virtual shared_ptr<AudioMixer> audioMixer() const = 0;
    virtual shared_ptr<VisualMixer> newVisualMixer(float width, float height) = 0;
    virtual shared_ptr<VisualMixer> newVisualMixer(shared_ptr<VisualMixer> mixer) = 0;
    virtual shared_ptr<VisualMixer> removeVisualMixer() = 0;
    virtual shared_ptr<AudioMixer> newAudioMixer(unsigned int sampleRate, unsigned int bitDepth,
                                                 unsigned int numChannels) = 0;
    virtual shared_ptr<AudioMixer> newAudioMixer(shared_ptr<AudioMixer> mixer) = 0;
    virtual shared_ptr<AudioMixer> removeAudioMixer() = 0;
    virtual shared_ptr<VisualTrack> newVisualTrack(int index) = 0;
    virtual shared_ptr<ImageTrack> newImageTrack(int index) = 0;
    virtual shared_ptr<AudioTrack> newAudioTrack(int index) = 0;
    // A visual track on the visual mixer, an audio track on the audio mixer.
    virtual shared_ptr<Track> newTrack(shared_ptr<Mixer const> mixer, int index) = 0;
    // Returns the track it was given.
    virtual shared_ptr<Track> addTrack(shared_ptr<Mixer const> mixer, shared_ptr<Track> track, int index) = 0;
    // The removed track and the index it had.
    virtual std::pair<shared_ptr<Track>, int> removeTrack(shared_ptr<Mixer const> mixer,
                                                          shared_ptr<Track const> track) = 0;
    virtual void swapTrackOrder(shared_ptr<Mixer const> mixer, shared_ptr<Track const> first,
                                shared_ptr<Track const> second) = 0;
    virtual void addMedia(shared_ptr<Track const> track, shared_ptr<Media const> media, long long time) = 0;
    // The media with everything linked to it, each from its own track: the linked medias
    // first, the named one last. The track only has to be there.
    virtual shared_ptr<RemovedMediaList> removeMedia(shared_ptr<Track const> track, shared_ptr<Media const> media) = 0;
    // The media alone, left off its track with its start at time.
    virtual void removeMedia(shared_ptr<Track const> track, shared_ptr<Media const> media, long long time) = 0;
    virtual void move(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset) = 0;
    virtual void trimStart(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset) = 0;
    virtual void trimEnd(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset) = 0;
    // Returns the scalar reached.
    virtual double stretch(shared_ptr<Track const> track, shared_ptr<Media const> media, double scalar) = 0;
    // One side only: the other side is the caller's business.
    virtual void addLink(shared_ptr<Media const> media, shared_ptr<Media const> other) = 0;
    virtual void removeLink(shared_ptr<Media const> media, shared_ptr<Media const> other) = 0;
    virtual void addEffect(shared_ptr<Effectable const> effectable, shared_ptr<Effect const> effect) = 0;
    virtual void insertEffect(shared_ptr<Effectable const> effectable, shared_ptr<Effect const> effect,
                              int index) = 0;
    virtual void swapEffectOrder(shared_ptr<Effectable const> effectable, int first, int second) = 0;
    virtual EffectRemoval removeEffect(shared_ptr<Effectable const> effectable, shared_ptr<Effect const> effect) = 0;
    // The times are the owner's; the parameter's key frames are in its own time.
    virtual void moveParameterKeyFrame(shared_ptr<Parametric const> parametric,
                                       shared_ptr<ParameterInterface const> parameter, long long from,
                                       long long to) = 0;
    virtual shared_ptr<Source> loadSource(std::string const& path) = 0;
    virtual void loadSource(shared_ptr<Source const> source) = 0;
    // Refused while the timeline still holds an instance of the source.
    virtual void unloadSource(shared_ptr<Source const> source) = 0;
    virtual void addClipping(shared_ptr<Clipping> clipping) = 0;
    virtual void removeClipping(shared_ptr<Clipping> clipping) = 0;
    // Owned by the handler; the edge modification commands make their edits through it.
    virtual EdgeModCommandHandler* edgeModCommandHandler() = 0;
};

}  // namespace ZelmarMediaLib
