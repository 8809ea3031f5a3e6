#include <ZelmarMediaLib/clipbin/Source.h>

#include <ZelmarMediaLib/clipbin/MediaFileStats.h>
#include <ZelmarMediaLib/clipbin/ScreenMetaData.h>
#include <ZelmarMediaLib/datatypes/PathUtil.h>
#include <ZelmarMediaLib/datatypes/ProjectEditRate.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/datatypes/XMLRepresentation.h>
#include <ZelmarMediaLib/exceptions/IndexException.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/timeline/AMFile.h>
#include <ZelmarMediaLib/timeline/AbstractIMFile.h>
#include <ZelmarMediaLib/timeline/AudioMixer.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>
#include <ZelmarMediaLib/timeline/Timeline.h>
#include <ZelmarMediaLib/timeline/VMFile.h>
#include <ZelmarMediaLib/timeline/VisualMixer.h>
#include <ZelmarMediaLib/timeline/VisualTrack.h>

#include <boost/algorithm/string/replace.hpp>
#include <boost/date_time/posix_time/posix_time.hpp>
#include <boost/filesystem/operations.hpp>

#include <ctime>
#include <ostream>
#include <sstream>

namespace ZelmarMediaLib {

namespace {

// The first and only media of a track of a source's timeline.
shared_ptr<Media const> onlyMedia(Track const& track, int index) {
    ConstIterator<Track::MediaMap> const first = track.mediaBegin();
    if (first == track.mediaEnd())
        throw IndexException(index);
    return first->second;
}

// In Boost.DateTime's ISO form; "not-a-date-time" when the file can't be found or read.
std::string lastModification(std::string const& path) {
    boost::posix_time::ptime time(boost::posix_time::not_a_date_time);
    boost::system::error_code error;
    if (boost::filesystem::exists(path, error)) {
        std::time_t const written = boost::filesystem::last_write_time(path, error);
        if (!error)
            time = boost::posix_time::from_time_t(written);
    }
    return boost::posix_time::to_iso_string(time);
}

// A 64-bit value times a 64-bit rate part, and the product of two rate parts, fit in 128 bits.
__extension__ typedef __int128 Wide;
__extension__ typedef unsigned __int128 WideUnsigned;

// Duration scaled by the rate: the measure of length that a replacement file must match. In
// 128 bits, since a nanosecond time base times any long duration exceeds 64.
Wide trackLength(MediaFileStats const& stats, unsigned int track) {
    rational<unsigned long> const rate = stats.rangeEditRate(track);
    return static_cast<Wide>(stats.trackRange(track).duration) * static_cast<Wide>(rate.numerator()) /
           static_cast<Wide>(rate.denominator());
}

WideUnsigned greatestCommonDivisor(WideUnsigned a, WideUnsigned b) {
    while (b != 0) {
        WideUnsigned const rest = a % b;
        a = b;
        b = rest;
    }
    return a;
}

// Units beyond this either way are refused, so that Range arithmetic on two of them stays in 64 bits.
long long const largestUnits = (1LL << 62) - 1;

char const* const rangeTooLong = "attempting to convert a range too long for the project's edit rate";

// value * multiplier / divisor, truncated toward zero, as exactly as in unbounded integers.
long long scaled(long long value, WideUnsigned multiplier, WideUnsigned divisor) {
    WideUnsigned const magnitude =
        value < 0 ? WideUnsigned(0) - static_cast<WideUnsigned>(value) : static_cast<WideUnsigned>(value);
    WideUnsigned product;
    if (__builtin_mul_overflow(magnitude, multiplier, &product))
        throw ZelmarMediaLibException(rangeTooLong);
    WideUnsigned const quotient = product / divisor;
    if (quotient > static_cast<WideUnsigned>(largestUnits))
        throw ZelmarMediaLibException(rangeTooLong);
    long long const result = static_cast<long long>(quotient);
    return value < 0 ? -result : result;
}

}  // namespace

Source::MediaIterator::MediaIterator(Source const* source, int trackIndex, weak_ptr<ThreadSafe const> project)
    : source_(source), trackIndex_(trackIndex), project_(project) {}

Source::MediaIterator& Source::MediaIterator::operator++() {
    ++trackIndex_;
    return *this;
}

Source::MediaIterator& Source::MediaIterator::operator--() {
    --trackIndex_;
    return *this;
}

bool Source::MediaIterator::operator==(MediaIterator const& other) const {
    return source_ == other.source_ && trackIndex_ == other.trackIndex_;
}

bool Source::MediaIterator::operator!=(MediaIterator const& other) const {
    return !(*this == other);
}

int Source::MediaIterator::trackIndex() const {
    return trackIndex_;
}

shared_ptr<Media const> Source::MediaIterator::currentMedia() const {
    ReadWriteMutex::ScopedReadLock lock(&shared_ptr<ThreadSafe const>(project_)->mutex());
    shared_ptr<Timeline const> const timeline = source_->timeline();
    shared_ptr<AudioMixer const> const audio = timeline->audioMixer();
    int const numAudioTracks = audio ? audio->numTracks() : 0;
    if (trackIndex_ < 0 || trackIndex_ >= timeline->numTracks())
        throw IndexException(trackIndex_);
    if (trackIndex_ < numAudioTracks)
        return onlyMedia(*audio->trackAtIndex(static_cast<unsigned int>(trackIndex_)), trackIndex_);
    unsigned int const visualIndex = static_cast<unsigned int>(trackIndex_ - numAudioTracks);
    return onlyMedia(*timeline->visualMixer()->trackAtIndex(visualIndex), trackIndex_);
}

shared_ptr<AudioMedia const> Source::MediaIterator::currentAudioMedia() const {
    ReadWriteMutex::ScopedReadLock lock(&shared_ptr<ThreadSafe const>(project_)->mutex());
    shared_ptr<AudioMixer const> const mixer = source_->timeline()->audioMixer();
    if (!mixer || trackIndex_ < 0 || trackIndex_ >= mixer->numTracks())
        throw IndexException(trackIndex_);
    return dynamic_pointer_cast<AudioMedia const>(
        onlyMedia(*mixer->trackAtIndex(static_cast<unsigned int>(trackIndex_)), trackIndex_));
}

shared_ptr<VisualMedia const> Source::MediaIterator::currentVisualMedia() const {
    ReadWriteMutex::ScopedReadLock lock(&shared_ptr<ThreadSafe const>(project_)->mutex());
    shared_ptr<VisualMixer const> const mixer = source_->timeline()->visualMixer();
    if (!mixer || trackIndex_ < 0 || trackIndex_ >= mixer->numTracks())
        throw IndexException(trackIndex_);
    return dynamic_pointer_cast<VisualMedia const>(
        onlyMedia(*mixer->trackAtIndex(static_cast<unsigned int>(trackIndex_)), trackIndex_));
}

shared_ptr<Source> Source::create(shared_ptr<ProjectEditRate const> editRate, weak_ptr<ThreadSafe const> project,
                                  std::string const& path) {
    if (!editRate)
        throw ZelmarMediaLibException("attempting to make a source without an edit rate");
    return create(editRate, project, MediaFileStats::create(path));
}

shared_ptr<Source> Source::create(shared_ptr<ProjectEditRate const> editRate, weak_ptr<ThreadSafe const> project,
                                  shared_ptr<MediaFileStats> stats) {
    if (!editRate)
        throw ZelmarMediaLibException("attempting to make a source without an edit rate");
    if (!stats)
        throw ZelmarMediaLibException("attempting to make a source without file statistics");
    shared_ptr<Source> source(new Source(project, stats));
    source->editRate_ = editRate;
    source->init(editRate->editRate());
    return source;
}

Source::Source(weak_ptr<ThreadSafe const> project, shared_ptr<MediaFileStats> stats)
    : SubProject(project),
      timeline_(boost::make_shared<Timeline>(project)),
      mediaFileStats_(stats),
      online_(true),
      timeRange_(0, 0) {}

Source::Source(Source const& other)
    : XMLIdentified(other),
      SubProject(other),
      XMLable(other),
      Subject(other),
      enable_shared_from_this<Source>(),
      timeline_(boost::make_shared<Timeline>(other.projectMutex())),
      mediaFileStats_(MediaFileStats::create()),
      online_(other.online_),
      timeRange_(0, 0) {}

Source& Source::operator=(Source const&) {
    return *this;
}

Source::~Source() = default;

std::string Source::description() const {
    std::ostringstream out;
    out << "Source at " << static_cast<void const*>(this);
    timeline_->toXML(out);
    return out.str();
}

void Source::xmlName(XMLable::Options& options) const {
    *options.stream << "Source";
}

void Source::xmlAttributes(XMLable::Options& options) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    std::string const fileName = mediaFileStats_->filename();
    // Unlike other file references, made relative only when the base directory's text occurs
    // in the name: a relative name under it comes out empty.
    bool const underBase = !options.baseDirectory.empty() && fileName.find(options.baseDirectory) != std::string::npos;
    std::string const shown = underBase ? PathUtil::absolutePathToRelative(fileName, options.baseDirectory) : fileName;
    *options.stream << "src=\"" << xml_representation(shown) << "\" lastMod=\"" << lastModification(fileName)
                    << "\" rect=\"" << mediaFileStats_->rect() << '"';
}

