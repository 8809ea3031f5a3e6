#include <ZelmarMediaLib/clipbin/MediaFileStats.h>

#include <ZelmarMediaLib/clipbin/AVFormatStatsLoader.h>
#include <ZelmarMediaLib/clipbin/MediaFileStatsPosix.h>
#include <ZelmarMediaLib/clipbin/StatsLoader.h>
#include <ZelmarMediaLib/exceptions/IOException.h>
#include <ZelmarMediaLib/exceptions/IndexException.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

#include <cerrno>
#include <ostream>
#include <sstream>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ZelmarMediaLib {

namespace {

std::string errorText(int error) {
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return "no such file";
    case EACCES:
    case EPERM:
        return "permission denied";
    default:
        return std::generic_category().message(error);
    }
}

// What the file system says against reading the path; empty for a file or folder that can be
// opened. Opened without blocking, so that a FIFO put in place meanwhile can't hold the caller.
std::string fileSystemRefusal(std::string const& path) {
    struct stat status;
    if (::stat(path.c_str(), &status) != 0)
        return errorText(errno);
    if (!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode))
        return "not a regular file";
    int const fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return errorText(errno);
    ::close(fd);
    return std::string();
}

}  // namespace

std::set<StatsLoader*> MediaFileStats::s_statsLoaders;
bool MediaFileStats::s_defaultStatsLoaderAdded = false;

shared_ptr<MediaFileStats> MediaFileStats::create() {
    return shared_ptr<MediaFileStats>(new MediaFileStatsPosix());
}

shared_ptr<MediaFileStats> MediaFileStats::create(std::string const& path) {
    return shared_ptr<MediaFileStats>(new MediaFileStatsPosix(path));
}

MediaFileStats::MediaFileStats() {
    ensureDefaultStatsLoader();
}

MediaFileStats::MediaFileStats(std::string const& path) {
    ensureDefaultStatsLoader();
    StatsLoader* const loader = findAppropriateStatsLoader(path);
    if (!loader)
        throw IOException(noLoaderMessage(path));
    // A loader that raises leaves a half-made object, which the failed construction destroys.
    loader->loadStats(path, this);
}

MediaFileStats::~MediaFileStats() = default;

std::string MediaFileStats::description() const {
    std::ostringstream out;
    out << "MediaFileStats at " << static_cast<void const*>(this) << std::endl;
    out << "filename: " << filename_ << std::endl;
    out << "rect: (" << rect_.x << ", " << rect_.y << ", " << rect_.width << ", " << rect_.height << ")" << std::endl;
    out << "num tracks: " << tracks_.size() << std::endl;
    for (std::size_t i = 0; i < tracks_.size(); ++i) {
        TrackStats const& track = tracks_[i];
        out << "track" << i << ":" << std::endl;
        out << "  range: (" << track.range.start << ", " << track.range.duration << ")" << std::endl;
        out << "  rangeEditRate: " << track.rangeEditRate << std::endl;
        out << "  type: " << static_cast<int>(track.type) << std::endl;
        out << "  rect: (" << track.rect.x << ", " << track.rect.y << ", " << track.rect.width << ", "
            << track.rect.height << ")" << std::endl;
        out << "  sampleRate: " << track.sampleRate << std::endl;
        out << "  bitDepth: " << track.bitDepth << std::endl;
        out << "  numChannels: " << track.numChannels << std::endl;
    }
    return out.str();
}

std::string const& MediaFileStats::filename() const {
    return filename_;
}

void MediaFileStats::setFilename(std::string const& filename) {
    filename_ = filename;
}

Rect<int> MediaFileStats::rect() const {
    return rect_;
}

void MediaFileStats::setRect(Rect<int> const& rect) {
    rect_ = rect;
}

unsigned int MediaFileStats::numTracks() const {
    return static_cast<unsigned int>(tracks_.size());
}

MediaFileStats::TrackStats& MediaFileStats::trackStats(unsigned int track) {
    checkedTrackStats(track);
    return tracks_[track];
}

MediaFileStats::TrackStats const& MediaFileStats::trackStats(unsigned int track) const {
    return checkedTrackStats(track);
}

Range<long long> MediaFileStats::trackRange(unsigned int track) const {
    return checkedTrackStats(track).range;
}

