// The project facade: creation, the command path with its lock, observer and delay, combining,
// the model it owns, and the document skeleton.
#include <ZelmarMediaLib/clipbin/ClipBoard.h>
#include <ZelmarMediaLib/clipbin/MediaFileStats.h>
#include <ZelmarMediaLib/clipbin/Source.h>
#include <ZelmarMediaLib/clipbin/SourceBin.h>
#include <ZelmarMediaLib/clipbin/SourceBinSentry.h>
#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/commands/CommandHistory.h>
#include <ZelmarMediaLib/commands/CommandPair.h>
#include <ZelmarMediaLib/commands/NullCmd.h>
#include <ZelmarMediaLib/datatypes/NotifyDelay.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/project/CommandObserver.h>
#include <ZelmarMediaLib/project/detail/InternalProject.h>
#include <ZelmarMediaLib/timeline/Timeline.h>

#include "support/CountingObserver.h"
#include "support/HandBuiltStats.h"
#include "support/RecordingCommand.h"
#include "support/StubCommandHandler.h"
#include "support/XmlCheck.h"
#include "support/ExpectText.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ZelmarMediaLib {
namespace {

using test::Log;
using test::RecordingCommand;
using test::expectText;
std::string const media = ZML_TEST_MEDIA_DIR;

// Records what the project's state was when it was told of a command.
class LockProbe : public CommandObserver {
public:
    explicit LockProbe(ReadWriteMutex& mutex) : mutex_(mutex) {}
    void preCommand() override {
        writerHeld.push_back(mutex_.hasWriter());
        delayOpen.push_back(NotifyDelay::isActive());
    }
    std::vector<bool> writerHeld;
    std::vector<bool> delayOpen;

private:
    ReadWriteMutex& mutex_;
};

class ProjectTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);
    Log log;

    shared_ptr<RecordingCommand> command(std::string const& name) { return RecordingCommand::create(&log, name); }
    std::size_t undoDepth() const { return project->commandHistory()->undoStack().size(); }
};

TEST_F(ProjectTest, CreationNormalisesTheRateAndRefusesAZeroDenominator) {
    EXPECT_EQ(rational<unsigned long>(30, 1), Project::create(60, 2)->editRate());
    EXPECT_EQ(rational<unsigned long>(30000, 1001), Project::create(rational<unsigned long>(30000, 1001))->editRate());
    EXPECT_THROW(Project::create(30, 0), boost::bad_rational);
}

TEST_F(ProjectTest, CommandsRunUnderTheWriteLockThroughTheHandlerAndObserversHearBeforeItIsReleased) {
    test::CountingObserver observer;
    project->commandHistory()->attach(&observer);
    bool lockHeldWhenNotified = false;
    observer.onUpdate = [&] { lockHeldWhenNotified = project->mutex().hasWriter(); };

    shared_ptr<RecordingCommand> probe = command("probe");
    EXPECT_TRUE(project->execute(probe));
    EXPECT_EQ(1, observer.calls);
    EXPECT_TRUE(lockHeldWhenNotified);
    EXPECT_FALSE(project->mutex().hasWriter());
    EXPECT_EQ(dynamic_cast<CommandHandler*>(project.get()), probe->lastHandler);

    test::StubCommandHandler other;
    dynamic_pointer_cast<InternalProject>(project)->setCommandHandler(&other);
    project->execute(probe = command("replaced handler"));
    EXPECT_EQ(&other, probe->lastHandler);
    project->commandHistory()->detach(&observer);
}

TEST_F(ProjectTest, ObserverHearsBeforeTheLockOnExecuteAndInsideItOtherwise) {
    LockProbe probe(project->mutex());
    project->attachCommandObserver(&probe);
    project->execute(command("a"));
    project->undo();
    project->redo();
    CommandHistoryState const state = project->commandState();
    project->restoreCommandState(state);
    project->combineLastCommands();
    EXPECT_EQ(std::vector<bool>({false, true, true, true}), probe.writerHeld);
    EXPECT_EQ(std::vector<bool>({false, false, false, false}), probe.delayOpen);
    project->detachCommandObserver(&probe);
}

