// The default loader on real files: every fixture's tracks, the streams that are no tracks,
// recording folders, files that are missing, truncated, garbage or without a usable stream, and
// hostile files that would make FFmpeg open other files or block.
#include <ZelmarMediaLib/clipbin/AVFormatStatsLoader.h>
#include <ZelmarMediaLib/clipbin/MediaFileStats.h>
#include <ZelmarMediaLib/exceptions/IOException.h>

#include "support/BackgroundTask.h"

#include <boost/filesystem.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include <sys/stat.h>

extern "C" {
#include <libavutil/log.h>
}

namespace ZelmarMediaLib {
namespace {

namespace fs = boost::filesystem;

std::string const media = ZML_TEST_MEDIA_DIR;

struct ExpectedTrack {
    MediaFileStats::TrackType type;
    Range<long long> range;
    unsigned long editRate;
    int width;
    int height;
    unsigned long sampleRate;
    unsigned int bitDepth;
    unsigned int numChannels;
};

void expectTracks(MediaFileStats const& stats, Rect<int> const& rect, std::vector<ExpectedTrack> const& expected) {
    EXPECT_EQ(rect.width, stats.rect().width);
    EXPECT_EQ(rect.height, stats.rect().height);
    ASSERT_EQ(expected.size(), stats.numTracks());
    for (unsigned int i = 0; i < stats.numTracks(); ++i) {
        SCOPED_TRACE("track " + std::to_string(i));
        ExpectedTrack const& want = expected[i];
        EXPECT_EQ(want.type, stats.trackType(i));
        EXPECT_EQ(want.range, stats.trackRange(i));
        EXPECT_EQ(rational<unsigned long>(want.editRate), stats.rangeEditRate(i));
        EXPECT_EQ(want.width, stats.trackRect(i).width);
        EXPECT_EQ(want.height, stats.trackRect(i).height);
        EXPECT_EQ(rational<unsigned long>(want.sampleRate), stats.sampleRate(i));
        EXPECT_EQ(want.bitDepth, stats.bitDepth(i));
        EXPECT_EQ(want.numChannels, stats.numChannels(i));
    }
}

// A 16-bit WAV header over 600 bytes of silence, with the given format tag and figures.
std::string wav(std::uint16_t formatTag, std::uint16_t channels, std::uint32_t sampleRate) {
    std::string bytes;
    auto put = [&bytes](std::uint32_t value, int size) {
        for (int i = 0; i < size; ++i)
            bytes += static_cast<char>((value >> (8 * i)) & 0xff);
    };
    bytes += "RIFF";
    put(4 + 24 + 8 + 600, 4);
    bytes += "WAVEfmt ";
    put(16, 4);
    put(formatTag, 2);
    put(channels, 2);
    put(sampleRate, 4);
    put(sampleRate * channels * 2, 4);
    put(channels * 2, 2);
    put(16, 2);
    bytes += "data";
    put(600, 4);
    return bytes + std::string(600, '\0');
}

// The movie with a quarter turn in its first track header's display matrix, as phones record
// upright video: the picture is stored landscape and shown portrait.
std::string turnedAQuarter(std::string bytes) {
    std::size_t const box = bytes.find("tkhd") - 4;
    // Size, type, version and flags, then times, track, duration and reserved fields whose
    // width depends on the version, then layer, group, volume and reserved: the matrix.
    std::size_t const matrix = box + (bytes[box + 8] == 1 ? 60 : 48);
    std::int32_t const quarter[9] = {0, 0x10000, 0, -0x10000, 0, 0, 0, 0, 0x40000000};
    for (std::size_t i = 0; i < 9; ++i) {
        std::uint32_t const value = static_cast<std::uint32_t>(quarter[i]);
        for (std::size_t b = 0; b < 4; ++b)
            bytes[matrix + 4 * i + b] = static_cast<char>((value >> (24 - 8 * b)) & 0xff);
    }
    return bytes;
}

class AVFormatStatsLoaderTest : public ::testing::Test {
protected:
    void SetUp() override { fs::create_directory(dir); }
    void TearDown() override { fs::remove_all(dir); }

