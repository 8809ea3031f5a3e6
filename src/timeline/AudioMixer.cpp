#include <ZelmarMediaLib/timeline/AudioMixer.h>

#include <ZelmarMediaLib/exceptions/TypeException.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>

#include <ostream>

namespace ZelmarMediaLib {

AudioMixer::AudioMixer(unsigned int sampleRate, unsigned int bitDepth, unsigned int numChannels,
                       weak_ptr<ThreadSafe const> project)
    : Mixer(project),
      sampleRate_(boost::make_shared<Attribute<unsigned int> >(sampleRate, project)),
      bitDepth_(boost::make_shared<Attribute<unsigned int> >(bitDepth, project)),
      numChannels_(boost::make_shared<Attribute<unsigned int> >(numChannels, project)) {}

AudioMixer::AudioMixer(AudioMixer const& other) : AudioMixer(other, WithoutTracks()) {
    for (shared_ptr<Track> const& track : other.tracks_)
        tracks_.push_back(sharedClone(track));
}

AudioMixer::AudioMixer(AudioMixer const& other, WithoutTracks)
    : XMLIdentified(other),
      Mixer(other),
      sampleRate_(other.sampleRate_->clone()),
      bitDepth_(other.bitDepth_->clone()),
      numChannels_(other.numChannels_->clone()) {}

AudioMixer::~AudioMixer() = default;

void AudioMixer::xmlOfAttributes(XMLable::Options& options, int indent) const {
    sampleRate_->toXML(options, indent, "name=\"sampleRate\"");
    bitDepth_->toXML(options, indent, "name=\"bitDepth\"");
    numChannels_->toXML(options, indent, "name=\"numChannels\"");
}

int AudioMixer::numAttributes() const {
    return 3;
}

AudioMixer* AudioMixer::clone() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return new AudioMixer(*this);
}

void AudioMixer::addTrack(shared_ptr<Track> track, int index) {
    if (!dynamic_pointer_cast<AudioTrack>(track))
        throw TypeException("unexpected type for audiomixer::addtrack");
    addTrackSansTypeCheck(track, index);
}

Mixer::TrackList& AudioMixer::trackList() {
    return tracks_;
}

Mixer::TrackList const& AudioMixer::trackList() const {
    return tracks_;
}

void AudioMixer::xmlName(XMLable::Options& options) const {
    *options.stream << "AudioMixer";
}

shared_ptr<AudioTrack> AudioMixer::trackAtIndex(unsigned int index) {
    return static_pointer_cast<AudioTrack>(Mixer::trackAtIndex(index));
}

shared_ptr<AudioTrack const> AudioMixer::trackAtIndex(unsigned int index) const {
    return static_pointer_cast<AudioTrack const>(Mixer::trackAtIndex(index));
}

shared_ptr<Attribute<unsigned int> const> AudioMixer::sampleRate() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return sampleRate_;
}

shared_ptr<Attribute<unsigned int> const> AudioMixer::bitDepth() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return bitDepth_;
}

shared_ptr<Attribute<unsigned int> const> AudioMixer::numChannels() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return numChannels_;
}

shared_ptr<AudioMixer> AudioMixer::copyPortion(Range<long long> const& range, TrackSet const& tracks,
                                               Track::CloneMap* cloneMap) const {
    return copyPortionImpl(this, range, tracks, cloneMap);
}

shared_ptr<AudioMixer> AudioMixer::copyPortion(std::vector<shared_ptr<Media const> > const& medias,
                                               Track::CloneMap* cloneMap) const {
    return copyPortionImpl(this, medias, cloneMap);
}

}  // namespace ZelmarMediaLib