void Source::xmlBody(XMLable::Options& options, int indent) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    std::ostream& out = *options.stream;
    std::string const blanks = genIndent(indent + 1);
    MediaFileStats const& stats = *mediaFileStats_;
    for (unsigned int i = 0; i < stats.numTracks(); ++i) {
        MediaFileStats::TrackStats const& track = stats.trackStats(i);
        out << blanks << "<SourceTrack range=\"" << track.range << "\" type=\"" << static_cast<int>(track.type)
            << "\" editRate=\"" << xml_representation(track.rangeEditRate) << "\" trackRect=\"" << track.rect
            << "\" sampleRate=\"" << xml_representation(track.sampleRate) << "\" bitDepth=\"" << track.bitDepth
            << "\" numChannels=\"" << track.numChannels << "\" />\n";
    }
}

shared_ptr<Timeline> Source::timeline() {
    return timeline_;
}

shared_ptr<Timeline const> Source::timeline() const {
    return timeline_;
}

shared_ptr<MediaFileStats const> Source::mediaFileStats() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return mediaFileStats_;
}

Range<long long> Source::timeRange() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return timeRange_;
}

bool Source::isOnline() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return online_;
}

Rect<float> Source::trackRect(unsigned int track) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    Rect<int> const rect = mediaFileStats_->trackRect(track);
    return Rect<float>(static_cast<float>(rect.x), static_cast<float>(rect.y), static_cast<float>(rect.width),
                       static_cast<float>(rect.height));
}

