#include <ZelmarMediaLib/clipbin/AVFormatStatsLoader.h>

#include <ZelmarMediaLib/clipbin/MediaFileStats.h>
#include <ZelmarMediaLib/exceptions/IOException.h>

#include <boost/filesystem/operations.hpp>
#include <boost/filesystem/path.hpp>
#include <boost/system/error_code.hpp>

#include <algorithm>
#include <climits>
#include <iterator>
#include <memory>
#include <optional>
#include <vector>

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/log.h>
#include <libavutil/samplefmt.h>
}

namespace ZelmarMediaLib {

namespace {

typedef MediaFileStats::TrackStats TrackStats;

// In the order in which a recording's video tracks list them.
char const* const sideFileNames[] = {"dirtyrect.dat", "frontmost.dat", "cursoraction.dat", "cursorlocation.dat"};

bool isSideFileName(std::string const& leaf) {
    return std::find(std::begin(sideFileNames), std::end(sideFileNames), leaf) != std::end(sideFileNames);
}

enum class PathKind { RegularFile, Folder, Other };

// Only regular files reach libavformat: a FIFO or a device would block it or feed it forever.
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

// FFmpeg prints its own diagnostics on stderr, where a library that reports by exceptions and
// writes no log must not. The level is lowered once, and only while it is still FFmpeg's
// default, so an application that chose a level for its own use of FFmpeg keeps it.
void quietenFFmpegLog() {
    static bool const quietened = [] {
        if (av_log_get_level() == AV_LOG_INFO)
            av_log_set_level(AV_LOG_QUIET);
        return true;
    }();
    static_cast<void>(quietened);
}

struct InputCloser {
    void operator()(AVFormatContext* context) const { avformat_close_input(&context); }
};
typedef std::unique_ptr<AVFormatContext, InputCloser> Input;

// Empty when libavformat can't open the file. The "file:" prefix and the protocol list keep a
// path that looks like a URL ("http:...", "concat:...") from being fetched or combined.
Input openInput(std::string const& path) {
    quietenFFmpegLog();
    AVDictionary* options = nullptr;
    av_dict_set(&options, "protocol_whitelist", "file", 0);
    AVFormatContext* context = nullptr;
    int const result = avformat_open_input(&context, ("file:" + path).c_str(), nullptr, &options);
    av_dict_free(&options);
    // On failure avformat_open_input has freed the context and nulled the pointer.
    return result < 0 ? Input() : Input(context);
}

bool canOpenMovie(std::string const& path) {
    return kindOf(path) == PathKind::RegularFile && openInput(path) != nullptr;
}

struct Recording {
    std::string movie;
    std::vector<std::string> sideFiles;
};

// A folder is a recording when exactly one of its files, side files aside, is a movie that
// libavformat can open. Side files are optional: those that are missing are just not listed.
std::optional<Recording> findRecording(std::string const& folder) {
    Recording recording;
    boost::system::error_code error;
    boost::filesystem::directory_iterator entries(folder, error);
    boost::filesystem::directory_iterator const end;
    while (!error && entries != end) {
        std::string const entry = entries->path().string();
        if (!isSideFileName(entries->path().filename().string()) && canOpenMovie(entry)) {
            if (!recording.movie.empty())
                return std::nullopt;
            recording.movie = entry;
        }
        entries.increment(error);
    }
    if (error || recording.movie.empty())
        return std::nullopt;
    for (char const* const name : sideFileNames) {
        std::string const sideFile = (boost::filesystem::path(folder) / name).string();
        if (kindOf(sideFile) == PathKind::RegularFile)
            recording.sideFiles.push_back(sideFile);
    }
    return recording;
}

// Picture demuxers (the "image2" family: "png_pipe", "jpeg_pipe", ...) read one still, whose
// stream has neither a frame count nor a duration to tell it from a movie.
bool isStillPictureFormat(AVInputFormat const* format) {
    static char const pipeSuffix[] = "_pipe";
    std::size_t const suffixLength = sizeof(pipeSuffix) - 1;
    std::string const name = format->name;
    return name == "image2" || name == "image2pipe" ||
           (name.size() > suffixLength && name.compare(name.size() - suffixLength, suffixLength, pipeSuffix) == 0);
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

// The raw depth where the file records it (24 for 24-bit PCM, which decodes to 32-bit samples);
// otherwise that of the decoded sample format.
unsigned int bitsPerSample(AVCodecParameters const* parameters) {
    if (parameters->bits_per_raw_sample > 0)
        return static_cast<unsigned int>(parameters->bits_per_raw_sample);
    return static_cast<unsigned int>(av_get_bytes_per_sample(static_cast<AVSampleFormat>(parameters->format)) * 8);
}

// The width as displayed: the coded width stretched by the pixels' aspect ratio, truncated.
Rect<int> displayRect(AVFormatContext* context, AVStream* stream) {
    AVCodecParameters const* parameters = stream->codecpar;
    AVRational const aspect = av_guess_sample_aspect_ratio(context, stream, nullptr);
    long long width = parameters->width;
    if (aspect.num > 0 && aspect.den > 0)
        width = std::min<long long>(width * aspect.num / aspect.den, INT_MAX);
    return Rect<int>(0, 0, static_cast<int>(width), parameters->height);
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
        track.rect = Rect<int>(0, 0, parameters->width, parameters->height);
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

void AVFormatStatsLoader::loadStats(std::string const& path, MediaFileStats* stats) {
    std::optional<Recording> recording;
    if (kindOf(path) == PathKind::Folder) {
        recording = findRecording(path);
        if (!recording)
            throw IOException("Unable to initialize file: " + path);
    }
    std::string const movie = recording ? recording->movie : path;
    Input const input = kindOf(movie) == PathKind::RegularFile ? openInput(movie) : Input();
    if (!input || avformat_find_stream_info(input.get(), nullptr) < 0)
        throw IOException("Unable to initialize file: " + path);

    // Everything is read before stats is touched, so a file that fails leaves it as it was.
    std::vector<TrackStats> tracks;
    // The file's picture size is that of its first picture track, as displayed.
    std::optional<Rect<int> > rect;
    for (unsigned int i = 0; i < input->nb_streams; ++i) {
        AVStream* const stream = input->streams[i];
        std::optional<TrackStats> track = readTrack(input.get(), stream, path);
        if (!track)
            continue;
        if (track->type != MediaFileStats::Audio && !rect)
            rect = displayRect(input.get(), stream);
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
