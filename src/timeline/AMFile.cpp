#include <ZelmarMediaLib/timeline/AMFile.h>

#include <ZelmarMediaLib/clipbin/MediaFileStats.h>
#include <ZelmarMediaLib/clipbin/Source.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/edgemods/EdgeModCloneUtil.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/timeline/MediaDispatcher.h>
#include <ZelmarMediaLib/timeline/VisualFileMedia.h>

#include <istream>
#include <ostream>

namespace ZelmarMediaLib {

namespace {

shared_ptr<AMFile const> const& firstMember(std::set<shared_ptr<AMFile const> > const& members) {
    if (members.empty())
        throw ZelmarMediaLibException("trying to merge an empty set of amfiles");
    return *members.begin();
}

}  // namespace

AMFile::AMFile(Range<long long> const& range, weak_ptr<ThreadSafe const> project, shared_ptr<Source const> source,
               unsigned int track, unsigned int channel)
    : AMFile(
          range, project, source, track, ChannelSet{channel},
          checkedSourceTrack(source, track, ChannelSet{channel}, "trying to make a amfile with an invalid channel")) {}

AMFile::AMFile(Range<long long> const& range, weak_ptr<ThreadSafe const> project, shared_ptr<Source const> source,
               unsigned int track, ChannelSet const& channels)
    : AMFile(range, project, source, track, channels,
             checkedSourceTrack(source, track, channels, "trying to make a amfile with an invalid channels")) {}

AMFile::AMFile(Range<long long> const& range, weak_ptr<ThreadSafe const> project,
               shared_ptr<Source const> const& source, unsigned int track, ChannelSet const& channels,
               SourceTrackFigures const& figures)
    : AudioMedia(range, figures.sampleRate, figures.bitDepth, static_cast<double>(figures.limits.start),
                 static_cast<double>(figures.limits.duration), project),
      trackNumber_(track),
      source_(source),
      channels_(channels) {}

AMFile::AMFile(Range<long long> const& range, unsigned int sampleRate, unsigned int bitDepth,
               weak_ptr<ThreadSafe const> project, std::string const& file, double mediaStart, double mediaDuration,
               unsigned int track, unsigned int channel)
    : AMFile(range, sampleRate, bitDepth, project, file, mediaStart, mediaDuration, track, ChannelSet{channel}) {}

AMFile::AMFile(Range<long long> const& range, unsigned int sampleRate, unsigned int bitDepth,
               weak_ptr<ThreadSafe const> project, std::string const& file, double mediaStart, double mediaDuration,
               unsigned int track, ChannelSet const& channels)
    : AudioMedia(range, sampleRate, bitDepth, mediaStart, mediaDuration, project),
      fileName_(file),
      trackNumber_(track),
      channels_(channels) {}

AMFile::AMFile(std::set<shared_ptr<AMFile const> > const& members)
    : XMLIdentified(), AudioMedia(*firstMember(members)), fileName_(firstMember(members)->fileName_),
      trackNumber_(firstMember(members)->trackNumber_),
      source_(Source::owningReference(firstMember(members)->source_)),
      channels_(firstMember(members)->channels_) {
    // Every member is validated before any channel is taken, so a refused merge builds nothing.
    Range<double> const ownRange = mediaRange();
    for (shared_ptr<AMFile const> const& member : members) {
        if (member->source_ != source_)
            throw ZelmarMediaLibException("trying to merge amfiles with different sources");
        if (member->trackNumber_ != trackNumber_)
            throw ZelmarMediaLibException("trying to merge amfiles with different tracks");
        if (member->mediaRange() != ownRange)
            throw ZelmarMediaLibException("trying to merge amfiles with different media ranges");
    }
    for (shared_ptr<AMFile const> const& member : members)
        channels_.insert(member->channels_.begin(), member->channels_.end());
}

AMFile::AMFile(shared_ptr<AMFile const> const& other, unsigned int channel)
    : XMLIdentified(), AudioMedia(*other), fileName_(other->fileName_), trackNumber_(other->trackNumber_),
      source_(Source::owningReference(other->source_)), channels_{channel} {
    if (!other->channels_.count(channel))
        throw ZelmarMediaLibException("trying to copy a channel that doesn't exist in this amfile");
}

AMFile::AMFile(AMFile const& other)
    : XMLIdentified(other), AudioMedia(other), fileName_(other.fileName_), trackNumber_(other.trackNumber_),
      source_(Source::owningReference(other.source_)), channels_(other.channels_) {}

std::string AMFile::description() const {
    return "amfile";
}

AMFile* AMFile::clone() const {
    return EdgeModCloneUtil::withEdgeMods(std::unique_ptr<AMFile>(new AMFile(*this)), *this);
}

void AMFile::receiveDispatcher(ConstMediaDispatcher* dispatcher) const {
    dispatcher->dispatchMedia(dynamic_pointer_cast<AMFile const>(shared_from_this()));
}

void AMFile::receiveDispatcher(MediaDispatcher* dispatcher) {
    dispatcher->dispatchMedia(dynamic_pointer_cast<AMFile>(shared_from_this()));
}

bool AMFile::isInstanceOf(shared_ptr<Source const> source) const {
    return source_ && source_ == source;
}

int AMFile::numChannels() const {
    return static_cast<int>(channels().size());
}

shared_ptr<std::vector<shared_ptr<AMFile> > > AMFile::splitChannels() const {
    shared_ptr<AMFile const> self = dynamic_pointer_cast<AMFile const>(shared_from_this());
    shared_ptr<std::vector<shared_ptr<AMFile> > > result = boost::make_shared<std::vector<shared_ptr<AMFile> > >();
    for (unsigned int const channel : channels())
        result->push_back(shared_ptr<AMFile>(new AMFile(self, channel)));
    return result;
}

AMFile::ChannelSet AMFile::channels() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return channels_;
}