TEST_F(ProjectTest, OnlyOneCommandObserverAndOnlyItCanBeDetached) {
    LockProbe probe(project->mutex()), other(project->mutex());
    EXPECT_NO_THROW(project->detachCommandObserver(nullptr)) << "null matches the empty slot";
    project->attachCommandObserver(&probe);
    expectText<ZelmarMediaLibException>([&] { project->attachCommandObserver(&probe); },
                                        "currently only supports one observer.");
    expectText<ZelmarMediaLibException>([&] { project->detachCommandObserver(&other); },
                                        "trying to detach a non observer");
    project->detachCommandObserver(&probe);
    EXPECT_NO_THROW(project->attachCommandObserver(&other));
}

TEST_F(ProjectTest, CombineNextMergesTheNextCommandIntoThePreviousStep) {
    project->combineNextCommand();
    project->execute(command("a"));
    project->execute(command("b"));
    EXPECT_EQ(2u, undoDepth()) << "with too few commands nothing is combined and the flag is cleared";
    project->combineNextCommand();
    project->execute(command("c"));
    ASSERT_EQ(2u, undoDepth());
    EXPECT_TRUE(dynamic_pointer_cast<CommandPair>(project->commandHistory()->undoStack().back()));
    project->execute(command("d"));
    EXPECT_EQ(3u, undoDepth()) << "the flag is spent";
    log.clear();
    project->undo();
    project->undo();
    EXPECT_EQ(Log({"unexecute d", "unexecute c", "unexecute b"}), log);
}

TEST_F(ProjectTest, DecliningCommandStillSpendsTheFlagAndCombinesTheTopTwo) {
    project->execute(command("a"));
    project->execute(command("b"));
    project->combineNextCommand();
    shared_ptr<RecordingCommand> lazy = command("lazy");
    lazy->accepts = false;
    EXPECT_FALSE(project->execute(lazy));
    ASSERT_EQ(1u, undoDepth());
    auto pair = dynamic_pointer_cast<CommandPair>(project->commandHistory()->undoStack().back());
    ASSERT_TRUE(pair);
    EXPECT_EQ("b", dynamic_pointer_cast<RecordingCommand>(pair->second())->name);
    project->execute(command("c"));
    EXPECT_EQ(2u, undoDepth());
}

TEST_F(ProjectTest, FailingCommandKeepsTheFlagAndReleasesLockAndDelay) {
    project->execute(command("a"));
    project->combineNextCommand();
    shared_ptr<RecordingCommand> broken = command("broken");
    broken->executeFailure = RecordingCommand::libraryError;
    EXPECT_THROW(project->execute(broken), ZelmarMediaLibException);
    EXPECT_FALSE(project->mutex().hasWriter());
    EXPECT_FALSE(NotifyDelay::isActive());
    project->execute(command("b"));
    EXPECT_EQ(1u, undoDepth()) << "the flag survived the failure";
}

TEST_F(ProjectTest, UndoOnAnEmptyHistoryOrRestoreOfAForeignStateRaisesAndChangesNothing) {
    EXPECT_THROW(project->undo(), ZelmarMediaLibException);
    EXPECT_FALSE(project->mutex().hasWriter());
    project->execute(command("a"));
    CommandHistoryState foreign;
    foreign.undoTop = NullCmd::create();
    testing::internal::CaptureStderr();
    EXPECT_THROW(project->restoreCommandState(foreign), ValueException<CommandHistoryState>);
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(1u, undoDepth());
}

TEST_F(ProjectTest, CloneHasNoLockAndNoSourceBinToHandOut) {
    project->execute(command("a"));
    auto internal = dynamic_pointer_cast<InternalProject>(project);
    std::unique_ptr<InternalProject> copy(internal->clone());
    EXPECT_NE(project->xmlIdent(), copy->xmlIdent());
    EXPECT_THROW(copy->mutex(), ZelmarMediaLibException);
    EXPECT_THROW(copy->addSourceBinSentry(shared_ptr<SourceBinSentry>()), ZelmarMediaLibException)
        << "a clone has no source bin";
}

TEST_F(ProjectTest, NewProjectWritesTextElementsThenAnEmptySourceBinAndTimeline) {
    std::ostringstream out;
    project->toXML(out);
    std::string const expected = "<Project id=\"" + std::to_string(project->xmlIdent()) +
                                 "\" editRate=\"30/1\" version=\"1.0\" >\n"
                                 " <Author></Author>\n"
                                 " <Comment></Comment>\n"
                                 " <System></System>\n"
                                 " <SourceBin id=\"" + std::to_string(project->sourceBin()->xmlIdent()) + "\"  >\n"
                                 " </SourceBin>\n"
                                 " <Timeline id=\"" + std::to_string(project->timeline()->xmlIdent()) + "\"  >\n"
                                 " </Timeline>\n"
                                 "</Project>\n";
    EXPECT_EQ(expected, out.str());
    EXPECT_TRUE(test::isWellFormedXml(out.str()));
}

