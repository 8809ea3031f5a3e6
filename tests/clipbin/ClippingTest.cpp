// Clippings and the clipboard: the refusal of an empty piece, the shift to time 0, track
// positions across both mixers, links and sources of the clones, the texts and the XML.
#include <ZelmarMediaLib/clipbin/ClipBoard.h>
#include <ZelmarMediaLib/clipbin/Clipping.h>
#include <ZelmarMediaLib/clipbin/Source.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/AMFile.h>
#include <ZelmarMediaLib/timeline/AudioMedia.h>
#include <ZelmarMediaLib/timeline/AudioMixer.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>
#include <ZelmarMediaLib/timeline/Timeline.h>
#include <ZelmarMediaLib/timeline/VMFile.h>
#include <ZelmarMediaLib/timeline/VisualMixer.h>
#include <ZelmarMediaLib/timeline/VisualTrack.h>

#include "support/HandBuiltStats.h"
#include "support/ExpectText.h"
#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace ZelmarMediaLib {
namespace {

std::string const noMedias = "trying to make a clipping with no medias";
unsigned int const missing = 0xFFFFFFFFu;

using test::xml;

// Refused with the library's own exception and exactly this text.
template <class Action>
void expectRefusal(Action const& action, std::string const& text) {
    test::expectText<ZelmarMediaLibException>(action, text);
}

std::vector<long long> starts(shared_ptr<Track const> const& track) {
    std::vector<long long> result;
    for (ConstIterator<Track::MediaMap> at = track->mediaBegin(), end = track->mediaEnd(); at != end; ++at)
        result.push_back(at->second->trackRange().start);
    return result;
}

// Four picture tracks and two sound tracks, empty.
class ClippingTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<Timeline> timeline = boost::make_shared<Timeline>(project);
    shared_ptr<VisualMixer> visual = timeline->newVisualMixer(640, 480);
    shared_ptr<AudioMixer> sound = timeline->newAudioMixer(44100, 16, 2);
    std::vector<shared_ptr<VisualTrack> > pictures{newTrack<VisualTrack>(visual), newTrack<VisualTrack>(visual),
                                                   newTrack<VisualTrack>(visual), newTrack<VisualTrack>(visual)};
    std::vector<shared_ptr<AudioTrack> > voices{newTrack<AudioTrack>(sound), newTrack<AudioTrack>(sound)};

    template <class T>
    shared_ptr<T> newTrack(shared_ptr<Mixer> const& mixer) {
        return timeline->newTrack<T>(mixer, -1);
    }

    shared_ptr<Media> video(shared_ptr<Track> const& track, long long start, long long duration) {
        shared_ptr<Media> media = boost::make_shared<VMFile>(Range<long long>(0, duration), Rect<float>(0, 0, 640, 480),
                                                             project, "/v.mov", 0.0, 1000.0, 0u);
        track->addMedia(media, start);
        return media;
    }

    shared_ptr<Media> audio(shared_ptr<Track> const& track, long long start, long long duration) {
        shared_ptr<Media> media = boost::make_shared<AMFile>(Range<long long>(0, duration), 48000u, 16u, project,
                                                             "/a.wav", 0.0, 1000.0, 0u, 0u);
        track->addMedia(media, start);
        return media;
    }
};

TEST_F(ClippingTest, RangeOverEmptySpaceIsRefusedAndLeavesTheTimelineAlone) {
    video(pictures[0], 0, 10);
    video(pictures[0], 50, 10);
    std::string const before = xml(*timeline);
    expectRefusal([&] { Clipping(timeline, Range<long long>(10, 40), Clipping::TrackSet{pictures[0]}, "gap"); },
                  noMedias);
    expectRefusal([&] { Clipping(timeline, std::vector<shared_ptr<Media const> >(), "none"); }, noMedias);
    EXPECT_EQ(before, xml(*timeline));
}