    std::string write(std::string const& name, std::string const& bytes) {
        std::string const path = (dir / name).string();
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
    std::string fixtureBytes(std::string const& name, std::size_t length = std::string::npos) {
        std::ifstream in(media + "/" + name, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()).substr(0, length);
    }
    shared_ptr<MediaFileStats> load(std::string const& path) {
        EXPECT_TRUE(loader.canOpenFile(path));
        shared_ptr<MediaFileStats> stats = MediaFileStats::create();
        loader.loadStats(path, stats.get());
        EXPECT_EQ(path, stats->filename());
        return stats;
    }
    // The text must be exact, and the statistics that were passed in must stay as they were.
    void expectRefused(std::string const& path, std::string const& text) {
        shared_ptr<MediaFileStats> stats = MediaFileStats::create();
        stats->setFilename("before");
        stats->addTrackStats(MediaFileStats::TrackStats());
        try {
            loader.loadStats(path, stats.get());
            ADD_FAILURE() << "no exception for " << path;
        } catch (IOException const& error) {
            EXPECT_EQ("IOException: " + text + path, error.what());
        }
        EXPECT_EQ("before", stats->filename());
        EXPECT_EQ(1u, stats->numTracks());
    }

    AVFormatStatsLoader loader;
    fs::path const dir = fs::temp_directory_path() / fs::unique_path("zml-stats-%%%%%%%%");
};

TEST_F(AVFormatStatsLoaderTest, VideoWithStereoAudioWhoseLossyCodecHasNoBitDepth) {
    shared_ptr<MediaFileStats> stats = load(media + "/video-audio.mp4");
    // Fault pinned: AAC was given 32 bits, the width of its decoder's float samples.
    expectTracks(*stats, Rect<int>(0, 0, 64, 48),
                 {{MediaFileStats::Video, {0, 10240}, 10240, 64, 48, 0, 0, 0},
                  {MediaFileStats::Audio, {0, 44100}, 44100, 0, 0, 44100, 0, 2}});
    EXPECT_EQ("", stats->filename(0)) << "a plain file is no bundle";
    EXPECT_TRUE(stats->metaData(0).empty());
}

TEST_F(AVFormatStatsLoaderTest, StreamWithoutDurationTakesTheContainersAndFileRectIsAsDisplayed) {
    // Matroska gives the stream no duration; its pixels are twice as wide as high.
    expectTracks(*load(media + "/video-only.mkv"), Rect<int>(0, 0, 128, 48),
                 {{MediaFileStats::Video, {0, 1000}, 1000, 64, 48, 0, 0, 0}});
}

TEST_F(AVFormatStatsLoaderTest, StillPictureAndSingleFrameMovieAreImagesOfDurationOne) {
    expectTracks(*load(media + "/still.png"), Rect<int>(0, 0, 40, 30),
                 {{MediaFileStats::Image, {0, 1}, 25, 40, 30, 0, 0, 0}});
    expectTracks(*load(media + "/one-frame.mkv"), Rect<int>(0, 0, 32, 24),
                 {{MediaFileStats::Image, {0, 1}, 1000, 32, 24, 0, 0, 0}});
}

TEST_F(AVFormatStatsLoaderTest, MonoPcmReportsItsRawDepthNotTheDecodedOne) {
    expectTracks(*load(media + "/mono24.wav"), Rect<int>(),
                 {{MediaFileStats::Audio, {0, 4410}, 22050, 0, 0, 22050, 24, 1}});
}

TEST_F(AVFormatStatsLoaderTest, SubtitleTimecodeAndCoverStreamsAreNoTracks) {
    // Streams: video, subtitles, audio, two timecodes, a cover picture.
    expectTracks(*load(media + "/extra-streams.mp4"), Rect<int>(0, 0, 48, 32),
                 {{MediaFileStats::Video, {0, 10240}, 10240, 48, 32, 0, 0, 0},
                  {MediaFileStats::Audio, {0, 16000}, 16000, 0, 0, 16000, 0, 1}});
}

TEST_F(AVFormatStatsLoaderTest, RecordingFolderIsABundleOfItsMovieWithTheSideFilesFound) {
    std::string const folder = media + "/recording", movie = folder + "/capture.mov";
    shared_ptr<MediaFileStats> stats = load(folder);
    expectTracks(*stats, Rect<int>(0, 0, 64, 48),
                 {{MediaFileStats::Video, {0, 10240}, 10240, 64, 48, 0, 0, 0},
                  {MediaFileStats::Audio, {0, 44100}, 44100, 0, 0, 44100, 0, 1}});
    EXPECT_EQ(movie, stats->filename(0));
    EXPECT_EQ(movie, stats->filename(1));
    EXPECT_EQ(std::vector<std::string>({folder + "/dirtyrect.dat", folder + "/frontmost.dat",
                                        folder + "/cursorlocation.dat"}),
              stats->metaData(0));
    EXPECT_TRUE(stats->metaData(1).empty()) << "side files belong to the picture";
    EXPECT_EQ(1u, stats->fileTrackNumberForTrackNumber(1));
    EXPECT_EQ(2u, MediaFileStats::create(folder)->numTracks()) << "the default loader takes folders";
}

TEST_F(AVFormatStatsLoaderTest, FolderWithOneMovieAndNoSideFilesIsStillARecording) {
    write("screen.mp4", fixtureBytes("video-audio.mp4"));
    write("notes.txt", "not a movie\n");
    shared_ptr<MediaFileStats> stats = load(dir.string());
    EXPECT_EQ((dir / "screen.mp4").string(), stats->filename(0));
    EXPECT_TRUE(stats->metaData(0).empty());
}

TEST_F(AVFormatStatsLoaderTest, FoldersWithoutExactlyOneMovieAreRefused) {
    EXPECT_FALSE(loader.canOpenFile(dir.string())) << "empty";
    write("dirtyrect.dat", "side");
    write("notes.txt", "not a movie\n");
    EXPECT_FALSE(loader.canOpenFile(dir.string())) << "side files only";
    expectRefused(dir.string(), "Unable to initialize file: ");
    write("a.mp4", fixtureBytes("video-audio.mp4"));
    write("b.mkv", fixtureBytes("video-only.mkv"));
    EXPECT_FALSE(loader.canOpenFile(dir.string())) << "two movies";
    expectRefused(dir.string(), "Unable to initialize file: ");
}

TEST_F(AVFormatStatsLoaderTest, MissingFileIsNotOpenableAndHasNoLoader) {
    std::string const path = (dir / "missing.mp4").string();
    EXPECT_FALSE(loader.canOpenFile(path));
    expectRefused(path, "Unable to initialize file: ");
    EXPECT_FALSE(MediaFileStats::isFileOpenable(path));
    EXPECT_THROW(MediaFileStats::create(path), IOException);
}

TEST_F(AVFormatStatsLoaderTest, TruncatedGarbageAndEmptyFilesAreRefused) {
    for (std::string const& path : {write("cut.mp4", fixtureBytes("video-audio.mp4", 3000)),
                                    write("noise.mp4", std::string(4096, '\x5a') + "\x01\x02"),
                                    write("noise", "\x13\x37 not media at all"), write("empty.mov", "")}) {
        EXPECT_FALSE(loader.canOpenFile(path)) << path;
        expectRefused(path, "Unable to initialize file: ");
    }
    // Pictures are recognised by their content, not by a name ending in ".png".
    expectRefused(write("noise.png", std::string(512, '\x5a')), "Unable to initialize file: ");
    expectRefused(write("cut.png", fixtureBytes("still.png", 100)), "No track information read from ");
}

TEST_F(AVFormatStatsLoaderTest, FilesWithoutUsableStreamsAreRefused) {
    expectRefused(write("only.srt", "1\n00:00:00,000 --> 00:00:01,000\nhello\n\n"), "No track information read from ");
    expectRefused(write("mute.wav", wav(1, 0, 8000)), "Unable to get AudioStreamBasicDescription for file: ");
    expectRefused(write("alien.wav", wav(0x7777, 1, 8000)), "Unable to get media sample description for file: ");
}

TEST_F(AVFormatStatsLoaderTest, NamedPipesAndUrlsAreNeitherOpenedNorFetched) {
    // Opening a FIFO for reading would block until a writer comes.
    std::string const fifo = (dir / "pipe.mp4").string();
    ASSERT_EQ(0, ::mkfifo(fifo.c_str(), 0600));
    EXPECT_FALSE(loader.canOpenFile(fifo));
    expectRefused(fifo, "Unable to initialize file: ");
    std::string const movie = media + "/video-audio.mp4";
    EXPECT_FALSE(loader.canOpenFile("concat:" + movie + "|" + movie));
    EXPECT_FALSE(loader.canOpenFile("file:" + movie));
}

TEST_F(AVFormatStatsLoaderTest, PictureTurnedAQuarterByItsDisplayMatrixIsReportedUpright) {
    // Fault pinned: a phone's portrait video was reported landscape, its display matrix ignored.
    expectTracks(*load(write("portrait.mp4", turnedAQuarter(fixtureBytes("video-audio.mp4")))),
                 Rect<int>(0, 0, 48, 64),
                 {{MediaFileStats::Video, {0, 10240}, 10240, 48, 64, 0, 0, 0},
                  {MediaFileStats::Audio, {0, 44100}, 44100, 0, 0, 44100, 0, 2}});
}

TEST_F(AVFormatStatsLoaderTest, HostApplicationsFFmpegLogLevelIsLeftAlone) {
    // Fault pinned: the first load silenced FFmpeg for the whole process. Nothing in these tests
    // sets the level, so it must still be FFmpeg's default after loads that succeed and fail.
    load(media + "/video-audio.mp4");
    expectRefused(write("noise.mp4", std::string(4096, '\x5a')), "Unable to initialize file: ");
    EXPECT_EQ(AV_LOG_INFO, av_log_get_level());
}

// Faults pinned: a self-referencing playlist made the load run for ever with memory growing
// without bound; a playlist or file list naming a FIFO, or a FIFO itself, blocked for ever; a
// self-referencing file list took ten seconds; "a%d.png" was read as the sequence "a1.png", ...
TEST_F(AVFormatStatsLoaderTest, HostileFilesAreRefusedAtOnceWithTheirReason) {
    std::string const fifo = (dir / "pipe.ts").string();
    ASSERT_EQ(0, ::mkfifo(fifo.c_str(), 0600));
    ASSERT_EQ(0, ::mkfifo((dir / "pipe.sub").string().c_str(), 0600));
    write("a1.png", fixtureBytes("still.png"));
    std::string const playlist = "#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:1,\n";
    std::string const notOpened = " (a list of other media, which are not opened: ";
    struct Case {
        std::string path;
        std::string reason;
    } const cases[] = {
        {write("loop.m3u8", playlist + "loop.m3u8\n"), notOpened + "hls)"},
        {write("pipe.m3u8", playlist + "pipe.ts\n"), notOpened + "hls)"},
        {write("loop.ffconcat", "ffconcat version 1.0\nfile loop.ffconcat\n"), notOpened + "concat)"},
        {write("pipe.ffconcat", "ffconcat version 1.0\nfile pipe.ts\n"), notOpened + "concat)"},
        {write("pipe.idx", "# VobSub index file, v7 (do not modify this line!)\n"), notOpened + "vobsub)"},
        {write("a%d.png", "not a picture, unlike a1.png"), ""},
        {fifo, " (not a regular file)"},
    };
    for (Case const& hostile : cases) {
        // Shared with the task, which a hanging load would leave running after the test.
        shared_ptr<std::string> const outcome = boost::make_shared<std::string>("loaded");
        test::BackgroundTask task([path = hostile.path, outcome] {
            try {
                MediaFileStats::create(path);
            } catch (IOException const& error) {
                *outcome = error.what();
            }
        });
        ASSERT_TRUE(task.finishedWithin(test::finishLimit)) << "still loading " << hostile.path;
        EXPECT_EQ("IOException: No appropriate stats loader for file: " + hostile.path + hostile.reason, *outcome);
        EXPECT_FALSE(loader.canOpenFile(hostile.path)) << hostile.path;
    }
}

}  // namespace
}  // namespace ZelmarMediaLib