TEST_F(ProjectTest, DocumentNestsSourcesAndMixersTwoLevelsBelowTheirContainers) {
    shared_ptr<Source> source = Source::create(project, project, test::talkStats());
    project->sourceBin()->addSource(source);
    project->timeline()->newVisualMixer(640, 480);
    std::ostringstream out;
    project->toXML(out);
    std::string const text = out.str();
    std::string::size_type const bin = text.find("\n <SourceBin id="), timeline = text.find("\n <Timeline id=");
    ASSERT_NE(std::string::npos, bin);
    ASSERT_NE(std::string::npos, timeline);
    EXPECT_LT(bin, timeline) << "the source bin comes first";
    EXPECT_NE(std::string::npos, text.find("\n   <Source id=\"" + std::to_string(source->xmlIdent()) + "\" src="));
    EXPECT_NE(std::string::npos, text.find("\n     <SourceTrack range=\"(0,6000)\" "));
    EXPECT_NE(std::string::npos, text.find("\n   <VisualMixer id="));
    EXPECT_TRUE(test::isWellFormedXml(text));
}

TEST_F(ProjectTest, ModelIsMadeOnceOnTheProjectsLockAndRate) {
    shared_ptr<Project> fast = Project::create(60, 1);
    EXPECT_EQ(fast->timeline(), fast->timeline());
    EXPECT_EQ(&fast->mutex(), &fast->timeline()->mutex());
    EXPECT_EQ(&fast->mutex(), &fast->sourceBin()->mutex());
    EXPECT_EQ(&fast->mutex(), &fast->clipBoard()->mutex());
    shared_ptr<Source> source = fast->sourceBin()->loadFile(media + "/video-audio.mp4");
    EXPECT_EQ(Range<long long>(0, 60), source->timeRange()) << "one second at the project's rate";
    EXPECT_EQ(0, fast->timeline()->numTracks()) << "loading places nothing";
}

TEST_F(ProjectTest, SentriesAndFileChangesReachTheSourceBinWithoutCommands) {
    shared_ptr<Source> source = Source::create(
        project, project,
        test::stats("/old/clip.mkv", Rect<int>(0, 0, 64, 48), {test::videoTrack(Range<long long>(0, 1000), 1000)}));
    project->sourceBin()->addSource(source);
    project->changeSourcesFile(source, media + "/video-only.mkv");
    EXPECT_EQ(media + "/video-only.mkv", source->mediaFileStats()->filename());
    expectText<ZelmarMediaLibException>(
        [&] { project->changeSourcesFile(shared_ptr<Source const>(), media + "/video-only.mkv"); },
        "attempting to change the file of a null source");

    class Refuser : public SourceBinSentry {
    public:
        std::string description() const override { return "refuser"; }
        bool acceptsFile(MediaFileStats const&) override { return false; }
    };
    project->addSourceBinSentry(boost::make_shared<Refuser>());
    std::string const still = media + "/still.png";
    testing::internal::CaptureStdout();
    EXPECT_THROW(project->sourceBin()->loadFile(still), ZelmarMediaLibException);
    EXPECT_EQ("SourceBinSentry(refuser) rejected file:" + still + "\n", testing::internal::GetCapturedStdout());
    EXPECT_EQ(media + "/video-only.mkv", project->sourceBin()->sourceForFile(media + "/video-only.mkv")
                                             ->mediaFileStats()->filename());
}

TEST_F(ProjectTest, TextElementsGoOutUnescaped) {
    auto internal = dynamic_pointer_cast<InternalProject>(project);
    internal->setAuthor("Ann & Bob");
    internal->setComment("a < b");
    std::ostringstream out;
    project->toXML(out);
    EXPECT_NE(std::string::npos, out.str().find(" <Author>Ann & Bob</Author>\n"));
    EXPECT_NE(std::string::npos, out.str().find(" <Comment>a < b</Comment>\n"));
    EXPECT_FALSE(test::isWellFormedXml(out.str()));
}

}  // namespace
}  // namespace ZelmarMediaLib
