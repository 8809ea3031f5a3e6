// The project's inner face: each primitive edit that commands call, run through a small
// command of the test's own so that it goes the whole way from execute to undo and redo.
#include <ZelmarMediaLib/clipbin/Source.h>
#include <ZelmarMediaLib/clipbin/SourceBin.h>
#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/exceptions/KeyFrameException.h>
#include <ZelmarMediaLib/exceptions/TypeException.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/project/detail/InternalProject.h>
#include <ZelmarMediaLib/timeline/AMFile.h>
#include <ZelmarMediaLib/timeline/AudioMixer.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>
#include <ZelmarMediaLib/timeline/Timeline.h>
#include <ZelmarMediaLib/timeline/VisualMixer.h>
#include <ZelmarMediaLib/timeline/VisualTrack.h>

#include "support/CommandInvariants.h"
#include "support/HandBuiltStats.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <vector>

namespace ZelmarMediaLib {
namespace {

using test::expectCommandInvariants;
using test::expectRefusedCommandLeavesProject;
using test::RedoIds;

// Runs one handler operation, and another as its undo.
class HandlerCmd : public Command {
public:
    typedef std::function<void(CommandHandler&)> Step;

    static shared_ptr<HandlerCmd> create(Step forward, Step back = Step()) {
        return shared_ptr<HandlerCmd>(new HandlerCmd(forward, back));
    }

    HandlerCmd* clone() const override { return new HandlerCmd(*this); }
    bool execute(CommandHandler* handler) override {
        forward_(*handler);
        return true;
    }
    bool unexecute(CommandHandler* handler) override {
        back_(*handler);
        return true;
    }
    void xmlName(XMLable::Options& options) const override { *options.stream << "HandlerCmd"; }
    void xmlAttributes(XMLable::Options&) const override {}
    void xmlBody(XMLable::Options&, int) const override {}

private:
    HandlerCmd(Step forward, Step back) : forward_(forward), back_(back) {}
    HandlerCmd(HandlerCmd const&) = default;

    Step forward_;
    Step back_;
};

typedef CommandHandler::RemovedMediaList RemovedMediaList;

class EditOperationsTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<Source> source = inBin(test::talkStats());
    shared_ptr<AudioMixer> mixer = project->timeline()->newAudioMixer(44100, 16, 2);
    shared_ptr<AudioTrack> first = newTrack(0), second = newTrack(1), third = newTrack(2);

