// The edge modification commands on a project: each done, undone and redone with the document
// invariants, the refusals that change nothing, and the split of the edges between a media
// and its clone.
#include <ZelmarMediaLib/commands/edgemods/AddLeftEdgeModCmd.h>
#include <ZelmarMediaLib/commands/edgemods/AddRightEdgeModCmd.h>
#include <ZelmarMediaLib/commands/edgemods/EdgeModCloneCmd.h>
#include <ZelmarMediaLib/commands/edgemods/MoveLeftEdgeModCmd.h>
#include <ZelmarMediaLib/commands/edgemods/MoveRightEdgeModCmd.h>
#include <ZelmarMediaLib/commands/edgemods/RemoveLeftEdgeModCmd.h>
#include <ZelmarMediaLib/commands/edgemods/RemoveRightEdgeModCmd.h>
#include <ZelmarMediaLib/edgemods/FadeInFunc.h>
#include <ZelmarMediaLib/edgemods/FadeOutFunc.h>
#include <ZelmarMediaLib/edgemods/MixerXSlideInFunc.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/parameters/VectorParam.h>
#include <ZelmarMediaLib/timeline/Timeline.h>
#include <ZelmarMediaLib/timeline/VMFile.h>
#include <ZelmarMediaLib/timeline/VisualMixer.h>
#include <ZelmarMediaLib/timeline/VisualTrack.h>

#include "support/CommandInvariants.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ZelmarMediaLib {
namespace {

using test::expectCommandInvariants;
using test::expectRefusedCommandLeavesProject;
using test::RedoIds;

// A fade in that counts the stage information it is given: one per function object made
// by a command.
class CountingFade : public FadeInFunc {
public:
    static int auxInfosSet;
    CountingFade* clone() const override { return new CountingFade(*this); }
    void setAuxInfo(AuxEdgeModInfo const&) override { ++auxInfosSet; }
};
int CountingFade::auxInfosSet = 0;

// A 100 unit media placed on a track of a 640 by 480 stage.
class EdgeModCommandsTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<VisualMixer> mixer = project->timeline()->newVisualMixer(640, 480);
    shared_ptr<VisualTrack> track = project->timeline()->newTrack<VisualTrack>(mixer, -1);
    shared_ptr<VMFile> media = placedMedia();
    shared_ptr<Parameter<double> const> opacity = media->opacity();

    shared_ptr<VMFile> placedMedia() {
        shared_ptr<VMFile> made = boost::make_shared<VMFile>(Range<long long>(0, 100), Rect<float>(0, 0, 200, 100),
                                                             project, "/a.mov", 0.0, 1000.0, 0u);
        track->addMedia(made, 0);
        return made;
    }

    double opacityAt(shared_ptr<VMFile const> const& on, double time) const {
        return on->transformedDoubleParameterValueAtTime(on->opacity(), time);
    }
};

TEST_F(EdgeModCommandsTest, AddMakesAFreshFunctionWithTheStageOnEveryRedo) {
    project->execute(MoveLeftEdgeModCmd::create(media, 20));
    CountingFade::auxInfosSet = 0;
    expectCommandInvariants(*project, AddLeftEdgeModCmd::create(media, EdgeModification(opacity, CountingFade())),
                            RedoIds::fresh);
    EXPECT_EQ(3, CountingFade::auxInfosSet) << "the execute and two redos";
    ASSERT_EQ(1u, media->leftEdgeModifications().size());
    EXPECT_EQ(0.5, opacityAt(media, 10.0));

    // The slide finds the project's stage and the media through what the command gave it.
    shared_ptr<Parameter<double> const> const x = media->translation()->at(0);
    expectCommandInvariants(*project, AddLeftEdgeModCmd::create(media, EdgeModification(x, MixerXSlideInFunc())),
                            RedoIds::fresh);
    // -640/2 - 200/2, uncropped and unscaled.
    EXPECT_DOUBLE_EQ(-420.0, media->transformedDoubleParameterValueAtTime(media->translation()->at(0), 0.0));
}

TEST_F(EdgeModCommandsTest, MoveStoresTheEffectiveLengthPlusDeltaAndUndoRestoresTheEffectiveOne) {
    media->setLeftEdgeModificationLength(95);
    media->setRightEdgeModificationLength(10);
    ASSERT_EQ(90, media->leftEdgeModificationLength());
    expectCommandInvariants(*project, MoveLeftEdgeModCmd::create(media, -5));
    EXPECT_EQ(85, media->storedLeftEdgeModificationLength());
    project->undo();
    EXPECT_EQ(90, media->storedLeftEdgeModificationLength()) << "the larger stored length is not given back";

    expectCommandInvariants(*project, MoveRightEdgeModCmd::create(media, -200));
    EXPECT_EQ(-190, media->storedRightEdgeModificationLength()) << "nothing clamps a negative length";
}

