// The key frame commands: each edit done, undone and redone on the owner's clock, drags that
// combine into one step, refusals that change nothing, and their XML.
#include <ZelmarMediaLib/commands/CommandPair.h>
#include <ZelmarMediaLib/commands/keyframes/AddParameterKeyFrameCmd.h>
#include <ZelmarMediaLib/commands/keyframes/ChangeAllKeyFramesByDeltaCmd.h>
#include <ZelmarMediaLib/commands/keyframes/ChangeParameterKeyFrameByDeltaCmd.h>
#include <ZelmarMediaLib/commands/keyframes/ChangeParameterKeyFrameCmd.h>
#include <ZelmarMediaLib/commands/keyframes/MoveParameterKeyFrameCmd.h>
#include <ZelmarMediaLib/commands/keyframes/RemoveParameterKeyFrameCmd.h>
#include <ZelmarMediaLib/datatypes/AudioPosition.h>
#include <ZelmarMediaLib/datatypes/Color.h>
#include <ZelmarMediaLib/datatypes/Point.h>
#include <ZelmarMediaLib/datatypes/TransformMatrix.h>
#include <ZelmarMediaLib/exceptions/KeyFrameException.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/parameters/LeftParameter.h>
#include <ZelmarMediaLib/timeline/AMFile.h>
#include <ZelmarMediaLib/timeline/AudioMixer.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>
#include <ZelmarMediaLib/timeline/Timeline.h>

#include "support/CommandInvariants.h"
#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ZelmarMediaLib {

// Every value type of the library's parameters instantiates without help; the by-delta pair
// for those that add.
template class AddParameterKeyFrameCmd<TransformMatrix>;
template class ChangeParameterKeyFrameCmd<Color>;
template class RemoveParameterKeyFrameCmd<shared_ptr<IMFile> >;
template class MoveParameterKeyFrameCmd<float>;
template class ChangeParameterKeyFrameByDeltaCmd<Point>;
template class ChangeAllKeyFramesByDeltaCmd<TransformMatrix>;

namespace {

using test::expectCommandInvariants;
using test::expectRefusedCommandLeavesProject;

// Commands name model objects by the address of the whole object.
template <class T>
std::string address(T const* object) {
    std::ostringstream out;
    out << dynamic_cast<void const*>(object);
    return out.str();
}

// A media whose key frames run on their own clock: material from 1000, played at half speed,
// so owner time t is key frame time t / 2 + 1000.
class KeyFrameCommandsTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<AudioTrack> track = project->timeline()->newTrack<AudioTrack>(
        project->timeline()->newAudioMixer(44100, 16, 2), 0);
    shared_ptr<AMFile> media = placedMedia();
    shared_ptr<Parameter<double> const> volume = media->volume();
    shared_ptr<Parameter<AudioPosition> const> position = track->positionParam();

    shared_ptr<AMFile> placedMedia() {
        shared_ptr<AMFile> made = boost::make_shared<AMFile>(Range<long long>(1000, 100), 44100u, 16u, project, "/a.wav",
                                                             0.0, 100000.0, 0u, 0u);
        track->addMedia(made, 0);
        made->stretch(2.0);
        made->volume()->addKeyFrame(1000, 1.0);
        made->volume()->addKeyFrame(1005, 0.5);
        return made;
    }

    double volumeAt(long long time) const { return volume->keyframeAtTime(time)->value; }
    std::size_t undoDepth() const { return project->commandHistory()->undoStack().size(); }
};

TEST_F(KeyFrameCommandsTest, EditsLandOnTheKeyFrameTimeOfTheOwnersTime) {
    // 11 / 2 + 1000 = 1005.5, truncated: the key frame at 1005.
    expectCommandInvariants(*project, ChangeParameterKeyFrameCmd<double>::create(media, volume, 11, 0.25));
    EXPECT_EQ(0.25, volumeAt(1005));
    expectCommandInvariants(*project, AddParameterKeyFrameCmd<double>::create(media, volume, 40, 0.75));
    EXPECT_EQ(0.75, volumeAt(1020));
    shared_ptr<KeyFrame<double> > const first = volume->keyframeAtTime(1000);
    expectCommandInvariants(*project, RemoveParameterKeyFrameCmd<double>::create(media, volume, 1));
    EXPECT_FALSE(volume->hasKeyFrameAtTime(1000));
    project->undo();
    EXPECT_EQ(first, volume->keyframeAtTime(1000)) << "undo puts back the very key frame that was removed";
    expectCommandInvariants(*project, MoveParameterKeyFrameCmd<double>::create(media, volume, 40, 60));
    EXPECT_EQ(std::vector<long long>({0, 1000, 1005, 1030}), *volume->keyframeTimes());
}

