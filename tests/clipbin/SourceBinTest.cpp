// The source bin: each file loaded once, the sentries' veto with its printed line, removal,
// look-ups, the XML, and loads that fail without leaving anything in the bin.
#include <ZelmarMediaLib/clipbin/MediaFileStats.h>
#include <ZelmarMediaLib/clipbin/Source.h>
#include <ZelmarMediaLib/clipbin/SourceBin.h>
#include <ZelmarMediaLib/clipbin/SourceBinSentry.h>
#include <ZelmarMediaLib/datatypes/ProjectEditRate.h>
#include <ZelmarMediaLib/exceptions/DanglingWeakPtrException.h>
#include <ZelmarMediaLib/exceptions/IOException.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/project/Project.h>

#include "support/CountingObserver.h"
#include "support/HandBuiltStats.h"
#include "support/XmlCheck.h"

#include <boost/filesystem.hpp>

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <unistd.h>

namespace ZelmarMediaLib {
namespace {

namespace fs = boost::filesystem;

std::string const media = ZML_TEST_MEDIA_DIR;

using test::id;
using test::xml;

// Says yes or no as told, and remembers the files it was asked about.
class Sentry : public SourceBinSentry {
public:
    Sentry(std::string name, bool accepts) : name_(std::move(name)), accepts_(accepts) {}
    std::string description() const override { return name_; }
    bool acceptsFile(MediaFileStats const& stats) override {
        asked.push_back(stats.filename());
        return accepts_;
    }

    std::vector<std::string> asked;

private:
    std::string name_;
    bool accepts_;
};

// Root reads every file whatever its permissions, so while the guard lives a root test runs as
// "nobody", its saved user id letting it come back.
class AsAnotherUserIfRoot {
public:
    AsAnotherUserIfRoot() : changed_(::geteuid() == 0 && ::seteuid(65534) == 0) {}
    ~AsAnotherUserIfRoot() {
        if (changed_ && ::seteuid(0) != 0)
            ADD_FAILURE() << "could not become root again";
    }
    AsAnotherUserIfRoot(AsAnotherUserIfRoot const&) = delete;
    AsAnotherUserIfRoot& operator=(AsAnotherUserIfRoot const&) = delete;

private:
    bool const changed_;
};

class SourceBinTest : public ::testing::Test {
protected:
    void SetUp() override { bin->attach(&observer); }
    void TearDown() override {
        bin->detach(&observer);
        fs::remove_all(dir);
    }

    std::size_t numSources() const {
        SourceBin const& view = *bin;
        return static_cast<std::size_t>(std::distance(view.begin(), view.end()));
    }

