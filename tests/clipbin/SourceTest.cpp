// Sources: the time range common to a file's tracks, the private timeline with its linked medias,
// the walks over them, the XML with its file tracks, changing the file, and the statistics and
// files that make no source.
#include <ZelmarMediaLib/clipbin/MediaFileStats.h>
#include <ZelmarMediaLib/clipbin/ScreenMetaData.h>
#include <ZelmarMediaLib/clipbin/Source.h>
#include <ZelmarMediaLib/exceptions/IOException.h>
#include <ZelmarMediaLib/exceptions/IndexException.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/AMFile.h>
#include <ZelmarMediaLib/timeline/AbstractIMFile.h>
#include <ZelmarMediaLib/timeline/AudioMixer.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>
#include <ZelmarMediaLib/timeline/Timeline.h>
#include <ZelmarMediaLib/timeline/VMFile.h>
#include <ZelmarMediaLib/timeline/VisualMixer.h>

#include "support/CountingObserver.h"
#include "support/HandBuiltStats.h"
#include "support/ExpectText.h"
#include "support/XmlCheck.h"

#include <boost/filesystem.hpp>

#include <gtest/gtest.h>

#include <climits>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace ZelmarMediaLib {
namespace {

namespace fs = boost::filesystem;

std::string const media = ZML_TEST_MEDIA_DIR;

using test::expectText;
using test::id;
using test::xml;

class SourceTest : public ::testing::Test {
protected:
    void TearDown() override { fs::remove_all(dir); }

    shared_ptr<Source> make(shared_ptr<MediaFileStats> stats) { return Source::create(project, project, stats); }
    shared_ptr<Source> load(std::string const& path) { return Source::create(project, project, path); }

    // A copy of a fixture, file or folder, that a test may change or remove.
    std::string copyOf(std::string const& name, std::string const& as) {
        fs::create_directories(dir);
        fs::path const from = media + "/" + name, to = dir / as;
        if (fs::is_directory(from)) {
            fs::create_directory(to);
            for (fs::directory_entry const& entry : fs::directory_iterator(from))
                fs::copy_file(entry.path(), to / entry.path().filename());
        } else {
            fs::copy_file(from, to);
        }
        return to.string();
    }

    template <class T>
    std::vector<shared_ptr<T> > walk(Source const& source) {
        std::vector<shared_ptr<T> > medias;
        for (Source::Iterator<T> at = source.mediaBegin<T>(), end = source.mediaEnd<T>(); at != end; ++at)
            medias.push_back(*at);
        return medias;
    }

