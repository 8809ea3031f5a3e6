// File statistics without a media reader: statistics built by hand, checked access by track
// number, the printed description, the loader registry and track numbers inside bundles.
#include <ZelmarMediaLib/clipbin/MediaFileStats.h>
#include <ZelmarMediaLib/clipbin/MediaFileStatsPosix.h>
#include <ZelmarMediaLib/clipbin/StatsLoader.h>
#include <ZelmarMediaLib/exceptions/IOException.h>
#include <ZelmarMediaLib/exceptions/IndexException.h>

#include <boost/filesystem.hpp>

#include "support/ExpectText.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace ZelmarMediaLib {
namespace {

std::string const media = ZML_TEST_MEDIA_DIR;

MediaFileStats::TrackStats track(MediaFileStats::TrackType type, std::string const& filename = "") {
    MediaFileStats::TrackStats stats;
    stats.type = type;
    stats.filename = filename;
    return stats;
}

// Claims only paths with its own prefix, so that it never shadows the default loader, and
// marks what it loads with its number.
class ClaimingLoader : public StatsLoader {
public:
    ClaimingLoader(std::string prefix, int mark) : prefix_(std::move(prefix)), mark_(mark) {}
    bool canOpenFile(std::string const& path) override {
        ++asked;
        return path.compare(0, prefix_.size(), prefix_) == 0;
    }
    void loadStats(std::string const& path, MediaFileStats* stats) override {
        stats->setFilename(path);
        stats->setRect(Rect<int>(0, 0, mark_, mark_));
        if (mark_ < 0)
            throw IOException("half read");
    }
    int asked = 0;

private:
    std::string prefix_;
    int mark_;
};

// Registered once for the whole process, as an application would; the array gives the
// second one the higher address.
ClaimingLoader* claimingLoaders() {
    static ClaimingLoader loaders[3] = {{"claimed:", 1}, {"claimed:", 2}, {"failing:", -1}};
    static bool const registered = [] {
        for (ClaimingLoader& loader : loaders)
            MediaFileStats::addStatsLoader(&loader);
        return true;
    }();
    static_cast<void>(registered);
    return loaders;
}

// The component files of bundles: "component:" paths, each a video and two audio tracks,
// with a count of the reads.
class ComponentLoader : public StatsLoader {
public:
    bool canOpenFile(std::string const& path) override { return path.compare(0, 10, "component:") == 0; }
    void loadStats(std::string const& path, MediaFileStats* stats) override {
        ++reads;
        stats->setFilename(path);
        for (MediaFileStats::TrackType type : {MediaFileStats::Video, MediaFileStats::Audio, MediaFileStats::Audio})
            stats->addTrackStats(track(type));
    }
    std::atomic<int> reads{0};
};

ComponentLoader& componentLoader() {
    static ComponentLoader loader;
    static bool const registered = (MediaFileStats::addStatsLoader(&loader), true);
    static_cast<void>(registered);
    return loader;
}

TEST(MediaFileStatsTest, StatsBuiltByHandNeedNoFile) {
    shared_ptr<MediaFileStats> stats = MediaFileStats::create();
    MediaFileStats::TrackStats audio = track(MediaFileStats::Audio);
    audio.sampleRate = 48000;
    audio.numChannels = 2;
    stats->addTrackStats(track(MediaFileStats::Video));
    stats->addTrackStats(audio);
    audio.numChannels = 6;  // the stats hold a copy
    ASSERT_EQ(2u, stats->numTracks());
    EXPECT_EQ(rational<unsigned long>(0, 1), stats->rangeEditRate(0));
    EXPECT_EQ(Range<long long>(0, 0), stats->trackRange(0));
    EXPECT_EQ(2u, stats->numChannels(1));
    stats->trackStats(1).bitDepth = 16;
    EXPECT_EQ(16u, stats->bitDepth(1));
    EXPECT_EQ(1, MediaFileStats::Image) << "the numbers are written to XML";
    EXPECT_EQ(2, MediaFileStats::Audio);
}

TEST(MediaFileStatsTest, EveryAccessPastTheLastTrackRaisesWithTheIndex) {
    shared_ptr<MediaFileStats> stats = MediaFileStats::create();
    stats->addTrackStats(track(MediaFileStats::Video));
    MediaFileStats const& constant = *stats;
    std::function<void()> const accesses[] = {
        [&] { stats->trackStats(1); },          [&] { constant.trackStats(1); },
        [&] { constant.trackRange(1); },        [&] { constant.rangeEditRate(1); },
        [&] { constant.trackType(1); },         [&] { constant.trackRect(1); },
        [&] { constant.sampleRate(1); },        [&] { constant.bitDepth(1); },
        [&] { constant.numChannels(1); },       [&] { constant.filename(1u); },
        [&] { constant.metaData(1); },          [&] { constant.fileTrackNumberForTrackNumber(1); },
    };
    for (auto const& access : accesses) {
        try {
            access();
            ADD_FAILURE() << "no exception";
        } catch (IndexException const& error) {
            EXPECT_EQ(1, error.index());
            EXPECT_STREQ("Invalid index:1", error.what());
        }
    }
}

TEST(MediaFileStatsTest, DescriptionListsFileAndEveryTrack) {
    shared_ptr<MediaFileStats> stats = MediaFileStats::create();
    stats->setFilename("/clips/a.mov");
    stats->setRect(Rect<int>(0, 0, 640, 480));
    MediaFileStats::TrackStats video = track(MediaFileStats::Video);
    video.range = Range<long long>(5, 300);
    video.rangeEditRate = rational<unsigned long>(60000, 2002);
    video.rect = Rect<int>(1, 2, 640, 480);
    stats->addTrackStats(video);
    std::ostringstream address;
    address << static_cast<void const*>(stats.get());
    EXPECT_EQ("MediaFileStats at " + address.str() +
                  "\nfilename: /clips/a.mov\nrect: (0, 0, 640, 480)\nnum tracks: 1\ntrack0:\n  range: (5, 300)\n"
                  "  rangeEditRate: 30000/1001\n  type: 0\n  rect: (1, 2, 640, 480)\n  sampleRate: 0/1\n"
                  "  bitDepth: 0\n  numChannels: 0\n",
              stats->description());
}

TEST(MediaFileStatsTest, InsideABundleTheFileTrackNumberIsFoundInTheComponentFile) {
    shared_ptr<MediaFileStats> plain = MediaFileStats::create();
    plain->addTrackStats(track(MediaFileStats::Video));
    plain->addTrackStats(track(MediaFileStats::Video, "/not/read.mov"));
    EXPECT_EQ(1u, plain->fileTrackNumberForTrackNumber(1)) << "outside a bundle it is the number itself";
    std::string const movie = media + "/video-audio.mp4", sound = media + "/mono24.wav";
    shared_ptr<MediaFileStats> stats = MediaFileStats::create();
    stats->addTrackStats(track(MediaFileStats::Video, movie));
    stats->addTrackStats(track(MediaFileStats::Audio, sound));
    stats->addTrackStats(track(MediaFileStats::Audio, movie));
    stats->addTrackStats(track(MediaFileStats::Audio, sound));
    stats->addTrackStats(track(MediaFileStats::Audio, "/missing.wav"));
    EXPECT_EQ(0u, stats->fileTrackNumberForTrackNumber(0));
    EXPECT_EQ(0u, stats->fileTrackNumberForTrackNumber(1));
    EXPECT_EQ(1u, stats->fileTrackNumberForTrackNumber(2)) << "the movie's audio comes after its video";
    EXPECT_EQ(1u, stats->fileTrackNumberForTrackNumber(3)) << "a second audio track that the file lacks";
    EXPECT_THROW(stats->fileTrackNumberForTrackNumber(4), IOException);
}

TEST(MediaFileStatsTest, EachComponentFileIsReadOnceWhateverTheThreadsAsking) {
    // Fault pinned: every call read the component file again, some 50 ms each time.
    ComponentLoader& loader = componentLoader();
    shared_ptr<MediaFileStats> stats = MediaFileStats::create();
    for (std::string const file : {"component:a", "component:b", "component:a", "component:a"})
        stats->addTrackStats(track(file == "component:b" ? MediaFileStats::Video : MediaFileStats::Audio, file));
    int const readsBefore = loader.reads;
    std::vector<std::thread> readers;
    std::vector<unsigned int> numbers(8 * stats->numTracks());
    for (unsigned int reader = 0; reader < 8; ++reader) {
        readers.emplace_back([&, reader] {
            for (unsigned int t = 0; t < stats->numTracks(); ++t)
                numbers[reader * stats->numTracks() + t] = stats->fileTrackNumberForTrackNumber(t);
        });
    }
    for (std::thread& reader : readers)
        reader.join();
    EXPECT_EQ(readsBefore + 2, loader.reads) << "once for a, once for b";
    for (unsigned int reader = 0; reader < 8; ++reader) {
        EXPECT_EQ(std::vector<unsigned int>({1, 0, 2, 3}),
                  std::vector<unsigned int>(numbers.begin() + reader * 4, numbers.begin() + reader * 4 + 4));
    }
}

TEST(MediaFileStatsTest, LastOfSeveralAbleLoadersInAddressOrderLoadsAfterAllWereAsked) {
    ClaimingLoader* loaders = claimingLoaders();
    int const askedBefore = loaders[0].asked;
    shared_ptr<MediaFileStats> stats = MediaFileStats::create("claimed:x");
    EXPECT_EQ(2, stats->rect().width);
    EXPECT_EQ(askedBefore + 1, loaders[0].asked) << "a later yes doesn't skip an earlier loader";
    EXPECT_EQ(loaders[0].asked, loaders[2].asked);
    EXPECT_TRUE(MediaFileStats::isFileOpenable("claimed:y"));
    EXPECT_TRUE(MediaFileStats::isFileOpenable(media + "/still.png")) << "the default loader joined them";
    EXPECT_FALSE(MediaFileStats::isFileOpenable("unclaimed:y"));
}

TEST(MediaFileStatsTest, FailedLoadsRaiseAndLeaveNoObject) {
    claimingLoaders();
    EXPECT_THROW(MediaFileStats::create("failing:x"), IOException);
    test::expectText<IOException>([] { MediaFileStats::create("unclaimed:x"); },
                                  "IOException: No appropriate stats loader for file: unclaimed:x (no such file)");
    EXPECT_THROW(MediaFileStats::addStatsLoader(nullptr), ZelmarMediaLibException);
}

TEST(MediaFileStatsTest, AbsolutePathResolvesDotsAndLinksOfAnExistingFile) {
    boost::filesystem::path const canonical = boost::filesystem::canonical(media + "/still.png");
    EXPECT_EQ(canonical.string(), MediaFileStatsPosix::toAbsolutePath(media + "/recording/../still.png"));
    boost::filesystem::path const link =
        boost::filesystem::temp_directory_path() / boost::filesystem::unique_path("zml-link-%%%%%%%%");
    boost::filesystem::create_symlink(canonical, link);
    std::string const resolved = MediaFileStatsPosix::toAbsolutePath(link.string());
    boost::filesystem::remove(link);
    EXPECT_EQ(canonical.string(), resolved);
    test::expectText<IOException>([] { MediaFileStatsPosix::toAbsolutePath("/no/such/file"); },
                                  "IOException: Unable to resolve path: /no/such/file");
}

}  // namespace
}  // namespace ZelmarMediaLib