void Source::changeFile(std::string const& newPath) {
    shared_ptr<MediaFileStats const> const candidate = MediaFileStats::create(newPath);
    if (!filesAreCompatableForChange(*candidate))
        throw ZelmarMediaLibException("attempting to replace source's file with an incompatable file");
    std::string const oldPath = mediaFileStats_->filename();
    updateScreenMetaData(oldPath, newPath);
    updateTrackFilenames(oldPath, newPath);
    mediaFileStats_->setFilename(newPath);
    notify();
}

Range<long long> Source::convertEditRate(Range<long long> const& range, rational<unsigned long> const& fileRate,
                                         rational<unsigned long> const& projectRate) {
    if (fileRate.numerator() == 0)
        throw ZelmarMediaLibException("attempting to convert a range from an edit rate of zero");
    WideUnsigned multiplier = static_cast<WideUnsigned>(projectRate.numerator()) * fileRate.denominator();
    WideUnsigned divisor = static_cast<WideUnsigned>(fileRate.numerator()) * projectRate.denominator();
    // Reducing changes no quotient, and keeps the products of sane rates far from 128 bits.
    WideUnsigned const common = greatestCommonDivisor(multiplier, divisor);
    multiplier /= common;
    divisor /= common;
    Range<long long> const result(scaled(range.start, multiplier, divisor),
                                  scaled(range.duration, multiplier, divisor));
    // Both within 2^62 of zero, so the end can't overflow, only be too far.
    if (result.start + result.duration > largestUnits || result.start + result.duration < -largestUnits)
        throw ZelmarMediaLibException(rangeTooLong);
    return result;
}