    shared_ptr<Project> project = Project::create(30, 1);
    fs::path const dir = fs::temp_directory_path() / fs::unique_path("zml-source-%%%%%%%%");
};

TEST_F(SourceTest, HandBuiltStatisticsGiveLinkedMediasOnTracksOfTheirOwn) {
    shared_ptr<Source> source = make(test::talkStats());
    EXPECT_EQ(Range<long long>(0, 300), source->timeRange());
    EXPECT_TRUE(source->isOnline());

    shared_ptr<Timeline const> timeline = source->timeline();
    ASSERT_TRUE(timeline->visualMixer() && timeline->audioMixer());
    std::string const timelineXml = xml(*timeline);
    EXPECT_NE(std::string::npos, timelineXml.find("value=\"640\" name=\"width\""));
    EXPECT_NE(std::string::npos, timelineXml.find("value=\"480\" name=\"height\""));
    EXPECT_EQ(1, timeline->visualMixer()->numTracks());
    EXPECT_EQ(1, timeline->audioMixer()->numTracks());
    EXPECT_EQ(44100u, timeline->audioMixer()->sampleRate()->value());
    EXPECT_EQ(16u, timeline->audioMixer()->bitDepth()->value());
    EXPECT_EQ(1u, timeline->audioMixer()->numChannels()->value()) << "one channel, also for stereo";

    shared_ptr<VMFile const> video = dynamic_pointer_cast<VMFile const>(*source->mediaBegin<VisualMedia const>());
    shared_ptr<AMFile const> audio = dynamic_pointer_cast<AMFile const>(*source->mediaBegin<AudioMedia const>());
    ASSERT_TRUE(video && audio);
    EXPECT_EQ(Range<long long>(0, 300), video->trackRange());
    EXPECT_EQ(AMFile::ChannelSet({0, 1}), audio->channels());
    EXPECT_EQ(1u, audio->trackNumber());
    EXPECT_EQ(44100u, audio->sampleRate()->value());
    EXPECT_TRUE(video->isLinkedWith(audio));
    EXPECT_TRUE(video->isInstanceOf(source) && audio->isInstanceOf(source));
    EXPECT_TRUE(timeline->hasInstanceOf(source));
    EXPECT_EQ(0u, source->description().find("Source at 0x"));
    EXPECT_NE(std::string::npos, source->description().find("<Timeline id=\"" + id(*timeline) + "\""));
}

TEST_F(SourceTest, TimeRangeIsWhatAllTracksShareInProjectUnits) {
    // Video from 1 s to 11 s; audio from 0 s to 8 s.
    shared_ptr<Source> source =
        make(test::stats("/media/offset.mov", Rect<int>(0, 0, 320, 240),
                         {test::videoTrack(Range<long long>(60, 600), 60),
                          test::audioTrack(Range<long long>(0, 384000), 48000, 1)}));
    EXPECT_EQ(Range<long long>(30, 210), source->timeRange());
    shared_ptr<Media const> video = *source->mediaBegin<VisualMedia const>();
    EXPECT_EQ(Range<double>(30.0, 210.0), video->mediaRange());
    EXPECT_EQ(Range<long long>(0, 210), video->trackRange()) << "placed at the start of its track";
    EXPECT_EQ(30.0, dynamic_pointer_cast<MediaImpl const>(video)->mediaStartLimit());
}

TEST_F(SourceTest, RateConversionMultipliesFirstAndTruncatesTowardZero) {
    rational<unsigned long> const ntsc(30000, 1001), thirty(30);
    // Dividing first would give 1001 here.
    EXPECT_EQ(Range<long long>(0, 1002), Source::convertEditRate(Range<long long>(0, 1001), ntsc, thirty));
    EXPECT_EQ(Range<long long>(0, 3), Source::convertEditRate(Range<long long>(-7, 1001), 1000, 3));
    EXPECT_EQ(Range<long long>(-6, 0), Source::convertEditRate(Range<long long>(-2002, 1), 1000, 3));
    expectText<ZelmarMediaLibException>([&] { Source::convertEditRate(Range<long long>(0, 10), 0, thirty); },
                                        "attempting to convert a range from an edit rate of zero");
}

TEST_F(SourceTest, RateConversionIsExactWhereTheProductExceedsSixtyFourBits) {
    // Fault pinned: a long duration times 30000 overflowed, and the source got a wrong range or none.
    long long const distant = 400000000000000000LL;
    Rect<int> const rect(0, 0, 64, 48);
    rational<unsigned long> const ntsc(30000, 1001);
    EXPECT_EQ(Range<long long>(-11988011988011988LL, 11988011988011988LL),
              Source::convertEditRate(Range<long long>(-distant, distant), 1000, ntsc));
    EXPECT_EQ(Range<long long>(0, 12000000000000000LL),
              make(test::stats("/long.mkv", rect, {test::videoTrack(Range<long long>(0, distant), 1000)}))->timeRange());
    // Past 2^62 units the file is refused rather than given a range that wraps.
    std::string const tooLong = "attempting to convert a range too long for the project's edit rate";
    expectText<ZelmarMediaLibException>(
        [&] { make(test::stats("/endless.mkv", rect, {test::videoTrack(Range<long long>(0, LLONG_MAX), 1)})); },
        tooLong);
    expectText<ZelmarMediaLibException>(
        [&] { Source::convertEditRate(Range<long long>(LLONG_MAX / 60, LLONG_MAX / 60), 1, 30); }, tooLong);
}

TEST_F(SourceTest, StillIsOneUnitLongWhateverItsTrackSays) {
    // One unit at 1000 a second is no whole unit at 30 a second.
    shared_ptr<Source> source =
        make(test::stats("/media/still.png", Rect<int>(0, 0, 40, 30), {test::imageTrack(1000)}));
    EXPECT_EQ(Range<long long>(0, 1), source->timeRange());
    EXPECT_FALSE(source->timeline()->audioMixer());
    std::vector<shared_ptr<Media const> > const medias = walk<Media const>(*source);
    ASSERT_EQ(1u, medias.size());
    shared_ptr<IMFile const> still = dynamic_pointer_cast<IMFile const>(medias.front());
    ASSERT_TRUE(still);
    EXPECT_EQ(Range<long long>(0, 1), still->trackRange());
    EXPECT_EQ(40.0f, still->width());
    EXPECT_EQ(source->mediaEnd<AudioMedia const>(), source->mediaBegin<AudioMedia const>())
        << "without an audio mixer the audio walk is empty";
}

TEST_F(SourceTest, WalkOverAllMediasHasTheAudioFirst) {
    shared_ptr<Source> source = make(test::stats(
        "/media/two.mov", Rect<int>(0, 0, 640, 480),
        {test::videoTrack(Range<long long>(0, 6000), 600), test::audioTrack(Range<long long>(0, 441000), 44100, 2),
         test::audioTrack(Range<long long>(0, 441000), 44100, 1)}));
    std::vector<shared_ptr<Media const> > const all = walk<Media const>(*source);
    ASSERT_EQ(3u, all.size());
    EXPECT_EQ(1u, dynamic_pointer_cast<AMFile const>(all[0])->trackNumber());
    EXPECT_EQ(2u, dynamic_pointer_cast<AMFile const>(all[1])->trackNumber());
    EXPECT_TRUE(dynamic_pointer_cast<VMFile const>(all[2]));
    EXPECT_EQ(1u, walk<VisualMedia const>(*source).size());
    EXPECT_EQ(2u, walk<AudioMedia const>(*source).size());
    Source::Iterator<AudioMedia const> second = source->mediaBegin<AudioMedia const>();
    ++second;
    EXPECT_EQ(all[1], *second);
    // A star around the first media, made a clique by the link model.
    EXPECT_TRUE(all[0]->isLinkedWith(all[1]));
    EXPECT_TRUE(all[2]->isLinkedWith(all[0]));
    EXPECT_TRUE(all[2]->isLinkedWith(all[1]));

    Source::Iterator<Media const> past = source->mediaEnd<Media const>();
    EXPECT_EQ(3, past.trackIndex());
    try {
        *past;
        FAIL();
    } catch (IndexException const& error) {
        EXPECT_EQ(3, error.index());
    }
    Source::Iterator<VisualMedia const> before = source->mediaBegin<VisualMedia const>();
    --before;
    EXPECT_THROW(before.currentVisualMedia(), IndexException);
    EXPECT_THROW(second.currentVisualMedia(), IndexException) << "the visual walk has one track only";
}

TEST_F(SourceTest, StatisticsWithoutACommonSpanMakeNoSource) {
    std::string const zero = "source has timerange of zero";
    std::pair<std::vector<MediaFileStats::TrackStats>, std::string> const cases[] = {
        {{test::videoTrack(Range<long long>(0, 0), 600)}, zero},
        {{test::videoTrack(Range<long long>(0, 600), 600), test::audioTrack(Range<long long>(44100, 44100), 44100, 1)},
         zero},
        {{}, zero},
        {{test::videoTrack(Range<long long>(0, 10), 600)}, zero},  // half a unit at 30 a second
        {{test::videoTrack(Range<long long>(0, 600), 0)}, "attempting to convert a range from an edit rate of zero"},
    };
    for (auto const& [tracks, text] : cases) {
        shared_ptr<MediaFileStats> stats = test::stats("/x.mov", Rect<int>(0, 0, 64, 48), {});
        for (MediaFileStats::TrackStats const& track : tracks)
            stats->addTrackStats(track);
        expectText<ZelmarMediaLibException>([&] { make(stats); }, text);
    }
    expectText<ZelmarMediaLibException>([&] { make(shared_ptr<MediaFileStats>()); },
                                        "attempting to make a source without file statistics");
}

TEST_F(SourceTest, UnreadableFilesMakeNoSource) {
    fs::create_directories(dir);
    std::ofstream(dir / "noise.mov") << std::string(2048, '\x5a');
    std::string const noLoader = "IOException: No appropriate stats loader for file: ";
    expectText<IOException>([&] { load((dir / "missing.mov").string()); },
                            noLoader + (dir / "missing.mov").string() + " (no such file)");
    expectText<IOException>([&] { load((dir / "noise.mov").string()); }, noLoader + (dir / "noise.mov").string());
    expectText<IOException>([&] { load(dir.string()); }, noLoader + dir.string() + " (a folder without a movie)");
}

TEST_F(SourceTest, RealFilesGiveMediasNamingTheMovieAndItsContainer) {
    std::string const movie = media + "/video-audio.mp4", folder = media + "/recording";
    shared_ptr<Source> source = load(movie);
    EXPECT_EQ(Range<long long>(0, 30), source->timeRange());
    std::vector<shared_ptr<Media const> > const all = walk<Media const>(*source);
    ASSERT_EQ(2u, all.size());
    shared_ptr<AMFile const> audio = dynamic_pointer_cast<AMFile const>(all[0]);
    shared_ptr<VMFile const> video = dynamic_pointer_cast<VMFile const>(all[1]);
    ASSERT_TRUE(audio && video);
    EXPECT_EQ(AMFile::ChannelSet({0, 1}), audio->channels()) << "a stereo audio media";
    EXPECT_EQ(64.0f, video->width());
    EXPECT_EQ(48.0f, video->height());
    EXPECT_EQ(movie, video->fileName());
    EXPECT_EQ(movie, audio->containerFileName());

    shared_ptr<Source> recording = load(folder);
    video = dynamic_pointer_cast<VMFile const>(*recording->mediaBegin<VisualMedia const>());
    ASSERT_TRUE(video);
    EXPECT_EQ(folder + "/capture.mov", video->fileName());
    EXPECT_EQ(folder, video->containerFileName());
    EXPECT_EQ(64.0f, recording->trackRect(0).width);
    EXPECT_THROW(recording->trackRect(2), IndexException);
}

TEST_F(SourceTest, XmlListsTheFileTracksAndNotThePrivateTimeline) {
    shared_ptr<Source> source = make(test::talkStats());
    std::string const expected =
        "<Source id=\"" + id(*source) +
        "\" src=\"/media/talk.mov\" lastMod=\"not-a-date-time\" rect=\"(0,0,640,480)\" >\n"
        "  <SourceTrack range=\"(0,6000)\" type=\"0\" editRate=\"600/1\" trackRect=\"(0,0,640,480)\" "
        "sampleRate=\"0/1\" bitDepth=\"0\" numChannels=\"0\" />\n"
        "  <SourceTrack range=\"(0,441000)\" type=\"2\" editRate=\"44100/1\" trackRect=\"(0,0,0,0)\" "
        "sampleRate=\"44100/1\" bitDepth=\"16\" numChannels=\"2\" />\n"
        "</Source>\n";
    EXPECT_EQ(expected, xml(*source));
    EXPECT_TRUE(test::isWellFormedXml(expected));
}

TEST_F(SourceTest, SourcePathIsRelativeOnlyWhenTheBaseOccursInItAndIsEscaped) {
    shared_ptr<Source> source = make(test::talkStats("/media/Tom & \"Jerry\".mov"));
    EXPECT_NE(std::string::npos, xml(*source, "/media").find(" src=\"./Tom &amp; &quot;Jerry&quot;.mov\" "));
    EXPECT_NE(std::string::npos, xml(*source, "/elsewhere").find(" src=\"/media/Tom &amp; &quot;Jerry&quot;.mov\" "));
    shared_ptr<Source> relative = make(test::talkStats("media/talk.mov"));
    EXPECT_NE(std::string::npos, xml(*relative, "media").find(" src=\"\" "))
        << "a relative name under the base comes out empty";
    EXPECT_NE(std::string::npos, xml(*relative).find(" src=\"media/talk.mov\" "));
}

TEST_F(SourceTest, LastModificationIsLookedUpOnTheDiskAtEachWriting) {
    std::string const path = copyOf("video-only.mkv", "clip.mkv");
    fs::last_write_time(path, 1700000000);
    shared_ptr<Source> source = load(path);
    EXPECT_NE(std::string::npos, xml(*source).find(" lastMod=\"20231114T221320\" "));
    fs::remove(path);
    EXPECT_NE(std::string::npos, xml(*source).find(" lastMod=\"not-a-date-time\" "))
        << "a vanished file leaves the source as it was but for this";
    EXPECT_EQ(path, source->mediaFileStats()->filename());
}

TEST_F(SourceTest, ChangeFileMovesABundleAndItsTrackFilesAndNotifiesOnce) {
    std::string const before = copyOf("recording", "before"), after = copyOf("recording", "after");
    shared_ptr<Source> source = load(before);
    test::CountingObserver observer;
    source->attach(&observer);
    source->changeFile(after);
    EXPECT_EQ(1, observer.calls);
    shared_ptr<MediaFileStats const> stats = source->mediaFileStats();
    EXPECT_EQ(after, stats->filename());
    EXPECT_EQ(after + "/capture.mov", stats->filename(0));
    EXPECT_EQ(after + "/capture.mov", stats->filename(1));
    EXPECT_EQ(before + "/dirtyrect.dat", stats->metaData(0).front()) << "the statistics keep the side files found";
    shared_ptr<VMFile const> video = dynamic_pointer_cast<VMFile const>(*source->mediaBegin<VisualMedia const>());
    shared_ptr<ScreenMetaData const> metaData = video->screenMetaData()->value();
    EXPECT_EQ(after + "/dirtyrect.dat", metaData->dirtyRectsFilename()) << "the screen meta data follows the move";
    EXPECT_EQ(after + "/cursorlocation.dat", metaData->cursorLocationFilename());
    EXPECT_EQ("", metaData->cursorActionFilename()) << "the recording has no cursor actions";
    EXPECT_EQ(after + "/capture.mov", video->fileName()) << "medias ask the statistics each time";
    EXPECT_EQ(after, video->containerFileName());
    source->detach(&observer);
}

TEST_F(SourceTest, ChangeFileKeepsTheFiguresAndComparesTheFirstTrackOnly) {
    // The second track differs from the new file's in every figure.
    shared_ptr<Source> source =
        make(test::stats("/old/clip.mp4", Rect<int>(0, 0, 10, 10),
                         {test::videoTrack(Range<long long>(0, 10240), 10240, 10, 10),
                          test::audioTrack(Range<long long>(0, 90000), 9000, 6, 8)}));
    std::string const path = media + "/extra-streams.mp4";
    source->changeFile(path);
    EXPECT_EQ(path, source->mediaFileStats()->filename());
    EXPECT_EQ("", source->mediaFileStats()->filename(0)) << "an empty track file name stays empty";
    EXPECT_EQ(10, source->mediaFileStats()->rect().width);
    EXPECT_EQ(6u, source->mediaFileStats()->numChannels(1));
    EXPECT_EQ(Range<long long>(0, 90000), source->mediaFileStats()->trackRange(1));
}

TEST_F(SourceTest, IncompatibleOrUnreadableNewFileLeavesTheSourceAsItWas) {
    Rect<int> const rect(0, 0, 64, 48);
    std::vector<shared_ptr<Source> > const sources = {
        // One video track of 999 units at 1000 a second against the file's 1000.
        make(test::stats("/old/short.mkv", rect, {test::videoTrack(Range<long long>(0, 999), 1000)})),
        make(test::stats("/old/sound.wav", Rect<int>(), {test::audioTrack(Range<long long>(0, 1000), 1000, 1)})),
        make(test::talkStats("/old/talk.mov")),
        // Fault pinned: duration times rate overflowed 64 bits and, wrapped, equalled the file's
        // 1000 * 1000, so a file of another length was taken as compatible.
        make(test::stats("/old/huge.mkv", rect,
                         {test::videoTrack(Range<long long>(0, 9010191179345071424LL), 1000000005)}))};
    test::CountingObserver observer;
    sources[0]->attach(&observer);
    for (shared_ptr<Source> const& source : sources) {
        std::string const before = xml(*source);
        expectText<ZelmarMediaLibException>([&] { source->changeFile(media + "/video-only.mkv"); },
                                            "attempting to replace source's file with an incompatable file");
        EXPECT_EQ(before, xml(*source));
    }
    std::string const before = xml(*sources[0]);
    expectText<IOException>(
        [&] { sources[0]->changeFile(media + "/missing.mkv"); },
        "IOException: No appropriate stats loader for file: " + media + "/missing.mkv (no such file)");
    EXPECT_EQ(before, xml(*sources[0]));
    EXPECT_EQ(0, observer.calls);
    sources[0]->detach(&observer);
}

TEST_F(SourceTest, ReplacePathChangesTheFirstOccurrenceAndLeavesEmptyPathsAlone) {
    std::string path = "/a/x/a/x";
    Source::replacePath("/a", "/b", &path);
    EXPECT_EQ("/b/x/a/x", path);
    std::string empty;
    Source::replacePath("", "/b", &empty);
    EXPECT_EQ("", empty);
}

// Regression: the medias of a source's own timeline held their source, which holds them, so no
// source was ever freed.
TEST_F(SourceTest, OwnMediasDoNotKeepTheSourceAliveButClonesDo) {
    shared_ptr<Source> source = make(test::talkStats());
    weak_ptr<Source> watch = source;
    shared_ptr<Media> clone = sharedClone(shared_ptr<Media const>(*source->mediaBegin<AudioMedia const>()));
    source.reset();
    ASSERT_FALSE(watch.expired()) << "a clone on a project's timeline keeps its source";
    EXPECT_EQ(watch.lock(), dynamic_pointer_cast<AMFile>(clone)->source());
    EXPECT_EQ("/media/talk.mov", dynamic_pointer_cast<AMFile>(clone)->fileName());
    clone.reset();
    EXPECT_TRUE(watch.expired());
}

TEST_F(SourceTest, CopyIsABlankSourceOnTheSameProject) {
    shared_ptr<Source> source = make(test::talkStats());
    Source copy(*source);
    EXPECT_NE(source->xmlIdent(), copy.xmlIdent());
    EXPECT_TRUE(copy.isOnline());
    EXPECT_EQ(0u, copy.mediaFileStats()->numTracks());
    EXPECT_EQ(0, copy.timeline()->numTracks());
    EXPECT_EQ(&project->mutex(), &copy.mutex());
}

}  // namespace
}  // namespace ZelmarMediaLib
