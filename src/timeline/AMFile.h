#pragma once
// Channels of an audio file track placed as a media.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/timeline/AudioMedia.h>

#include <iosfwd>
#include <set>
#include <string>
#include <vector>

namespace ZelmarMediaLib {

class ZML_EXPORT AMFile : public AudioMedia {
public:
    typedef std::set<unsigned int> ChannelSet;

    // Channels of a source's audio track; the material's limits are the source's time range,
    // and the sample rate and bit depth are the track's. Raise "trying to make a amfile with an
    // invalid source track" unless the source has that track and it is an audio track, then
    // "... an invalid channel" or "... an invalid channels" for a channel the track lacks.
    AMFile(Range<long long> const& range, weak_ptr<ThreadSafe const> project, shared_ptr<Source const> source,
           unsigned int track, unsigned int channel);
    AMFile(Range<long long> const& range, weak_ptr<ThreadSafe const> project, shared_ptr<Source const> source,
           unsigned int track, ChannelSet const& channels);
    // A file without a source: the figures are given, and the media range is the limits.
    AMFile(Range<long long> const& range, unsigned int sampleRate, unsigned int bitDepth,
           weak_ptr<ThreadSafe const> project, std::string const& file, double mediaStart, double mediaDuration,
           unsigned int track, unsigned int channel);
    AMFile(Range<long long> const& range, unsigned int sampleRate, unsigned int bitDepth,
           weak_ptr<ThreadSafe const> project, std::string const& file, double mediaStart, double mediaDuration,
           unsigned int track, ChannelSet const& channels);
    // Merges the channels of medias of one source, track and media range; built from the
    // set's first member. Raises, building nothing, when the members differ in one of those.
    explicit AMFile(std::set<shared_ptr<AMFile const> > const& members);
    // One channel of another; raises when the other doesn't have it.
    AMFile(shared_ptr<AMFile const> const& other, unsigned int channel);
    AMFile(AMFile const& other);

    std::string description() const override;
    AMFile* clone() const override;
    void receiveDispatcher(ConstMediaDispatcher* dispatcher) const override;
    void receiveDispatcher(MediaDispatcher* dispatcher) override;
    // Whether source is this media's own source, by pointer.
    bool isInstanceOf(shared_ptr<Source const> source) const override;

    virtual int numChannels() const;
    // One media for each channel, in ascending channel order.
    virtual shared_ptr<std::vector<shared_ptr<AMFile> > > splitChannels() const;

    ChannelSet channels() const;
    unsigned int trackNumber() const;
    // With a source, the track's own component file of a bundle, and the bundle; without one,
    // the stored name for both.
    std::string fileName() const;
    std::string containerFileName() const;
    shared_ptr<Source const> source() const;

    void xmlName(XMLable::Options& options) const override;
    // The media's timing, trackNumber, src when there is a source, then channelNumber.
    void xmlAttributes(XMLable::Options& options) const override;

    // Ascending, separated by commas without blanks: "0,1".
    static void writeChannels(std::ostream& out, ChannelSet const& channels);
    static ChannelSet readChannels(std::istream& in);

private:
    // What the source forms take from the source's track once it is known to be audio.
    struct SourceTrackFigures {
        Range<long long> limits;
        unsigned int sampleRate;
        unsigned int bitDepth;
    };

    AMFile(Range<long long> const& range, weak_ptr<ThreadSafe const> project, shared_ptr<Source const> const& source,
           unsigned int track, ChannelSet const& channels, SourceTrackFigures const& figures);

    static SourceTrackFigures checkedSourceTrack(shared_ptr<Source const> const& source, unsigned int track,
                                                 ChannelSet const& channels, char const* channelText);

    // Empty when there is a source, whose statistics give the names.
    std::string fileName_;
    unsigned int trackNumber_;
    shared_ptr<Source const> source_;
    ChannelSet channels_;
};

}  // namespace ZelmarMediaLib