TEST_F(ClippingTest, SelectionStartsAtZeroWithItsGapsKept) {
    shared_ptr<Media> const first = video(pictures[1], 100, 100);
    shared_ptr<Media> const second = video(pictures[2], 150, 10);
    // Moved before the first, this one would land on the first's old place and collide.
    shared_ptr<Media> const last = video(pictures[1], 250, 10);
    Clipping const clipping(timeline, {last, second, first}, "intro");

    shared_ptr<VisualMixer const> const copy = clipping.timeline()->visualMixer();
    ASSERT_TRUE(copy);
    ASSERT_EQ(2, copy->numTracks());
    EXPECT_EQ((std::vector<long long>{0, 150}), starts(copy->trackAtIndex(0)));
    EXPECT_EQ((std::vector<long long>{50}), starts(copy->trackAtIndex(1)));
    EXPECT_FALSE(clipping.timeline()->audioMixer());
    EXPECT_EQ((std::vector<long long>{100, 250}), starts(pictures[1])) << "the originals stay where they were";
    EXPECT_EQ(&project->mutex(), &clipping.name()->mutex());
}

TEST_F(ClippingTest, PositionsCountEachMixerFromZeroUnderOneMinimum) {
    video(pictures[2], 100, 50);
    video(pictures[3], 120, 50);
    audio(voices[1], 90, 50);
    // The first picture track has nothing in the range: its empty copy must not take part.
    Clipping::TrackSet const tracks{pictures[0], pictures[2], pictures[3], voices[1]};
    Clipping const clipping(timeline, Range<long long>(110, 20), tracks, "piece");

    shared_ptr<VisualMixer const> const copiedVisual = clipping.timeline()->visualMixer();
    shared_ptr<AudioMixer const> const copiedSound = clipping.timeline()->audioMixer();
    ASSERT_EQ(3, copiedVisual->numTracks());
    ASSERT_EQ(1, copiedSound->numTracks());
    EXPECT_EQ(missing, clipping.trackPosition(copiedVisual->trackAtIndex(0)));
    EXPECT_EQ(1u, clipping.trackPosition(copiedVisual->trackAtIndex(1)));
    EXPECT_EQ(2u, clipping.trackPosition(copiedVisual->trackAtIndex(2)));
    EXPECT_EQ(0u, clipping.trackPosition(copiedSound->trackAtIndex(0)));
    EXPECT_EQ(3u, clipping.trackPositions().size());
    EXPECT_EQ(missing, clipping.trackPosition(pictures[2])) << "a track of the source timeline is foreign";

    // Trimmed to [110, 130), then shifted by 110.
    EXPECT_EQ((std::vector<long long>{0}), starts(copiedVisual->trackAtIndex(1)));
    EXPECT_EQ((std::vector<long long>{10}), starts(copiedVisual->trackAtIndex(2)));
    EXPECT_EQ(Range<long long>(0, 20), copiedSound->trackAtIndex(0)->mediaBegin()->second->trackRange());
}

TEST_F(ClippingTest, SingleTrackSelectionIsAtPositionZeroWhateverItsIndex) {
    shared_ptr<Media> const media = video(pictures[3], 40, 10);
    Clipping const clipping(timeline, {media}, "one");
    EXPECT_EQ(0u, clipping.trackPosition(clipping.timeline()->visualMixer()->trackAtIndex(0)));
}

TEST_F(ClippingTest, LinkedMediasStayLinkedAmongTheClones) {
    shared_ptr<Media> const shown = video(pictures[0], 100, 50);
    shared_ptr<Media> const heard = audio(voices[0], 100, 50);
    shown->link(heard);
    Clipping const clipping(timeline, Range<long long>(100, 50), Clipping::TrackSet{pictures[0]}, "linked");

    shared_ptr<Track::MediaList> const clones = clipping.timeline()->allMedias();
    ASSERT_EQ(2u, clones->size()) << "the sound comes along through its link";
    shared_ptr<Media const> const picture = clones->front(), voice = clones->back();
    EXPECT_TRUE(picture->isLinkedWith(voice));
    EXPECT_FALSE(picture->isLinkedWith(heard));
    EXPECT_EQ(Range<long long>(0, 50), picture->trackRange());
    EXPECT_EQ(Range<long long>(0, 50), voice->trackRange()) << "linked clones keep equal ranges";
    EXPECT_EQ(0u, clipping.trackPosition(shared_ptr<Track const>(voice->parentTrack())));
}

