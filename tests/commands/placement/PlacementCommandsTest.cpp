// Placing medias through commands: add and its undo, removal of linked groups, how moves, trims
// and stretches combine into one undo step, what is refused before any change, and the XML.
#include <ZelmarMediaLib/commands/CommandPair.h>
#include <ZelmarMediaLib/commands/links/LinkCmd.h>
#include <ZelmarMediaLib/commands/placement/AddMediaCmd.h>
#include <ZelmarMediaLib/commands/placement/AddMediaGuard.h>
#include <ZelmarMediaLib/commands/placement/MoveCmd.h>
#include <ZelmarMediaLib/commands/placement/RemoveMediaCmd.h>
#include <ZelmarMediaLib/commands/placement/StretchCmd.h>
#include <ZelmarMediaLib/commands/placement/TrimEndCmd.h>
#include <ZelmarMediaLib/commands/placement/TrimStartCmd.h>
#include <ZelmarMediaLib/exceptions/CollisionException.h>
#include <ZelmarMediaLib/exceptions/TypeException.h>
#include <ZelmarMediaLib/timeline/TextBox.h>

#include "commands/placement/PlacementFixture.h"
#include "support/CommandInvariants.h"
#include "support/XmlCheck.h"

#include <sstream>

namespace ZelmarMediaLib {
namespace {

using test::Layout;
using test::layoutOf;
using test::projectXml;

std::string const foreignSourceText = "attempting to add a media whose source doesn't belong to the project";

template <class T>
std::string pointer(shared_ptr<T> const& object) {
    std::ostringstream out;
    out << static_cast<void const*>(object.get());
    return out.str();
}

class PlacementCommandsTest : public test::PlacementFixture {
protected:
    // Refused with a CollisionException that names exactly these medias, in this order, and
    // with the document and the history as they were.
    void expectCollision(shared_ptr<Command> const& command, Track::MediaList const& inTheWay) {
        std::string const before = projectXml(*project);
        test::HistoryShape const shape(*project);
        try {
            project->execute(command);
            ADD_FAILURE() << "no collision";
        } catch (CollisionException const& collision) {
            EXPECT_EQ(inTheWay, *collision.medias());
        }
        test::detail::expectProjectUntouched(*project, before, shape);
    }
};

TEST_F(PlacementCommandsTest, UndoOfAnAddLeavesTheMediaOffTheTrackWhereItStoodBefore) {
    shared_ptr<Media> const clip = picture(recording);
    clip->setTrackStart(500);
    shared_ptr<AddMediaCmd> const add = AddMediaCmd::create(pictures, clip, 1000);
    test::expectCommandInvariants(*project, add);
    EXPECT_EQ((Layout{{1000, 60}}), layoutOf(pictures));

    project->undo();
    EXPECT_TRUE(clip->parentTrack().expired());
    EXPECT_EQ(500, clip->trackRange().start);

    // Pins a start read once, when the command was made or first run: redo reads it afresh.
    clip->setTrackStart(200);
    project->redo();
    project->undo();
    EXPECT_EQ(200, clip->trackRange().start);
}

TEST_F(PlacementCommandsTest, CombinedMovesOfOneMediaUndoAsOneMoveByTheirSum) {
    shared_ptr<Media> const clip = placePicture(pictures, 100);
    std::string const before = projectXml(*project);
    project->execute(MoveCmd::create(pictures, clip, 10));
    project->combineNextCommand();
    project->execute(MoveCmd::create(pictures, clip, -3));

    ASSERT_EQ(2u, undoDepth());
    shared_ptr<MoveCmd> const combined = dynamic_pointer_cast<MoveCmd>(undoTop());
    ASSERT_TRUE(combined) << "a drag must fold into one move, not a pair";
    EXPECT_EQ(7, combined->offset());
    EXPECT_EQ((Layout{{107, 60}}), layoutOf(pictures));
    project->undo();
    EXPECT_EQ(before, projectXml(*project));

    // Trims fold the same way, each with its own kind only.
    shared_ptr<Command> const trims = TrimStartCmd::create(pictures, clip, 5)->combine(TrimStartCmd::create(pictures, clip, 4));
    ASSERT_TRUE(dynamic_pointer_cast<TrimStartCmd>(trims));
    EXPECT_EQ(9, dynamic_pointer_cast<TrimStartCmd>(trims)->offset());
    shared_ptr<Command> const ends = TrimEndCmd::create(pictures, clip, -5)->combine(TrimEndCmd::create(pictures, clip, 2));
    ASSERT_TRUE(dynamic_pointer_cast<TrimEndCmd>(ends));
    EXPECT_EQ(-3, dynamic_pointer_cast<TrimEndCmd>(ends)->offset());
}

TEST_F(PlacementCommandsTest, EditsOfAnotherKindOrOfAnotherMediaPairAndUndoTogether) {
    shared_ptr<Media> const first = placePicture(pictures, 0);
    shared_ptr<Media> const second = placePicture(pictures, 100);
    std::string const before = projectXml(*project);

    project->execute(MoveCmd::create(pictures, first, 10));
    project->combineNextCommand();
    project->execute(TrimEndCmd::create(pictures, first, 20));
    shared_ptr<CommandPair> const moveAndTrim = dynamic_pointer_cast<CommandPair>(undoTop());
    ASSERT_TRUE(moveAndTrim);
    EXPECT_TRUE(dynamic_pointer_cast<MoveCmd>(moveAndTrim->first()));
    EXPECT_TRUE(dynamic_pointer_cast<TrimEndCmd>(moveAndTrim->second()));

    project->combineNextCommand();
    project->execute(MoveCmd::create(pictures, second, 20));
    ASSERT_TRUE(dynamic_pointer_cast<CommandPair>(undoTop()));
    EXPECT_EQ((Layout{{10, 40}, {120, 60}}), layoutOf(pictures));
    ASSERT_EQ(3u, undoDepth());
    project->undo();
    EXPECT_EQ(before, projectXml(*project));
}

// The later stretch replaces the earlier one, so the scalar before both is not restored.
TEST_F(PlacementCommandsTest, TwoCombinedStretchesUndoOnlyToTheScalarBetweenThem) {
    shared_ptr<Media> const clip = placePicture(pictures, 0);
    shared_ptr<StretchCmd> const second = StretchCmd::create(pictures, clip, 3.0);
    project->execute(StretchCmd::create(pictures, clip, 2.0));
    project->combineNextCommand();
    project->execute(second);

    EXPECT_EQ(second, undoTop()) << "the later command itself stands for both";
    EXPECT_DOUBLE_EQ(2.0, second->oldScalar());
    EXPECT_DOUBLE_EQ(3.0, second->actualScalar());
    EXPECT_EQ((Layout{{0, 180}}), layoutOf(pictures));
    project->undo();
    EXPECT_DOUBLE_EQ(2.0, clip->scalar());
    EXPECT_EQ((Layout{{0, 120}}), layoutOf(pictures));
}

TEST_F(PlacementCommandsTest, RemovingALinkedMediaTakesItsGroupOffAndUndoPutsItBackLinked) {
    shared_ptr<Media> const shown = placePicture(pictures, 30);
    shared_ptr<Media> const heard = placeAudio(voice, 30);
    placeAudio(voice, 100);
    ASSERT_TRUE(project->execute(LinkCmd::create(shown, heard)));

    shared_ptr<RemoveMediaCmd<Media> > const remove = RemoveMediaCmd<Media>::create(pictures, shown);
    test::expectCommandInvariants(*project, remove);
    ASSERT_EQ(2u, remove->removed()->size());
    EXPECT_EQ(heard, remove->removed()->front().first) << "the linked medias come off first";
    EXPECT_EQ(voice, remove->removed()->front().second);
    EXPECT_EQ(shown, remove->removed()->back().first);
    EXPECT_TRUE(layoutOf(pictures).empty());
    EXPECT_EQ((Layout{{100, 60}}), layoutOf(voice));

    project->undo();
    EXPECT_EQ((Layout{{30, 60}}), layoutOf(pictures));
    EXPECT_EQ((Layout{{30, 60}, {100, 60}}), layoutOf(voice));
    EXPECT_TRUE(shown->isLinkedWith(heard));
    EXPECT_TRUE(heard->isLinkedWith(shown));
}

TEST_F(PlacementCommandsTest, FileMediasMustComeFromTheProjectsOwnSources) {
    shared_ptr<Source> const elsewhere = newSource("/media/elsewhere.mov");
    test::expectRefusedCommandLeavesProject<ZelmarMediaLibException>(
        *project, AddMediaCmd::create(pictures, picture(elsewhere), 0), foreignSourceText);
    test::expectRefusedCommandLeavesProject<ZelmarMediaLibException>(
        *project, AddMediaCmd::create(voice, audio(elsewhere), 0), foreignSourceText);

    // The guard is chosen once for the process: the flag no longer changes it.
    AddMediaGuard::instance();
    AddMediaGuard::setIsTestRunner(true);
    test::expectRefusedCommandLeavesProject<ZelmarMediaLibException>(
        *project, AddMediaCmd::create(pictures, picture(elsewhere), 0), foreignSourceText);
    AddMediaGuard::setIsTestRunner(false);

    // A text has no source to check.
    shared_ptr<Media> const title = boost::make_shared<TextBox>("Title", 40, 200.0f, 50.0f, project);
    test::expectCommandInvariants(*project, AddMediaCmd::create(overlay, title, 10));
}

TEST_F(PlacementCommandsTest, AMediaOfTheWrongKindForTheTrackIsRefused) {
    test::expectRefusedCommandLeavesProject<TypeException>(
        *project, AddMediaCmd::create(voice, picture(recording), 0), "Trying to add a VMFile to an AudioTrack");
}

TEST_F(PlacementCommandsTest, CollisionsAreRefusedNamingTheMediasInTheWayAlsoOnLinkedTracks) {
    shared_ptr<Media> const shown = placePicture(pictures, 0);
    shared_ptr<Media> const heard = placeAudio(voice, 0);
    ASSERT_TRUE(project->execute(LinkCmd::create(shown, heard)));
    ASSERT_TRUE(project->execute(TrimEndCmd::create(pictures, shown, 30)));
    shared_ptr<Media> const pictureInTheWay = placePicture(pictures, 45);
    shared_ptr<Media> const soundInTheWay = placeAudio(voice, 38);

    expectCollision(AddMediaCmd::create(pictures, picture(recording), 50), {pictureInTheWay});
    expectCollision(MoveCmd::create(pictures, shown, 20), {pictureInTheWay, soundInTheWay});
    expectCollision(TrimEndCmd::create(pictures, shown, -10), {soundInTheWay});
    expectCollision(StretchCmd::create(voice, heard, 2.0), {soundInTheWay, pictureInTheWay});
    // Material is kept before the start, so that the trim back can reach the neighbour.
    shared_ptr<Media> const late = placeAudio(voice, 110);
    ASSERT_TRUE(project->execute(TrimStartCmd::create(voice, late, 20)));
    ASSERT_TRUE(project->execute(MoveCmd::create(voice, late, -20)));
    expectCollision(TrimStartCmd::create(voice, late, -20), {soundInTheWay});
}

TEST_F(PlacementCommandsTest, CommandsWriteTheirArgumentsWithModelObjectsAsPointers) {
    shared_ptr<Media> const clip = picture(recording);
    auto const expectXml = [](shared_ptr<Command> const& command, std::string const& attributes) {
        std::string const name = attributes.substr(0, attributes.find(' '));
        EXPECT_EQ("<" + name + " id=\"" + test::id(*command) + "\" " + attributes.substr(name.size() + 1) +
                      " >\n</" + name + ">\n",
                  test::xml(*command));
    };
    std::string const target = "track=\"" + pointer(pictures) + "\" media=\"" + pointer(clip) + "\"";
    expectXml(AddMediaCmd::create(pictures, clip, 90), "AddMediaCmd " + target + " time=\"90\"");
    expectXml(RemoveMediaCmd<Media>::create(pictures, clip),
              "RemoveMediaCmd track=\"" + pointer(pictures) + "\" mediaToRemove=\"" + pointer(clip) + "\"");
    expectXml(MoveCmd::create(pictures, clip, -3), "MoveCmd " + target + " offset=\"-3\"");
    expectXml(TrimStartCmd::create(pictures, clip, 4), "TrimStartCmd " + target + " offset=\"4\"");
    expectXml(TrimEndCmd::create(pictures, clip, 5), "TrimEndCmd " + target + " offset=\"5\"");
    expectXml(StretchCmd::create(pictures, clip, 1.5),
              "StretchCmd " + target + " requestedScalar=\"1.5\" oldScalar=\"1.5\" actualScalar=\"1.5\"");
}

}  // namespace
}  // namespace ZelmarMediaLib