void Source::replacePath(std::string const& oldPath, std::string const& newPath, std::string* path) {
    if (path->empty())
        return;
    boost::algorithm::replace_first(*path, oldPath, newPath);
}

shared_ptr<Source const> Source::owningReference(shared_ptr<Source const> const& source) {
    // Only an unowned reference has no owners to count.
    if (!source || source.use_count() > 0)
        return source;
    return source->shared_from_this();
}

void Source::init(rational<unsigned long> const& editRate) {
    Range<long long> range = calcIntersection(editRate);
    // A still has a nominal length of one edit unit, whatever its track says.
    if (mediaFileStats_->numTracks() > 0 && mediaFileStats_->trackType(0) == MediaFileStats::Image)
        range = Range<long long>(0, 1);
    if (range.duration <= 0)
        throw ZelmarMediaLibException("source has timerange of zero");
    timeRange_ = range;
    createAndAddMedias();
}

Range<long long> Source::calcIntersection(rational<unsigned long> const& editRate) const {
    MediaFileStats const& stats = *mediaFileStats_;
    // Without tracks there is no common span, which init refuses as a zero range.
    if (stats.numTracks() == 0)
        return Range<long long>(0, 0);
    Range<long long> result = convertEditRate(stats.trackRange(0), stats.rangeEditRate(0), editRate);
    for (unsigned int i = 1; i < stats.numTracks(); ++i)
        result = result.intersection(convertEditRate(stats.trackRange(i), stats.rangeEditRate(i), editRate));
    return result;
}

void Source::createAndAddMedias() {
    MediaFileStats const& stats = *mediaFileStats_;
    shared_ptr<Source const> const self = unownedReference();
    weak_ptr<ThreadSafe const> const project = projectMutex();
    std::vector<shared_ptr<Media> > medias;
    for (unsigned int i = 0; i < stats.numTracks(); ++i) {
        switch (stats.trackType(i)) {
        case MediaFileStats::Video: {
            shared_ptr<VMFile> const media = boost::make_shared<VMFile>(timeRange_, project, self, i);
            addMetaData(media, stats.metaData(i));
            addMediaToTimeline(shared_ptr<VisualMedia>(media));
            medias.push_back(media);
            break;
        }
        case MediaFileStats::Image: {
            shared_ptr<IMFile> const media = boost::make_shared<IMFile>(0, 1, project, self, i);
            addMediaToTimeline(shared_ptr<VisualMedia>(media));
            medias.push_back(media);
            break;
        }
        case MediaFileStats::Audio: {
            AMFile::ChannelSet channels;
            for (unsigned int channel = 0; channel < stats.numChannels(i); ++channel)
                channels.insert(channel);
            shared_ptr<AMFile> const media = boost::make_shared<AMFile>(timeRange_, project, self, i, channels);
            addMediaToTimeline(shared_ptr<AudioMedia>(media));
            medias.push_back(media);
            break;
        }
        }
    }
    // A star around the first media, which the link model makes a clique: the tracks of one
    // file stay together on the timeline from the start.
    for (std::size_t i = 1; i < medias.size(); ++i) {
        if (!medias.front()->isLinkedWith(medias[i]))
            medias.front()->link(medias[i]);
    }
}