TEST_F(EdgeModCommandsTest, RemoveAndUndoPutTheSameModificationBackAtTheEnd) {
    media->setLeftEdgeModificationLength(20);
    media->addLeftEdgeModification(EdgeModification(opacity, FadeInFunc()));
    expectCommandInvariants(*project, RemoveLeftEdgeModCmd::create(media, opacity));
    EXPECT_TRUE(media->leftEdgeModifications().empty());

    shared_ptr<Parameter<double> const> const x = media->translation()->at(0);
    media->addRightEdgeModification(EdgeModification(opacity, FadeOutFunc()));
    media->addRightEdgeModification(EdgeModification(x, FadeOutFunc()));
    project->execute(RemoveRightEdgeModCmd::create(media, opacity));
    project->undo();
    std::list<EdgeModification> const right = media->rightEdgeModifications();
    ASSERT_EQ(2u, right.size());
    EXPECT_EQ(x, right.front().parameter());
    EXPECT_EQ(opacity, right.back().parameter());
    EXPECT_EQ("FadeOutFunc", right.back().func().ident());
}

TEST_F(EdgeModCommandsTest, RefusedEditsLeaveTheDocumentAsItWas) {
    media->addLeftEdgeModification(EdgeModification(opacity, FadeInFunc()));
    project->execute(MoveLeftEdgeModCmd::create(media, 10));
    expectRefusedCommandLeavesProject<ZelmarMediaLibException>(
        *project, AddLeftEdgeModCmd::create(media, EdgeModification(opacity, FadeOutFunc())),
        "trying to add an edge mod for a parameter already with a mod");
    expectRefusedCommandLeavesProject<ZelmarMediaLibException>(*project, RemoveRightEdgeModCmd::create(media, opacity),
                                                               "trying to remove non existant right edge mod");
    expectRefusedCommandLeavesProject<ZelmarMediaLibException>(
        *project, RemoveLeftEdgeModCmd::create(media, media->translation()->at(1)),
        "trying to remove non existant left edge mod");
}

TEST_F(EdgeModCommandsTest, CloneTakesTheRightEdgeAndUndoGivesItBackOnTheMediasOwnParameter) {
    media->setLeftEdgeModificationLength(20);
    media->setRightEdgeModificationLength(30);
    media->addLeftEdgeModification(EdgeModification(opacity, FadeInFunc()));
    media->addRightEdgeModification(EdgeModification(opacity, FadeOutFunc()));
    shared_ptr<EdgeModCloneCmd> const command = EdgeModCloneCmd::create(media);
    expectCommandInvariants(*project, command);
    shared_ptr<VMFile> const clone = dynamic_pointer_cast<VMFile>(command->mediaClone());
    ASSERT_TRUE(clone);

    EXPECT_EQ(20, media->leftEdgeModificationLength());
    EXPECT_EQ(0, media->rightEdgeModificationLength());
    EXPECT_EQ(1u, media->leftEdgeModifications().size());
    EXPECT_TRUE(media->rightEdgeModifications().empty());
    EXPECT_EQ(0, clone->leftEdgeModificationLength());
    EXPECT_EQ(30, clone->rightEdgeModificationLength());
    EXPECT_TRUE(clone->leftEdgeModifications().empty());
    ASSERT_EQ(1u, clone->rightEdgeModifications().size());
    EXPECT_EQ(clone->opacity(), clone->rightEdgeModifications().front().parameter());
    EXPECT_EQ(1.0, opacityAt(clone, 0.0));
    EXPECT_EQ(0.5, opacityAt(clone, 85.0));

    project->undo();
    EXPECT_EQ(30, media->rightEdgeModificationLength());
    ASSERT_EQ(1u, media->rightEdgeModifications().size());
    EXPECT_EQ(opacity, media->rightEdgeModifications().front().parameter());
    EXPECT_EQ(0.5, opacityAt(media, 85.0));
}

TEST_F(EdgeModCommandsTest, CommandsWriteOnlyTheirName) {
    std::ostringstream out;
    EdgeModCloneCmd::create(media)->toXML(out);
    MoveRightEdgeModCmd::create(media, 3)->toXML(out);
    EXPECT_EQ("<EdgeModCloneCmd id=\"#\"  >\n</EdgeModCloneCmd>\n<MoveRightEdgeModCmd id=\"#\"  >\n</MoveRightEdgeModCmd>\n",
              test::withoutIds(out.str()));
}

}  // namespace
}  // namespace ZelmarMediaLib
