#pragma once
// The top of a document's time structure: at most one visual and one audio mixer, and a marker track.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Cloneable.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Range.h>
#include <ZelmarMediaLib/datatypes/SubProject.h>
#include <ZelmarMediaLib/datatypes/Subject.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>
#include <ZelmarMediaLib/exceptions/AddRemoveException.h>
#include <ZelmarMediaLib/parameters/Parametric.h>
#include <ZelmarMediaLib/timeline/Mixer.h>
#include <ZelmarMediaLib/timeline/Temporal.h>
#include <ZelmarMediaLib/timeline/Track.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace ZelmarMediaLib {

class AbstractVisualTrack;
class AudioMixer;
class AudioTrack;
template <class T>
class LeftParameter;
class Source;
class VisualMixer;

// Reads take the project's read lock; edits take none, since commands hold the write lock.
class ZML_EXPORT Timeline : public SubProject,
                 public XMLable,
                 public virtual Cloneable,
                 public Subject,
                 public Temporal,
                 public Parametric {
public:
    typedef std::set<shared_ptr<Track const> > TrackSet;

    // No mixers, and a marker parameter without keyframes.
    explicit Timeline(weak_ptr<ThreadSafe const> project);
    // Clones each mixer with its tracks and medias, and the marker. Links between the cloned
    // medias are not rebuilt: only copyPortion does that.
    Timeline(Timeline const& other);
    ~Timeline() override;

    Timeline* clone() const override;
    // Raise AddRemoveException when the slot is taken already.
    virtual shared_ptr<VisualMixer> newVisualMixer(float width, float height);
    virtual shared_ptr<VisualMixer> newVisualMixer(shared_ptr<VisualMixer> mixer);
    // Raises AddRemoveException when the slot is empty.
    virtual shared_ptr<VisualMixer> removeVisualMixer();
    // Sample rate, bit depth and channel count.
    virtual shared_ptr<AudioMixer> newAudioMixer(unsigned int sampleRate, unsigned int bitDepth,
                                                 unsigned int numChannels);
    virtual shared_ptr<AudioMixer> newAudioMixer(shared_ptr<AudioMixer> mixer);
    virtual shared_ptr<AudioMixer> removeAudioMixer();
    virtual std::pair<shared_ptr<Track>, int> removeTrack(shared_ptr<Mixer> mixer, shared_ptr<Track const> track);
    // Raise AddRemoveException when the timeline has no mixer of that kind.
    virtual std::pair<shared_ptr<AbstractVisualTrack>, int> removeVisualTrack(
        shared_ptr<AbstractVisualTrack const> track);
    virtual std::pair<shared_ptr<AudioTrack>, int> removeAudioTrack(shared_ptr<AudioTrack const> track);
    // The greater of the mixers' ends, and never below 0.
    long long endTime() const override;
    // The lesser of the mixers' starts; 0 without mixers.
    long long startTime() const override;
    long long duration() const override;
    // The marker is keyed in global time.
    double toParameterTime(double time) const override;
    double fromParameterTime(double time) const override;
    long long fromGlobalToParametricTime(long long time) const override;
    int numParameters() const override;
    ParameterVector* parameterVector() const override;
    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    // The mixers that exist, visual first, one level deeper than received. The marker is not
    // written here.
    void xmlBody(XMLable::Options& options, int indent) const override;

    shared_ptr<VisualMixer> visualMixer() const;
    shared_ptr<AudioMixer> audioMixer() const;
    void addTrack(shared_ptr<Mixer> mixer, shared_ptr<Track> track, int index);

    // The mixer must be this timeline's own mixer of T's kind, else ZelmarMediaLibException
    // "can't add audio tracks to mixer" or "can't add visual tracks to mixer"; with no such
    // mixer at all, AddRemoveException with one text for every kind.
    template <class T>
    shared_ptr<T> newTrack(shared_ptr<Mixer> mixer, int index) {
        MixerSlot const slot = slotFor(static_cast<T const*>(nullptr));
        if (mixer != slot.mixer)
            throw ZelmarMediaLibException(slot.foreignText);
        if (!mixer)
            throw AddRemoveException("Can't create a new audio track if we don't have a audio mixer to put it on");
        return mixer->newTrack<T>(index);
    }

    // Both mixers' tracks; a missing mixer counts as none.
    int numTracks() const;
    // The visual mixer's medias, then the audio mixer's; track by track in list order, each
    // track in time order.
    shared_ptr<Track::MediaList> allMedias() const;
    bool hasInstanceOf(shared_ptr<Source const> source) const;
    shared_ptr<Track::MediaList> instancesOf(shared_ptr<Source const> source) const;

    // Keyframes carry a string and hold until the next one.
    shared_ptr<LeftParameter<std::string> > markerParam();
    shared_ptr<LeftParameter<std::string> const> markerParam() const;

    // A new timeline with the part of the range on the given tracks, widened by the tracks
    // that their medias are linked into, with the clones linked as their originals were. A
    // kind of mixer of which no track is copied is left out.
    shared_ptr<Timeline> copyPortion(Range<long long> const& range, TrackSet const& tracks,
                                     Track::CloneMap* cloneMap) const;
    // The same with untrimmed clones of the named medias, and no widening.
    shared_ptr<Timeline> copyPortion(std::vector<shared_ptr<Media const> > const& medias,
                                     Track::CloneMap* cloneMap) const;

private:
    // A track kind's mixer, and the text that refuses another mixer for it.
    struct MixerSlot {
        shared_ptr<Mixer> mixer;
        char const* foreignText;
    };
    struct WithoutMixers {};

    // The marker alone, for a portion copy that brings its own mixers.
    Timeline(Timeline const& other, WithoutMixers);

    MixerSlot slotFor(AudioTrack const*) const;
    MixerSlot slotFor(AbstractVisualTrack const*) const;

    shared_ptr<VisualMixer> visualMixer_;
    shared_ptr<AudioMixer> audioMixer_;
    shared_ptr<LeftParameter<std::string> > marker_;
};

}  // namespace ZelmarMediaLib