TEST_F(ClippingTest, KeepsTheSourceOfItsClonesAlive) {
    shared_ptr<Source> source = Source::create(project, project, test::talkStats());
    weak_ptr<Source> const watch = source;
    shared_ptr<Media> original = sharedClone(shared_ptr<Media const>(*source->mediaBegin<AudioMedia const>()));
    voices[0]->addMedia(original, 30);
    shared_ptr<Clipping> clipping = boost::make_shared<Clipping>(
        timeline, std::vector<shared_ptr<Media const> >{original}, "talk");
    voices[0]->removeMedia(original, false);
    original.reset();
    source.reset();
    EXPECT_FALSE(watch.expired());
    clipping.reset();
    EXPECT_TRUE(watch.expired());
}

TEST_F(ClippingTest, DescriptionListsPositionsAndXmlIsTheBareElement) {
    shared_ptr<Media> const upper = video(pictures[1], 0, 10);
    shared_ptr<Media> const lower = video(pictures[0], 0, 10);
    Clipping const clipping(timeline, {upper, lower}, "name not written");

    // Lines come in the map's order, which for boost's shared_ptr is not the order of the
    // addresses that are printed.
    shared_ptr<Track const> const bottom = clipping.timeline()->visualMixer()->trackAtIndex(0);
    shared_ptr<Track const> const top = clipping.timeline()->visualMixer()->trackAtIndex(1);
    std::ostringstream lowLine, highLine;
    lowLine << '\t' << bottom.get() << " - 0\n";
    highLine << '\t' << top.get() << " - 1\n";
    std::string const lines = bottom < top ? lowLine.str() + highLine.str() : highLine.str() + lowLine.str();
    EXPECT_EQ("Clipping\ntrack positions:\n" + lines, clipping.description());

    std::string const id = std::to_string(clipping.xmlIdent());
    EXPECT_EQ("<Clipping id=\"" + id + "\"  >\n</Clipping>\n", xml(clipping));
    EXPECT_TRUE(test::isWellFormedXml(xml(clipping)));
}

TEST_F(ClippingTest, NullInputsAreRefused) {
    shared_ptr<Media> const media = video(pictures[0], 0, 10);
    std::string const before = xml(*timeline);
    expectRefusal([&] { Clipping(shared_ptr<Timeline const>(), std::vector<shared_ptr<Media const> >{media}, "x"); },
                  "trying to make a clipping without a timeline");
    expectRefusal([&] { Clipping("x", shared_ptr<Timeline>(), Clipping::TrackPositionMap(), project); },
                  "trying to make a clipping without a timeline");
    expectRefusal(
        [&] { Clipping(timeline, Range<long long>(0, 10), Clipping::TrackSet{pictures[0], nullptr}, "x"); },
        "trying to make a clipping on a null track");
    expectRefusal([&] { Clipping(timeline, std::vector<shared_ptr<Media const> >{media, nullptr}, "x"); },
                  "trying to make a clipping of a null media");
    EXPECT_EQ(before, xml(*timeline));

    ClipBoard board(project);
    expectRefusal([&] { board.addClipping(shared_ptr<Clipping>()); }, "attempting to add a null clipping");
    EXPECT_EQ(0, board.size());
}

TEST_F(ClippingTest, ClipBoardCountsEveryEntryAndRemovesThemAll) {
    shared_ptr<Media> const media = video(pictures[0], 0, 10);
    shared_ptr<Clipping> const twice =
        boost::make_shared<Clipping>(timeline, std::vector<shared_ptr<Media const> >{media}, "twice");
    shared_ptr<Clipping> const once =
        boost::make_shared<Clipping>(timeline, std::vector<shared_ptr<Media const> >{media}, "once");
    ClipBoard board(project);
    board.addClipping(twice);
    board.addClipping(once);
    board.addClipping(twice);
    EXPECT_EQ(3, board.size());

    std::ostringstream expected;
    expected << "ClipBoard\n\t" << twice.get() << "\n\t" << once.get() << "\n\t" << twice.get() << "\n";
    EXPECT_EQ(expected.str(), board.description());

    board.removeClipping(twice);
    EXPECT_EQ(1, board.size());
    EXPECT_FALSE(board.contains(twice));
    EXPECT_EQ(once, *board.begin());
    board.removeClipping(twice);
    board.removeClipping(once);
    EXPECT_EQ(0, board.size());
    EXPECT_EQ(board.begin(), board.end());
}

}  // namespace
}  // namespace ZelmarMediaLib