rational<unsigned long> MediaFileStats::rangeEditRate(unsigned int track) const {
    return checkedTrackStats(track).rangeEditRate;
}

MediaFileStats::TrackType MediaFileStats::trackType(unsigned int track) const {
    return checkedTrackStats(track).type;
}

Rect<int> MediaFileStats::trackRect(unsigned int track) const {
    return checkedTrackStats(track).rect;
}

rational<unsigned long> MediaFileStats::sampleRate(unsigned int track) const {
    return checkedTrackStats(track).sampleRate;
}

unsigned int MediaFileStats::bitDepth(unsigned int track) const {
    return checkedTrackStats(track).bitDepth;
}

unsigned int MediaFileStats::numChannels(unsigned int track) const {
    return checkedTrackStats(track).numChannels;
}

std::string MediaFileStats::filename(unsigned int track) const {
    return checkedTrackStats(track).filename;
}

std::vector<std::string> MediaFileStats::metaData(unsigned int track) const {
    return checkedTrackStats(track).metaData;
}

void MediaFileStats::addTrackStats(TrackStats const& stats) {
    tracks_.push_back(stats);
}

unsigned int MediaFileStats::fileTrackNumberForTrackNumber(unsigned int track) const {
    TrackStats const& wanted = checkedTrackStats(track);
    if (tracks_.front().filename.empty())
        return track;
    unsigned int sameBefore = 0;
    for (unsigned int i = 0; i < track; ++i) {
        if (tracks_[i].type == wanted.type && tracks_[i].filename == wanted.filename)
            ++sameBefore;
    }
    std::vector<TrackType> const component = componentTrackTypes(wanted.filename);
    unsigned int seen = 0;
    for (unsigned int i = 0; i < component.size(); ++i) {
        if (component[i] != wanted.type)
            continue;
        if (seen == sameBefore)
            return i;
        ++seen;
    }
    return static_cast<unsigned int>(component.size());
}

std::vector<MediaFileStats::TrackType> MediaFileStats::componentTrackTypes(std::string const& file) const {
    // Held while the file is read, so that threads asking at once read it once between them.
    std::lock_guard<std::mutex> const lock(componentCache_.mutex);
    std::map<std::string, std::vector<TrackType> >::const_iterator const known = componentCache_.trackTypes.find(file);
    if (known != componentCache_.trackTypes.end())
        return known->second;
    // A file that fails raises and is not remembered: the next call tries again.
    shared_ptr<MediaFileStats const> const component = create(file);
    std::vector<TrackType> types;
    for (TrackStats const& track : component->tracks_)
        types.push_back(track.type);
    componentCache_.trackTypes[file] = types;
    return types;
}

bool MediaFileStats::isFileOpenable(std::string const& path) {
    ensureDefaultStatsLoader();
    return findAppropriateStatsLoader(path) != nullptr;
}

void MediaFileStats::addStatsLoader(StatsLoader* loader) {
    if (!loader)
        throw ZelmarMediaLibException("attempting to add a null stats loader");
    s_statsLoaders.insert(loader);
}

void MediaFileStats::ensureDefaultStatsLoader() {
    if (s_defaultStatsLoaderAdded)
        return;
    // Owned by the process: a static object rather than a heap one that nothing would free.
    static AVFormatStatsLoader defaultLoader;
    s_statsLoaders.insert(&defaultLoader);
    s_defaultStatsLoaderAdded = true;
}

std::string MediaFileStats::noLoaderMessage(std::string const& path) {
    std::string reason = fileSystemRefusal(path);
    for (StatsLoader* const loader : s_statsLoaders) {
        if (!reason.empty())
            break;
        reason = loader->refusalReason(path);
    }
    std::string const message = "No appropriate stats loader for file: " + path;
    return reason.empty() ? message : message + " (" + reason + ")";
}

StatsLoader* MediaFileStats::findAppropriateStatsLoader(std::string const& path) {
    StatsLoader* chosen = nullptr;
    for (StatsLoader* const loader : s_statsLoaders) {
        if (loader->canOpenFile(path))
            chosen = loader;
    }
    return chosen;
}

MediaFileStats::TrackStats const& MediaFileStats::checkedTrackStats(unsigned int track) const {
    if (track >= tracks_.size())
        throw IndexException(static_cast<int>(track));
    return tracks_[track];
}

}  // namespace ZelmarMediaLib
