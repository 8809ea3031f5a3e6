#pragma once
// The stack of audio tracks, with the output format of the project's sound.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/timeline/Mixer.h>

namespace ZelmarMediaLib {

template <class T>
class Attribute;
class AudioTrack;

class ZML_EXPORT AudioMixer : public Mixer {
public:
    AudioMixer(unsigned int sampleRate, unsigned int bitDepth, unsigned int numChannels,
               weak_ptr<ThreadSafe const> project);
    // Copies the attributes and clones every track with its medias.
    AudioMixer(AudioMixer const& other);
    // The same without the tracks, which a portion copy adds itself.
    AudioMixer(AudioMixer const& other, WithoutTracks);
    ~AudioMixer() override;

    // sampleRate, bitDepth and numChannels, in that order.
    void xmlOfAttributes(XMLable::Options& options, int indent) const override;
    int numAttributes() const override;
    AudioMixer* clone() const override;
    // Raises TypeException "unexpected type for audiomixer::addtrack" for any other kind.
    void addTrack(shared_ptr<Track> track, int index) override;
    TrackList& trackList() override;
    TrackList const& trackList() const override;
    void xmlName(XMLable::Options& options) const override;

    // Raises IndexException at or past the end.
    shared_ptr<AudioTrack> trackAtIndex(unsigned int index);
    shared_ptr<AudioTrack const> trackAtIndex(unsigned int index) const;

    shared_ptr<Attribute<unsigned int> const> sampleRate() const;
    shared_ptr<Attribute<unsigned int> const> bitDepth() const;
    shared_ptr<Attribute<unsigned int> const> numChannels() const;

    shared_ptr<AudioMixer> copyPortion(Range<long long> const& range, TrackSet const& tracks,
                                       Track::CloneMap* cloneMap) const;
    shared_ptr<AudioMixer> copyPortion(std::vector<shared_ptr<Media const> > const& medias,
                                       Track::CloneMap* cloneMap) const;

private:
    shared_ptr<Attribute<unsigned int> > sampleRate_;
    shared_ptr<Attribute<unsigned int> > bitDepth_;
    shared_ptr<Attribute<unsigned int> > numChannels_;
    // Only audio tracks enter, through addTrack.
    TrackList tracks_;
};

}  // namespace ZelmarMediaLib
