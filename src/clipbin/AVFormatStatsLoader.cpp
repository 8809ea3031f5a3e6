#include <ZelmarMediaLib/clipbin/AVFormatStatsLoader.h>

#include <ZelmarMediaLib/clipbin/MediaFileStats.h>
#include <ZelmarMediaLib/exceptions/IOException.h>

#include <boost/filesystem/operations.hpp>
#include <boost/filesystem/path.hpp>
#include <boost/system/error_code.hpp>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/display.h>
#include <libavutil/mem.h>
}

namespace ZelmarMediaLib {

namespace {

typedef MediaFileStats::TrackStats TrackStats;
typedef std::chrono::steady_clock Clock;

// In the order in which a recording's video tracks list them.
char const* const sideFileNames[] = {"dirtyrect.dat", "frontmost.dat", "cursoraction.dat", "cursorlocation.dat"};

bool isSideFileName(std::string const& leaf) {
    return std::find(std::begin(sideFileNames), std::end(sideFileNames), leaf) != std::end(sideFileNames);
}

// Demuxers that open other files or streams named inside the file or beside it (playlists,
// file lists, session descriptions, subtitles beside their index), run scripts, or read a name
// like "a%d.png" as a sequence of other files. A self-referencing playlist loops for ever, one
// naming a FIFO blocks for ever.
char const* const refusedFormats[] = {
    "hls", "applehttp", "dash", "concat", "imf", "sdp", "rtsp", "rtp", "vobsub", "image2", "image2pipe", "avisynth",
    "vapoursynth"};

bool isRefusedFormat(AVInputFormat const* format) {
    std::string const name = format->name;
    return (format->flags & AVFMT_NOFILE) ||
           std::find(std::begin(refusedFormats), std::end(refusedFormats), name) != std::end(refusedFormats);
}

// Probing and reading give up after this: long enough for any honest file, short enough that
// a hostile one can't hold the caller, and the project's write lock, for long.
std::chrono::seconds const readingLimit(10);
// FFmpeg's own defaults, pinned so that a change of defaults can't lengthen probing.
unsigned int const probeSize = 5000000;
char const* const analyzeDuration = "5000000";
int const ioBufferSize = 32768;

enum class PathKind { RegularFile, Folder, Other };

PathKind kindOf(std::string const& path) {
    boost::system::error_code error;
    boost::filesystem::file_status const status = boost::filesystem::status(path, error);
    if (error)
        return PathKind::Other;
    if (boost::filesystem::is_regular_file(status))
        return PathKind::RegularFile;
    if (boost::filesystem::is_directory(status))
        return PathKind::Folder;
    return PathKind::Other;
}

// Whatever a demuxer asks to open besides the file itself is refused: a media file is one file.
int refuseToOpen(AVFormatContext*, AVIOContext**, char const*, int, AVDictionary**) {
    return AVERROR(EPERM);
}

// One regular file read by libavformat through a descriptor of our own, so that the name is
// never parsed as a URL or a pattern and no protocol is involved.
class Movie {
public:
    // Takes over fd, which is closed with the movie.
    explicit Movie(int fd) : fd_(fd), deadline_(Clock::now() + readingLimit) {}
    ~Movie() {
        // With custom I/O, closing the input leaves the I/O context to its owner.
        avformat_close_input(&context_);
        freeIO();
        ::close(fd_);
    }
    Movie(Movie const&) = delete;
    Movie& operator=(Movie const&) = delete;

    // Nothing when the file opened; otherwise why not, an empty text when libavformat simply
    // doesn't recognise the content. Recognised by content first: the name only breaks ties,
    // and the name-based picture demuxer is never used.
    std::optional<std::string> open(std::string const& path) {
        AVInputFormat const* format = probe(path.c_str());
        if (format && std::string(format->name) == "image2")
            format = probe("");
        if (!format)
            return std::string();
        if (isRefusedFormat(format))
            return std::string("a list of other media, which are not opened: ") + format->name;
        context_ = avformat_alloc_context();
        if (!context_)
            throw std::bad_alloc();
        context_->pb = io_;
        context_->flags |= AVFMT_FLAG_CUSTOM_IO;
        context_->io_open = &refuseToOpen;
        context_->interrupt_callback.callback = &Movie::isPastDeadline;
        context_->interrupt_callback.opaque = this;
        AVDictionary* options = nullptr;
        // No protocol at all, for the demuxers that open files directly rather than through
        // io_open (subtitles beside an index, for one): the file itself comes through our own I/O.
        av_dict_set(&options, "protocol_whitelist", "none", 0);
        av_dict_set(&options, "probesize", std::to_string(probeSize).c_str(), 0);
        av_dict_set(&options, "analyzeduration", analyzeDuration, 0);
        int const result = avformat_open_input(&context_, path.c_str(), format, &options);
        av_dict_free(&options);
        // On failure avformat_open_input has freed the context and nulled the pointer.
        if (result < 0)
            return std::string();
        return std::nullopt;
    }