TEST_F(KeyFrameCommandsTest, DeltasAddToOneKeyFrameOrToAll) {
    expectCommandInvariants(*project, ChangeParameterKeyFrameByDeltaCmd<double>::create(media, volume, 10, 0.125));
    EXPECT_EQ(0.625, volumeAt(1005));
    EXPECT_EQ(1.0, volumeAt(1000));
    const_pointer_cast<Parameter<AudioPosition> >(position)->addKeyFrame(50, AudioPosition(1, 0, 1));
    expectCommandInvariants(*project,
                            ChangeAllKeyFramesByDeltaCmd<AudioPosition>::create(track, position, AudioPosition(0.5, 2, 0)));
    EXPECT_EQ(AudioPosition(0.5, 2, 1), position->keyframeAtTime(0)->value);
    EXPECT_EQ(AudioPosition(1.5, 2, 1), position->keyframeAtTime(50)->value);
    expectCommandInvariants(*project, ChangeParameterKeyFrameByDeltaCmd<AudioPosition>::create(
                                          track, position, 50, AudioPosition(0, 0, -1)));
    EXPECT_EQ(AudioPosition(1.5, 2, 0), position->keyframeAtTime(50)->value);
}

// A drag is a stream of small edits of one key frame: each joins the step before it, and one
// undo goes back to where the drag began.
TEST_F(KeyFrameCommandsTest, DragsOfOneKeyFrameCombineIntoOneStep) {
    std::string const start = test::projectXml(*project);
    project->execute(ChangeParameterKeyFrameByDeltaCmd<double>::create(media, volume, 10, 0.125));
    project->combineNextCommand();
    project->execute(ChangeParameterKeyFrameByDeltaCmd<double>::create(media, volume, 10, 0.25));
    ASSERT_EQ(1u, undoDepth());
    Command const& deltas = *project->commandHistory()->undoStack().back();
    EXPECT_EQ("<ChangeParameterKeyFrameByDeltaCmd id=\"" + test::id(deltas) + "\" owner=\"" + address(media.get()) +
                  "\" parameter=\"" + address(volume.get()) + "\" time=\"10\" delta=\"0.375\" >\n"
                  "</ChangeParameterKeyFrameByDeltaCmd>\n",
              test::xml(deltas));
    project->execute(MoveParameterKeyFrameCmd<double>::create(media, volume, 10, 20));
    project->combineNextCommand();
    project->execute(MoveParameterKeyFrameCmd<double>::create(media, volume, 20, 40));
    ASSERT_EQ(2u, undoDepth());
    Command const& moves = *project->commandHistory()->undoStack().back();
    EXPECT_EQ("<MoveParameterKeyFrameCmd id=\"" + test::id(moves) + "\" owner=\"" + address(media.get()) +
                  "\" parameter=\"" + address(volume.get()) + "\" from=\"10\" to=\"40\" >\n"
                  "</MoveParameterKeyFrameCmd>\n",
              test::xml(moves));
    std::string const dragged = test::projectXml(*project);
    EXPECT_EQ(0.875, volumeAt(1020));
    project->undo();
    project->undo();
    EXPECT_EQ(start, test::projectXml(*project));
    project->redo();
    project->redo();
    EXPECT_EQ(dragged, test::projectXml(*project));
}

// A drag that comes back to where it began combines to a move of no distance: its undo and
// redo must leave the key frame alone instead of refusing a move onto itself.
TEST_F(KeyFrameCommandsTest, DragBackToItsStartCombinesToAStillMove) {
    std::string const start = test::projectXml(*project);
    project->execute(MoveParameterKeyFrameCmd<double>::create(media, volume, 10, 30));
    project->combineNextCommand();
    project->execute(MoveParameterKeyFrameCmd<double>::create(media, volume, 30, 10));
    ASSERT_EQ(1u, undoDepth());
    project->undo();
    EXPECT_EQ(start, test::projectXml(*project));
    project->redo();
    EXPECT_EQ(start, test::projectXml(*project));
}