unsigned int AMFile::trackNumber() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return trackNumber_;
}

std::string AMFile::fileName() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return source_ ? VisualFileMedia::trackFileName(*source_, trackNumber_) : fileName_;
}

std::string AMFile::containerFileName() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return source_ ? VisualFileMedia::containerFileName(*source_) : fileName_;
}

shared_ptr<Source const> AMFile::source() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return source_;
}

void AMFile::xmlName(XMLable::Options& options) const {
    *options.stream << "AMFile";
}

void AMFile::xmlAttributes(XMLable::Options& options) const {
    MediaImpl::xmlAttributes(options);
    std::ostream& out = *options.stream;
    out << " trackNumber=\"" << trackNumber_ << '"';
    if (source_)
        out << " src=\"" << source_->xmlIdent() << '"';
    out << " channelNumber=\"";
    writeChannels(out, channels_);
    out << '"';
}

AMFile::SourceTrackFigures AMFile::checkedSourceTrack(shared_ptr<Source const> const& source, unsigned int track,
                                                      ChannelSet const& channels, char const* channelText) {
    shared_ptr<MediaFileStats const> stats;
    if (source)
        stats = source->mediaFileStats();
    if (!stats || track >= stats->numTracks() || stats->trackType(track) != MediaFileStats::Audio)
        throw ZelmarMediaLibException("trying to make a amfile with an invalid source track");
    // The set is ordered, so its last channel is the highest.
    if (!channels.empty() && *channels.rbegin() >= stats->numChannels(track))
        throw ZelmarMediaLibException(channelText);
    SourceTrackFigures figures;
    figures.limits = source->timeRange();
    figures.sampleRate = static_cast<unsigned int>(stats->sampleRate(track).numerator());
    figures.bitDepth = stats->bitDepth(track);
    return figures;
}

void AMFile::writeChannels(std::ostream& out, ChannelSet const& channels) {
    char const* separator = "";
    for (unsigned int const channel : channels) {
        out << separator << channel;
        separator = ",";
    }
}

AMFile::ChannelSet AMFile::readChannels(std::istream& in) {
    ChannelSet channels;
    unsigned int channel = 0;
    if (!(in >> channel))
        return channels;
    channels.insert(channel);
    while (in.peek() == ',') {
        in.get();
        if (!(in >> channel))
            break;
        channels.insert(channel);
    }
    return channels;
}

}  // namespace ZelmarMediaLib