    AVFormatContext* context() const { return context_; }

private:
    // A fresh I/O context from the start of the file: each probe reads from the beginning.
    AVInputFormat const* probe(char const* name) {
        freeIO();
        if (::lseek(fd_, 0, SEEK_SET) != 0)
            return nullptr;
        unsigned char* const buffer = static_cast<unsigned char*>(av_malloc(ioBufferSize));
        if (!buffer)
            throw std::bad_alloc();
        io_ = avio_alloc_context(buffer, ioBufferSize, 0, this, &Movie::read, nullptr, &Movie::seek);
        if (!io_) {
            av_free(buffer);
            throw std::bad_alloc();
        }
        AVInputFormat const* format = nullptr;
        if (av_probe_input_buffer2(io_, &format, name, nullptr, 0, probeSize) < 0)
            return nullptr;
        return format;
    }

    void freeIO() {
        if (!io_)
            return;
        // The context may have replaced the buffer it was given; this is the one it holds.
        av_freep(&io_->buffer);
        avio_context_free(&io_);
    }

    static int read(void* opaque, std::uint8_t* buffer, int size) {
        Movie* const movie = static_cast<Movie*>(opaque);
        if (isPastDeadline(movie))
            return AVERROR_EXIT;
        ssize_t count;
        do
            count = ::read(movie->fd_, buffer, static_cast<std::size_t>(size));
        while (count < 0 && errno == EINTR);
        if (count < 0)
            return AVERROR(errno);
        return count == 0 ? AVERROR_EOF : static_cast<int>(count);
    }

    static std::int64_t seek(void* opaque, std::int64_t offset, int whence) {
        Movie* const movie = static_cast<Movie*>(opaque);
        if (whence & AVSEEK_SIZE) {
            struct stat status;
            return ::fstat(movie->fd_, &status) == 0 ? static_cast<std::int64_t>(status.st_size) : AVERROR(errno);
        }
        off_t const position = ::lseek(movie->fd_, static_cast<off_t>(offset), whence & ~AVSEEK_FORCE);
        return position < 0 ? AVERROR(errno) : static_cast<std::int64_t>(position);
    }

    static int isPastDeadline(void* opaque) { return Clock::now() > static_cast<Movie*>(opaque)->deadline_ ? 1 : 0; }