TEST_F(KeyFrameCommandsTest, OtherEditsDoNotCombine) {
    shared_ptr<Command> const here = ChangeParameterKeyFrameByDeltaCmd<double>::create(media, volume, 10, 0.1);
    EXPECT_TRUE(dynamic_pointer_cast<CommandPair>(
        here->combine(ChangeParameterKeyFrameByDeltaCmd<double>::create(media, volume, 0, 0.1))))
        << "another key frame";
    EXPECT_TRUE(dynamic_pointer_cast<CommandPair>(
        here->combine(ChangeParameterKeyFrameByDeltaCmd<AudioPosition>::create(track, position, 10, AudioPosition()))))
        << "another parameter";
    shared_ptr<Command> const move = MoveParameterKeyFrameCmd<double>::create(media, volume, 10, 20);
    EXPECT_TRUE(dynamic_pointer_cast<CommandPair>(move->combine(MoveParameterKeyFrameCmd<double>::create(media, volume, 0, 30))))
        << "a move of another key frame";
    shared_ptr<Command> const all = ChangeAllKeyFramesByDeltaCmd<double>::create(media, volume, 1.0);
    EXPECT_TRUE(dynamic_pointer_cast<ChangeAllKeyFramesByDeltaCmd<double> >(
        all->combine(ChangeAllKeyFramesByDeltaCmd<double>::create(media, volume, 2.0))));
    EXPECT_TRUE(dynamic_pointer_cast<CommandPair>(all->combine(here)));
}

TEST_F(KeyFrameCommandsTest, RefusalsComeBeforeAnyChange) {
    expectRefusedCommandLeavesProject<KeyFrameException>(
        *project, AddParameterKeyFrameCmd<double>::create(media, volume, 1, 0.0), "Invalid KeyFrame operation at time 1000");
    expectRefusedCommandLeavesProject<KeyFrameException>(
        *project, ChangeParameterKeyFrameCmd<double>::create(media, volume, 4, 0.0), "Invalid KeyFrame operation at time 1002");
    expectRefusedCommandLeavesProject<KeyFrameException>(
        *project, ChangeParameterKeyFrameByDeltaCmd<double>::create(media, volume, 4, 0.0),
        "Invalid KeyFrame operation at time 1002");
    expectRefusedCommandLeavesProject<KeyFrameException>(
        *project, RemoveParameterKeyFrameCmd<double>::create(media, volume, 4), "Invalid KeyFrame operation at time 1002");
    expectRefusedCommandLeavesProject<KeyFrameException>(
        *project, MoveParameterKeyFrameCmd<double>::create(media, volume, 4, 30), "Invalid KeyFrame operation at time 1002");
    expectRefusedCommandLeavesProject<KeyFrameException>(
        *project, MoveParameterKeyFrameCmd<double>::create(media, volume, 10, 0), "Invalid KeyFrame operation at time 1000");
    expectRefusedCommandLeavesProject<KeyFrameException>(
        *project, MoveParameterKeyFrameCmd<double>::create(media, volume, 4, 5), "Invalid KeyFrame operation at time 1002");
    expectRefusedCommandLeavesProject<ZelmarMediaLibException>(
        *project, AddParameterKeyFrameCmd<double>::create(media, nullptr, 1, 0.0),
        "attempting to edit a key frame of a null parameter");
    test::expectDeclinedCommandLeavesProject(*project, ChangeAllKeyFramesByDeltaCmd<std::string>::create(
                                                            project->timeline(), project->timeline()->markerParam(), "x"));
    // Still usable: the next command runs.
    expectCommandInvariants(*project, AddParameterKeyFrameCmd<double>::create(media, volume, 2, 0.0));
}

TEST_F(KeyFrameCommandsTest, TextValuesAreEscapedAndClonesWriteTheSame) {
    shared_ptr<LeftParameter<std::string> const> const marker = project->timeline()->markerParam();
    shared_ptr<Command> const add =
        AddParameterKeyFrameCmd<std::string>::create(project->timeline(), marker, 5, "cut \"here\" & <there>");
    EXPECT_EQ("<AddParameterKeyFrameCmd id=\"" + test::id(*add) + "\" owner=\"" + address(project->timeline().get()) +
                  "\" parameter=\"" + address(marker.get()) +
                  "\" time=\"5\" value=\"cut &quot;here&quot; &amp; &lt;there&gt;\" >\n"
                  "</AddParameterKeyFrameCmd>\n",
              test::xml(*add));
    std::unique_ptr<Command> const copy(add->clone());
    EXPECT_EQ(test::withoutIds(test::xml(*add)), test::withoutIds(test::xml(*copy)));
    project->execute(add);
    EXPECT_EQ("cut \"here\" & <there>", marker->keyframeAtTime(5)->value);
    project->undo();
    EXPECT_EQ(0, marker->numKeyFrames());
}

}  // namespace
}  // namespace ZelmarMediaLib