    // The load must fail with the exception and the text, leaving the bin as it was, unheard.
    template <class E>
    void expectRefusedLoad(std::string const& path, std::string const& text) {
        std::string const before = xml(*bin);
        int const calls = observer.calls;
        try {
            bin->loadFile(path);
            ADD_FAILURE() << "no exception for " << path;
        } catch (E const& error) {
            EXPECT_EQ(text, error.what());
        }
        EXPECT_EQ(before, xml(*bin));
        EXPECT_EQ(calls, observer.calls);
        EXPECT_FALSE(bin->isFileLoaded(path));
    }

    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<SourceBin> bin = boost::make_shared<SourceBin>(project, project);
    test::CountingObserver observer;
    std::string const movie = media + "/video-audio.mp4";
    fs::path const dir = fs::temp_directory_path() / fs::unique_path("zml-bin-%%%%%%%%");
};

TEST_F(SourceBinTest, SamePathLoadsOnceAndAnyOtherSpellingLoadsAgain) {
    shared_ptr<Source> first = bin->loadFile(movie);
    EXPECT_EQ(first, bin->loadFile(movie));
    EXPECT_EQ(1u, numSources());
    EXPECT_EQ(1, observer.calls) << "finding a loaded file sends nothing";
    shared_ptr<Source> second = bin->loadFile(media + "//video-audio.mp4");
    EXPECT_NE(first, second);
    EXPECT_EQ(2u, numSources());
    EXPECT_EQ(first, bin->sourceForFile(movie));
    EXPECT_EQ(second, bin->sourceForFile(media + "//video-audio.mp4"));
    EXPECT_FALSE(bin->sourceForFile(media + "/./video-audio.mp4"));
    EXPECT_TRUE(bin->containsSource(first));
}

TEST_F(SourceBinTest, FirstRefusingSentryPrintsItsLineAndStopsTheLoad) {
    shared_ptr<Sentry> lenient = boost::make_shared<Sentry>("lenient", true);
    shared_ptr<Sentry> picky = boost::make_shared<Sentry>("picky", false);
    shared_ptr<Sentry> never = boost::make_shared<Sentry>("never asked", false);
    bin->addSentry(lenient);
    bin->addSentry(picky);
    bin->addSentry(never);
    EXPECT_EQ(0, observer.calls) << "adding a sentry sends nothing";

    testing::internal::CaptureStdout();
    expectRefusedLoad<ZelmarMediaLibException>(movie, "attempting to load a media not accepted by sentries.");
    EXPECT_EQ("SourceBinSentry(picky) rejected file:" + movie + "\n", testing::internal::GetCapturedStdout());
    EXPECT_EQ(std::vector<std::string>({movie}), lenient->asked);
    EXPECT_EQ(std::vector<std::string>({movie}), picky->asked);
    EXPECT_TRUE(never->asked.empty());
}

TEST_F(SourceBinTest, SentriesAreAskedOnlyAboutNewFilesAndACopyIsAnEmptyBinWithoutThem) {
    shared_ptr<Source> loaded = bin->loadFile(movie);
    shared_ptr<Sentry> picky = boost::make_shared<Sentry>("picky", false);
    bin->addSentry(picky);
    EXPECT_EQ(loaded, bin->loadFile(movie));
    EXPECT_THROW(bin->addSentry(shared_ptr<SourceBinSentry>()), ZelmarMediaLibException);
    SourceBin copy(*bin);
    EXPECT_FALSE(copy.isFileLoaded(movie));
    EXPECT_TRUE(copy.loadFile(movie));
    EXPECT_TRUE(picky->asked.empty());
    EXPECT_EQ(&project->mutex(), &copy.mutex());
}

// Fault pinned: a missing file, a folder, an unreadable file and an unknown one all gave the
// same message, which named no cause.
TEST_F(SourceBinTest, UnreadableFilesLeaveNothingInTheBinAndSayWhy) {
    fs::create_directories(dir / "empty");
    fs::create_directories(dir / "twice");
    fs::copy_file(movie, dir / "twice" / "b.mp4");
    fs::copy_file(media + "/video-only.mkv", dir / "twice" / "a.mkv");
    std::ofstream(dir / "twice" / "notes.txt") << "not a movie\n";
    std::ofstream(dir / "noise.mp4") << std::string(4096, '\x5a');
    std::ofstream(dir / "blank.mov");
    fs::copy_file(movie, dir / "secret.mp4");
    fs::permissions(dir / "secret.mp4", fs::no_perms);
    std::pair<fs::path, std::string> const cases[] = {
        {dir / "missing.mp4", " (no such file)"},
        {dir / "missing" / "a.mp4", " (no such file)"},
        {dir / "secret.mp4", " (permission denied)"},
        {dir / "empty", " (a folder without a movie)"},
        {dir / "twice", " (more than one movie in the folder: a.mkv and b.mp4)"},
        {dir / "noise.mp4", ""},
        {dir / "blank.mov", ""},
    };
    AsAnotherUserIfRoot const guard;
    for (auto const& [path, cause] : cases) {
        SCOPED_TRACE(path.string());
        expectRefusedLoad<IOException>(path.string(),
                                       "IOException: No appropriate stats loader for file: " + path.string() + cause);
    }
    EXPECT_EQ(0u, numSources());
}

TEST_F(SourceBinTest, RemoveTakesOutThatVerySourceOrRaisesWithIt) {
    shared_ptr<Source> kept = bin->loadFile(movie);
    shared_ptr<Source> gone = bin->loadFile(media + "/mono24.wav");
    bin->removeSource(gone);
    EXPECT_EQ(3, observer.calls);
    EXPECT_FALSE(bin->containsSource(gone));
    EXPECT_FALSE(bin->isFileLoaded(media + "/mono24.wav"));
    EXPECT_TRUE(bin->containsSource(kept));
    try {
        bin->removeSource(gone);
        FAIL();
    } catch (ValueException<shared_ptr<Source const> > const& error) {
        EXPECT_STREQ("unable to remove clip", error.what());
        EXPECT_EQ(gone, error.value());
    }
    EXPECT_EQ(3, observer.calls);
    EXPECT_EQ(1u, numSources());
}

TEST_F(SourceBinTest, AddedSourcesAreWrittenInBinOrderTwoLevelsDeeper) {
    shared_ptr<Source> talk = Source::create(project, project, test::talkStats());
    shared_ptr<Source> still = Source::create(
        project, project, test::stats("/media/still.png", Rect<int>(0, 0, 40, 30), {test::imageTrack(25)}));
    bin->addSource(talk);
    bin->addSource(still);
    EXPECT_EQ(2, observer.calls);
    EXPECT_THROW(bin->addSource(shared_ptr<Source>()), ZelmarMediaLibException);
    std::string const expected =
        "<SourceBin id=\"" + id(*bin) + "\"  >\n"
        "  <Source id=\"" + id(*talk) +
        "\" src=\"/media/talk.mov\" lastMod=\"not-a-date-time\" rect=\"(0,0,640,480)\" >\n"
        "    <SourceTrack range=\"(0,6000)\" type=\"0\" editRate=\"600/1\" trackRect=\"(0,0,640,480)\" "
        "sampleRate=\"0/1\" bitDepth=\"0\" numChannels=\"0\" />\n"
        "    <SourceTrack range=\"(0,441000)\" type=\"2\" editRate=\"44100/1\" trackRect=\"(0,0,0,0)\" "
        "sampleRate=\"44100/1\" bitDepth=\"16\" numChannels=\"2\" />\n"
        "  </Source>\n"
        "  <Source id=\"" + id(*still) +
        "\" src=\"/media/still.png\" lastMod=\"not-a-date-time\" rect=\"(0,0,40,30)\" >\n"
        "    <SourceTrack range=\"(0,1)\" type=\"1\" editRate=\"25/1\" trackRect=\"(0,0,40,30)\" "
        "sampleRate=\"0/1\" bitDepth=\"0\" numChannels=\"0\" />\n"
        "  </Source>\n"
        "</SourceBin>\n";
    EXPECT_EQ(expected, xml(*bin));
    EXPECT_TRUE(test::isWellFormedXml(expected));
}

TEST_F(SourceBinTest, DeadEditRateRaisesBeforeAnythingIsRead) {
    shared_ptr<ProjectEditRate> other = Project::create(25, 1);
    SourceBin orphan(project, other);
    other.reset();
    EXPECT_THROW(orphan.loadFile(movie), DanglingWeakPtrException<ProjectEditRate>);
    EXPECT_FALSE(orphan.isFileLoaded(movie));
}

}  // namespace
}  // namespace ZelmarMediaLib