    shared_ptr<Source> inBin(shared_ptr<MediaFileStats> stats) {
        shared_ptr<Source> made = Source::create(project, project, stats);
        project->sourceBin()->addSource(made);
        return made;
    }
    shared_ptr<AudioTrack> newTrack(int index) {
        return project->timeline()->newTrack<AudioTrack>(mixer, index);
    }
    // Channel 0 of the source's audio track, not placed.
    shared_ptr<AMFile> audio(long long start, long long duration, shared_ptr<Source const> from = nullptr) {
        return boost::make_shared<AMFile>(Range<long long>(start, duration), project, from ? from : source, 1u, 0u);
    }
    shared_ptr<AMFile> place(shared_ptr<Track> const& track, long long start, long long duration) {
        shared_ptr<AMFile> media = audio(start, duration);
        track->addMedia(media, start);
        return media;
    }
    // Three medias on the three tracks, linked as one group.
    std::vector<shared_ptr<AMFile> > linkedGroup() {
        std::vector<shared_ptr<AMFile> > group = {place(first, 0, 100), place(second, 0, 100), place(third, 0, 100)};
        group[0]->link(group[1]);
        group[0]->link(group[2]);
        return group;
    }
    // What a removal with links gives back is put back pair by pair, each where it still says it was.
    static void putBack(CommandHandler& handler, RemovedMediaList const& removed) {
        for (RemovedMediaList::value_type const& entry : removed)
            handler.addMedia(entry.second, entry.first, entry.first->trackRange().start);
    }
};

TEST_F(EditOperationsTest, MixersAndTracksComeAndGoThroughTheHandler) {
    shared_ptr<VisualMixer> visual;
    expectCommandInvariants(*project, HandlerCmd::create([&](CommandHandler& h) { visual = h.newVisualMixer(640, 480); },
                                                         [](CommandHandler& h) { h.removeVisualMixer(); }),
                            RedoIds::fresh);
    EXPECT_EQ(visual, dynamic_pointer_cast<InternalProject>(project)->visualMixer());

    shared_ptr<Track> made;
    expectCommandInvariants(*project, HandlerCmd::create([&](CommandHandler& h) { made = h.newTrack(h.visualMixer(), 0); },
                                                         [&](CommandHandler& h) { h.removeTrack(h.visualMixer(), made); }),
                            RedoIds::fresh);
    EXPECT_TRUE(dynamic_pointer_cast<VisualTrack>(made)) << "the visual mixer's handle makes a visual track";
    // The visual mixer takes only visual tracks, so a new image track is refused by it: the
    // oddity stays.
    expectRefusedCommandLeavesProject<TypeException>(
        *project, HandlerCmd::create([&](CommandHandler& h) { h.newImageTrack(1); }), "VisualTrack");
    expectCommandInvariants(*project, HandlerCmd::create([&](CommandHandler& h) { made = h.newTrack(mixer, 3); },
                                                         [&](CommandHandler& h) { h.removeTrack(mixer, made); }),
                            RedoIds::fresh);
    EXPECT_TRUE(dynamic_pointer_cast<AudioTrack>(made));

    // A removed track goes back as the same object, under the index that removal reported.
    std::pair<shared_ptr<Track>, int> removed;
    expectCommandInvariants(*project, HandlerCmd::create(
                                          [&](CommandHandler& h) { removed = h.removeTrack(mixer, second); },
                                          [&](CommandHandler& h) { h.addTrack(mixer, removed.first, removed.second); }));
    EXPECT_EQ(std::make_pair(shared_ptr<Track>(second), 1), removed);
    project->undo();
    expectCommandInvariants(*project, HandlerCmd::create([&](CommandHandler& h) { h.swapTrackOrder(mixer, first, third); },
                                                         [&](CommandHandler& h) { h.swapTrackOrder(mixer, first, third); }));
    EXPECT_EQ(third, mixer->trackList().front());
}

TEST_F(EditOperationsTest, NewTrackRefusesAMixerThatIsNotTheProjects) {
    shared_ptr<Project> other = Project::create(30, 1);
    shared_ptr<AudioMixer> foreign = other->timeline()->newAudioMixer(44100, 16, 2);
    for (shared_ptr<Mixer const> const& wrong : {shared_ptr<Mixer const>(foreign), shared_ptr<Mixer const>()})
        expectRefusedCommandLeavesProject<ZelmarMediaLibException>(
            *project, HandlerCmd::create([&](CommandHandler& h) { h.newTrack(wrong, 0); }),
            "mixer doesn't belong to project");
}

TEST_F(EditOperationsTest, RemovalWithLinksTakesEachMediaOffItsOwnTrackAndTheNamedOneLast) {
    std::vector<shared_ptr<AMFile> > const group = linkedGroup();
    shared_ptr<RemovedMediaList> removed;
    // The track named is not the media's own: it is only checked for null.
    expectCommandInvariants(*project, HandlerCmd::create([&](CommandHandler& h) { removed = h.removeMedia(third, group[0]); },
                                                         [&](CommandHandler& h) { putBack(h, *removed); }));
    RemovedMediaList const expected = {{group[1], second}, {group[2], third}, {group[0], first}};
    EXPECT_EQ(expected, *removed);
    for (shared_ptr<AudioTrack> const& track : {first, second, third})
        EXPECT_TRUE(track->medias().empty());
    project->undo();
    EXPECT_TRUE(group[1]->isLinkedWith(group[0]) && group[1]->isLinkedWith(group[2])) << "links stand after the undo";
}

TEST_F(EditOperationsTest, RemovalRefusesBeforeAnythingComesOff) {
    std::vector<shared_ptr<AMFile> > const group = linkedGroup();
    shared_ptr<Media const> const named = group[0];
    expectRefusedCommandLeavesProject<ZelmarMediaLibException>(
        *project, HandlerCmd::create([&](CommandHandler& h) { h.removeMedia(shared_ptr<Track const>(), named); }),
        "attempting to remove a media with a null track");
    // The last linked media is off its track: the first two must not come off either.
    third->removeMedia(group[2], false);
    expectRefusedCommandLeavesProject<ZelmarMediaLibException>(
        *project, HandlerCmd::create([&](CommandHandler& h) { h.removeMedia(first, named); }),
        "attempting to remove with null parent");
    expectRefusedCommandLeavesProject<ZelmarMediaLibException>(
        *project, HandlerCmd::create([&](CommandHandler& h) { h.removeMedia(first, audio(0, 10)); }),
        "attempting to remove with null parent");
}

TEST_F(EditOperationsTest, UndoOfAnAddLeavesTheMediaOffTheTrackWithItsFormerStart) {
    shared_ptr<AMFile> const media = audio(50, 100);
    expectCommandInvariants(*project, HandlerCmd::create([&](CommandHandler& h) { h.addMedia(second, media, 120); },
                                                         [&](CommandHandler& h) { h.removeMedia(first, media, 50); }));
    EXPECT_EQ(Range<long long>(120, 100), media->trackRange());
    project->undo();
    EXPECT_EQ(Range<long long>(50, 100), media->trackRange());
    EXPECT_TRUE(media->parentTrack().expired());
}

TEST_F(EditOperationsTest, AddRefusesAFileMediaWhoseSourceIsNotInTheBin) {
    shared_ptr<Source> const outside = Source::create(project, project, test::talkStats("/media/other.mov"));
    expectRefusedCommandLeavesProject<ZelmarMediaLibException>(
        *project, HandlerCmd::create([&](CommandHandler& h) { h.addMedia(first, audio(0, 10, outside), 0); }),
        "attempting to add a media whose source doesn't belong to the project");
}

TEST_F(EditOperationsTest, LinksChangeOnOneSideOnly) {
    shared_ptr<AMFile> const a = place(first, 0, 100), b = place(second, 0, 100);
    expectCommandInvariants(*project, HandlerCmd::create([&](CommandHandler& h) { h.addLink(a, b); },
                                                         [&](CommandHandler& h) { h.removeLink(a, b); }));
    EXPECT_TRUE(a->isLinkedWith(b));
    EXPECT_FALSE(b->isLinkedWith(a)) << "the other side is the caller's business";
}

TEST_F(EditOperationsTest, TrackEditsCarryTheLinkedMedias) {
    std::vector<shared_ptr<AMFile> > const group = linkedGroup();
    expectCommandInvariants(*project, HandlerCmd::create([&](CommandHandler& h) { h.move(first, group[0], 30); },
                                                         [&](CommandHandler& h) { h.move(first, group[0], -30); }));
    EXPECT_EQ(Range<long long>(30, 100), group[2]->trackRange());
    expectCommandInvariants(*project, HandlerCmd::create([&](CommandHandler& h) { h.trimEnd(first, group[0], -40); },
                                                         [&](CommandHandler& h) { h.trimEnd(first, group[0], 40); }));
    expectCommandInvariants(*project, HandlerCmd::create([&](CommandHandler& h) { h.trimStart(first, group[0], 10); },
                                                         [&](CommandHandler& h) { h.trimStart(first, group[0], -10); }));
    // A negative trim of the end lengthens, a positive trim of the start shortens.
    EXPECT_EQ(Range<long long>(40, 130), group[1]->trackRange());
    double reached = 0;
    expectCommandInvariants(*project, HandlerCmd::create([&](CommandHandler& h) { reached = h.stretch(first, group[0], 2.0); },
                                                         [&](CommandHandler& h) { h.stretch(first, group[0], 1.0); }));
    EXPECT_EQ(group[0]->scalar(), reached);
    EXPECT_EQ(reached, group[2]->scalar());
}

// Truncation toward zero, not flooring: an owner time of -3 at scalar 2 is parameter time -1.
TEST_F(EditOperationsTest, KeyFrameMoveConvertsTheOwnersTimesAndTruncatesTowardZero) {
    shared_ptr<AMFile> const media = place(first, 0, 100);
    media->stretch(2.0);
    shared_ptr<InterpolatingParam<double> > const volume = media->volume();
    volume->addKeyFrame(-1, 0.5);
    expectCommandInvariants(*project, HandlerCmd::create(
                                          [&](CommandHandler& h) { h.moveParameterKeyFrame(media, volume, -3, 7); },
                                          [&](CommandHandler& h) { h.moveParameterKeyFrame(media, volume, 7, -3); }));
    EXPECT_EQ(std::vector<long long>({0, 3}), *volume->keyframeTimes());
    try {
        project->execute(HandlerCmd::create([&](CommandHandler& h) { h.moveParameterKeyFrame(media, volume, 2, 9); }));
        FAIL() << "no key frame at parameter time 1";
    } catch (KeyFrameException const& error) {
        EXPECT_EQ(1, error.time());
    }
}

TEST_F(EditOperationsTest, SourceLeavesTheBinOnlyWithoutInstancesOnTheTimeline) {
    shared_ptr<Source> const extra = Source::create(project, project, test::talkStats("/media/extra.mov"));
    expectCommandInvariants(*project, HandlerCmd::create([&](CommandHandler& h) { h.loadSource(extra); },
                                                         [&](CommandHandler& h) { h.unloadSource(extra); }));
    place(first, 0, 10);
    expectRefusedCommandLeavesProject<ValueException<shared_ptr<Source const> > >(
        *project, HandlerCmd::create([&](CommandHandler& h) { h.unloadSource(source); }),
        "unable to remove a source that still has instances on the timeline.");
    EXPECT_TRUE(project->sourceBin()->containsSource(source));
}

TEST_F(EditOperationsTest, CloneCopiesTimelineAndHistoryButNothingElse) {
    auto const internal = dynamic_pointer_cast<InternalProject>(project);
    internal->setAuthor("Ann");
    shared_ptr<AMFile> const media = audio(0, 10);
    project->execute(HandlerCmd::create([&](CommandHandler& h) { h.addMedia(first, media, 0); },
                                        [&](CommandHandler& h) { h.removeMedia(first, media, 0); }));
    std::unique_ptr<InternalProject> const copy(internal->clone());

    EXPECT_FALSE(copy->sourceBin());
    EXPECT_FALSE(copy->clipBoard());
    EXPECT_THROW(copy->mutex(), ZelmarMediaLibException);
    EXPECT_EQ("", copy->author()) << "the text fields start afresh";
    EXPECT_NE(project->timeline(), copy->timeline());
    EXPECT_EQ(1, copy->timeline()->audioMixer()->trackList().front()->numMedias());
    // The copy's history is a history of clones that runs against the copy.
    shared_ptr<CommandHistory> const history = copy->commandHistory();
    EXPECT_EQ(copy.get(), dynamic_cast<InternalProject*>(history->commandHandler()));
    ASSERT_EQ(1u, history->undoStack().size());
    EXPECT_NE(project->commandHistory()->undoStack().back(), history->undoStack().back());
    EXPECT_EQ(std::string::npos, test::projectXml(*copy).find("<SourceBin"));
}

}  // namespace
}  // namespace ZelmarMediaLib