void Source::addMediaToTimeline(shared_ptr<VisualMedia> const& media) {
    shared_ptr<VisualMixer> mixer = timeline_->visualMixer();
    if (!mixer) {
        Rect<int> const rect = mediaFileStats_->rect();
        mixer = timeline_->newVisualMixer(static_cast<float>(rect.width), static_cast<float>(rect.height));
    }
    mixer->newTrack<VisualTrack>(-1)->addMedia(media, 0);
}

void Source::addMediaToTimeline(shared_ptr<AudioMedia> const& media) {
    shared_ptr<AudioMixer> mixer = timeline_->audioMixer();
    // One channel, also for a stereo file: the mixer's format is the first track's.
    if (!mixer)
        mixer = timeline_->newAudioMixer(media->sampleRate()->value(), media->bitDepth()->value(), 1);
    mixer->newTrack<AudioTrack>(-1)->addMedia(media, 0);
}

void Source::addMetaData(shared_ptr<VMFile> const& media, std::vector<std::string> const& paths) {
    shared_ptr<ScreenMetaData> const metaData =
        ScreenMetaData::create(projectMutex(), shared_ptr<FileRepresentation const>(media), editRate_);
    for (std::string const& path : paths) {
        std::string const leaf = boost::filesystem::path(path).filename().string();
        if (leaf == "dirtyrect.dat")
            metaData->setDirtyRects(path);
        else if (leaf == "frontmost.dat")
            metaData->setTopmostWindowCoordinates(path);
        else if (leaf == "cursoraction.dat")
            metaData->setCursorAction(path);
        else if (leaf == "cursorlocation.dat")
            metaData->setCursorLocation(path);
    }
    media->screenMetaData()->setValue(metaData);
    screenMetaData_[media] = metaData;
}

void Source::updateScreenMetaData(std::string const& oldPath, std::string const& newPath) {
    auto const moved = [&](std::string path) {
        replacePath(oldPath, newPath, &path);
        return path;
    };
    for (auto const& entry : screenMetaData_) {
        ScreenMetaData& metaData = *entry.second;
        metaData.setTopmostWindowCoordinates(moved(metaData.topmostWindowCoordinatesFilename()));
        metaData.setCursorLocation(moved(metaData.cursorLocationFilename()));
        metaData.setCursorAction(moved(metaData.cursorActionFilename()));
        metaData.setDirtyRects(moved(metaData.dirtyRectsFilename()));
    }
}

bool Source::filesAreCompatableForChange(MediaFileStats const& candidate) const {
    MediaFileStats const& current = *mediaFileStats_;
    if (current.numTracks() != candidate.numTracks() || current.numTracks() == 0)
        return false;
    // Only the first track is compared.
    return current.trackType(0) == candidate.trackType(0) && trackLength(current, 0) == trackLength(candidate, 0);
}

void Source::updateTrackFilenames(std::string const& oldPath, std::string const& newPath) {
    for (unsigned int i = 0; i < mediaFileStats_->numTracks(); ++i)
        replacePath(oldPath, newPath, &mediaFileStats_->trackStats(i).filename);
}

shared_ptr<Source const> Source::unownedReference() const {
    return shared_ptr<Source const>(shared_ptr<Source const>(), this);
}

int Source::endIndex(Media const*) const {
    return timeline_->numTracks();
}

int Source::endIndex(VisualMedia const*) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    shared_ptr<VisualMixer const> const mixer = timeline_->visualMixer();
    return mixer ? mixer->numTracks() : 0;
}

int Source::endIndex(AudioMedia const*) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    shared_ptr<AudioMixer const> const mixer = timeline_->audioMixer();
    return mixer ? mixer->numTracks() : 0;
}

}  // namespace ZelmarMediaLib