    int const fd_;
    Clock::time_point const deadline_;
    AVIOContext* io_ = nullptr;
    AVFormatContext* context_ = nullptr;
};

struct Opening {
    std::unique_ptr<Movie> movie;
    // Why there is no movie; empty when there is nothing particular to say.
    std::string refusal;
};

Opening openMovie(std::string const& path) {
    // Without O_NONBLOCK, opening a FIFO would wait for a writer. The file is checked after it
    // is opened, so that it can't be swapped for something else in between.
    int const fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return Opening();
    std::unique_ptr<Movie> movie(new Movie(fd));
    struct stat status;
    if (::fstat(fd, &status) != 0 || !S_ISREG(status.st_mode))
        return Opening{nullptr, "not a regular file"};
    // O_NONBLOCK means nothing to a regular file's reads, so it can stay.
    std::optional<std::string> const refusal = movie->open(path);
    if (refusal)
        return Opening{nullptr, *refusal};
    return Opening{std::move(movie), std::string()};
}

bool canOpenMovie(std::string const& path) {
    return kindOf(path) == PathKind::RegularFile && openMovie(path).movie != nullptr;
}

struct Recording {
    std::string movie;
    std::vector<std::string> sideFiles;
};

// The movies of a folder, side files aside, in name order; the scan stops at the second, which
// already tells that the folder is no recording.
struct FolderScan {
    std::vector<boost::filesystem::path> movies;
    bool unreadable = false;
};

FolderScan scanFolder(std::string const& folder) {
    FolderScan scan;
    std::vector<boost::filesystem::path> entries;
    boost::system::error_code error;
    boost::filesystem::directory_iterator at(folder, error);
    for (boost::filesystem::directory_iterator const end; !error && at != end; at.increment(error))
        entries.push_back(at->path());
    if (error) {
        scan.unreadable = true;
        return scan;
    }
    // Sorted, so that which two movies a refusal names doesn't depend on the directory's order.
    std::sort(entries.begin(), entries.end());
    for (boost::filesystem::path const& entry : entries) {
        if (!isSideFileName(entry.filename().string()) && canOpenMovie(entry.string())) {
            scan.movies.push_back(entry);
            if (scan.movies.size() == 2)
                break;
        }
    }
    return scan;
}

// A folder is a recording when exactly one of its files, side files aside, is a movie that
// libavformat can open. Side files are optional: those that are missing are just not listed.
std::optional<Recording> findRecording(std::string const& folder) {
    FolderScan const scan = scanFolder(folder);
    if (scan.movies.size() != 1)
        return std::nullopt;
    Recording recording;
    recording.movie = scan.movies.front().string();
    for (char const* const name : sideFileNames) {
        std::string const sideFile = (boost::filesystem::path(folder) / name).string();
        if (kindOf(sideFile) == PathKind::RegularFile)
            recording.sideFiles.push_back(sideFile);
    }
    return recording;
}

std::string folderRefusal(std::string const& folder) {
    FolderScan const scan = scanFolder(folder);
    if (scan.unreadable)
        return "a folder that can't be listed";
    if (scan.movies.empty())
        return "a folder without a movie";
    if (scan.movies.size() > 1)
        return "more than one movie in the folder: " + scan.movies[0].filename().string() + " and " +
               scan.movies[1].filename().string();
    return std::string();
}

// Picture demuxers ("png_pipe", "jpeg_pipe", ...) read one still, whose stream has neither a
// frame count nor a duration to tell it from a movie.
bool isStillPictureFormat(AVInputFormat const* format) {
    static char const pipeSuffix[] = "_pipe";
    std::size_t const suffixLength = sizeof(pipeSuffix) - 1;
    std::string const name = format->name;
    return name.size() > suffixLength && name.compare(name.size() - suffixLength, suffixLength, pipeSuffix) == 0;
}

// Many containers (Matroska among them) count no frames, so the count is estimated from the
// duration and the frame rate; nullopt when neither is known.
std::optional<long long> frameCount(AVStream const* stream, long long duration) {
    if (stream->nb_frames > 0)
        return stream->nb_frames;
    AVRational const frameRate = stream->avg_frame_rate;
    if (duration > 0 && frameRate.num > 0 && frameRate.den > 0)
        return av_rescale_q(duration, stream->time_base, av_inv_q(frameRate));
    return std::nullopt;
}

bool isStill(AVFormatContext const* context, AVStream const* stream, long long duration) {
    if ((stream->disposition & AV_DISPOSITION_STILL_IMAGE) || isStillPictureFormat(context->iformat))
        return true;
    std::optional<long long> const frames = frameCount(stream, duration);
    return frames && *frames < 2;
}

// What the file records: the raw depth of PCM and lossless codecs (24 for 24-bit PCM, which
// decodes to 32-bit samples), and none, 0, for lossy codecs, whose decoded sample format says
// nothing about the file.
unsigned int bitsPerSample(AVCodecParameters const* parameters) {
    if (parameters->bits_per_raw_sample > 0)
        return static_cast<unsigned int>(parameters->bits_per_raw_sample);
    return static_cast<unsigned int>(std::max(av_get_bits_per_sample(parameters->codec_id), 0));
}

int32_t const* displayMatrix(AVStream const* stream) {
    std::size_t const matrixSize = 9 * sizeof(std::int32_t);
#if LIBAVCODEC_VERSION_INT >= AV_VERSION_INT(60, 29, 100)
    AVPacketSideData const* const data = av_packet_side_data_get(
        stream->codecpar->coded_side_data, stream->codecpar->nb_coded_side_data, AV_PKT_DATA_DISPLAYMATRIX);
    if (!data || data->size < matrixSize)
        return nullptr;
    return reinterpret_cast<std::int32_t const*>(data->data);
#else
    std::size_t size = 0;
    std::uint8_t const* const data = av_stream_get_side_data(stream, AV_PKT_DATA_DISPLAYMATRIX, &size);
    if (!data || size < matrixSize)
        return nullptr;
    return reinterpret_cast<std::int32_t const*>(data);
#endif
}

// Phones record upright video as landscape pictures with a display matrix that turns them a
// quarter; such a picture is as wide as it is stored high.
bool isTurnedSideways(AVStream const* stream) {
    std::int32_t const* const matrix = displayMatrix(stream);
    if (!matrix)
        return false;
    double const degrees = av_display_rotation_get(matrix);
    return !std::isnan(degrees) && std::lround(std::fabs(degrees) / 90.0) % 2 == 1;
}

Rect<int> upright(AVStream const* stream, int width, int height) {
    return isTurnedSideways(stream) ? Rect<int>(0, 0, height, width) : Rect<int>(0, 0, width, height);
}

// As displayed: the coded width stretched by the pixels' aspect ratio, truncated, then turned.
Rect<int> displayRect(AVFormatContext* context, AVStream* stream) {
    AVCodecParameters const* parameters = stream->codecpar;
    AVRational const aspect = av_guess_sample_aspect_ratio(context, stream, nullptr);
    long long width = parameters->width;
    if (aspect.num > 0 && aspect.den > 0)
        width = std::min<long long>(width * aspect.num / aspect.den, INT_MAX);
    return upright(stream, static_cast<int>(width), parameters->height);
}

// Nothing for a stream that isn't a track: subtitles, data (timecode among them), attachments,
// cover pictures, and pictures whose size nobody could find.
std::optional<TrackStats> readTrack(AVFormatContext const* context, AVStream const* stream, std::string const& path) {
    AVCodecParameters const* parameters = stream->codecpar;
    AVRational const timeBase = stream->time_base;
    if (timeBase.num <= 0 || timeBase.den <= 0)
        return std::nullopt;

    TrackStats track;
    track.rangeEditRate =
        rational<unsigned long>(static_cast<unsigned long>(timeBase.den), static_cast<unsigned long>(timeBase.num));
    track.range.start = stream->start_time != AV_NOPTS_VALUE ? stream->start_time : 0;
    if (stream->duration != AV_NOPTS_VALUE)
        track.range.duration = stream->duration;
    else if (context->duration != AV_NOPTS_VALUE)
        track.range.duration = av_rescale_q(context->duration, AV_TIME_BASE_Q, timeBase);

    switch (parameters->codec_type) {
    case AVMEDIA_TYPE_VIDEO:
        if ((stream->disposition & AV_DISPOSITION_ATTACHED_PIC) || parameters->width <= 0 || parameters->height <= 0)
            return std::nullopt;
        track.rect = upright(stream, parameters->width, parameters->height);
        if (isStill(context, stream, track.range.duration)) {
            track.type = MediaFileStats::Image;
            track.range.duration = 1;
        }
        return track;
    case AVMEDIA_TYPE_AUDIO:
        if (parameters->codec_id == AV_CODEC_ID_NONE)
            throw IOException("Unable to get media sample description for file: " + path);
        if (parameters->sample_rate <= 0 || parameters->ch_layout.nb_channels <= 0)
            throw IOException("Unable to get AudioStreamBasicDescription for file: " + path);
        track.type = MediaFileStats::Audio;
        track.sampleRate = rational<unsigned long>(static_cast<unsigned long>(parameters->sample_rate));
        track.bitDepth = bitsPerSample(parameters);
        track.numChannels = static_cast<unsigned int>(parameters->ch_layout.nb_channels);
        return track;
    default:
        return std::nullopt;
    }
}

}  // namespace

bool AVFormatStatsLoader::canOpenFile(std::string const& path) {
    try {
        switch (kindOf(path)) {
        case PathKind::RegularFile:
            return canOpenMovie(path);
        case PathKind::Folder:
            return findRecording(path).has_value();
        case PathKind::Other:
            break;
        }
    } catch (...) {
        // Allocation failures included: this question has no way to fail but "no".
    }
    return false;
}

std::string AVFormatStatsLoader::refusalReason(std::string const& path) {
    try {
        switch (kindOf(path)) {
        case PathKind::RegularFile:
            return openMovie(path).refusal;
        case PathKind::Folder:
            return folderRefusal(path);
        case PathKind::Other:
            break;
        }
    } catch (...) {
        // As for canOpenFile: without a reason the message is plainer, not wrong.
    }
    return std::string();
}

void AVFormatStatsLoader::loadStats(std::string const& path, MediaFileStats* stats) {
    std::optional<Recording> recording;
    if (kindOf(path) == PathKind::Folder) {
        recording = findRecording(path);
        if (!recording)
            throw IOException("Unable to initialize file: " + path);
    }
    std::unique_ptr<Movie> const movie = openMovie(recording ? recording->movie : path).movie;
    if (!movie || avformat_find_stream_info(movie->context(), nullptr) < 0)
        throw IOException("Unable to initialize file: " + path);
    AVFormatContext* const input = movie->context();

    // Everything is read before stats is touched, so a file that fails leaves it as it was.
    std::vector<TrackStats> tracks;
    // The file's picture size is that of its first picture track, as displayed.
    std::optional<Rect<int> > rect;
    for (unsigned int i = 0; i < input->nb_streams; ++i) {
        AVStream* const stream = input->streams[i];
        std::optional<TrackStats> track = readTrack(input, stream, path);
        if (!track)
            continue;
        if (track->type != MediaFileStats::Audio && !rect)
            rect = displayRect(input, stream);
        if (recording) {
            track->filename = recording->movie;
            if (track->type == MediaFileStats::Video)
                track->metaData = recording->sideFiles;
        }
        tracks.push_back(*track);
    }
    if (tracks.empty())
        throw IOException("No track information read from " + path);

    stats->setFilename(path);
    stats->setRect(rect.value_or(Rect<int>()));
    for (TrackStats const& track : tracks)
        stats->addTrackStats(track);
}

}  // namespace ZelmarMediaLib
