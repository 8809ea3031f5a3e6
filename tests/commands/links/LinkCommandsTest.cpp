// Links through commands: groups that merge into one clique and part again with undo, the
// refusals that come before any change, the link texts of a media, and the utilities that
// widen or narrow a selection by links and rebuild links among clones.
#include <ZelmarMediaLib/commands/links/AddLinkCmd.h>
#include <ZelmarMediaLib/commands/links/LinkCmd.h>
#include <ZelmarMediaLib/commands/links/RemoveLinkCmd.h>
#include <ZelmarMediaLib/commands/links/UnlinkCmd.h>
#include <ZelmarMediaLib/commands/placement/MoveCmd.h>
#include <ZelmarMediaLib/commands/placement/TrimEndCmd.h>
#include <ZelmarMediaLib/commands/placement/TrimStartCmd.h>
#include <ZelmarMediaLib/exceptions/LinkException.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/timeline/LinkCloneUtil.h>
#include <ZelmarMediaLib/timeline/LinkUtil.h>
#include <ZelmarMediaLib/timeline/MediaImpl.h>

#include "commands/placement/PlacementFixture.h"
#include "support/CommandInvariants.h"
#include "support/ExpectText.h"
#include "support/XmlCheck.h"

#include <set>

namespace ZelmarMediaLib {
namespace {

using test::projectXml;

std::string const unableToLink = "unable to link media";

typedef std::set<shared_ptr<Track const> > TrackSet;
typedef std::set<shared_ptr<Media const> > MediaSet;

// Three medias of one length at time 0 on three tracks: each could be linked with each.
class LinkCommandsTest : public test::PlacementFixture {
protected:
    shared_ptr<Media> a = placePicture(pictures, 0);
    shared_ptr<Media> b = placePicture(overlay, 0);
    shared_ptr<Media> c = placeAudio(voice, 0);

    // Every pair of the group knows each other, and nobody else.
    static void expectGroup(std::vector<shared_ptr<Media> > const& group, std::vector<shared_ptr<Media> > const& all) {
        for (shared_ptr<Media> const& member : group) {
            for (shared_ptr<Media> const& other : all) {
                bool const inGroup = std::find(group.begin(), group.end(), other) != group.end();
                EXPECT_EQ(inGroup && other != member, member->isLinkedWith(other))
                    << member->xmlIdent() << " with " << other->xmlIdent();
            }
        }
    }
};

TEST_F(LinkCommandsTest, LinkingJoinsBothGroupsIntoOneCliqueAndUndoRestoresTheFormerGroup) {
    ASSERT_TRUE(project->execute(LinkCmd::create(a, c)));
    shared_ptr<LinkCmd> const join = LinkCmd::create(a, b);
    test::expectCommandInvariants(*project, join);
    expectGroup({a, b, c}, {a, b, c});
    EXPECT_EQ(4, join->numUndoCommands()) << "each of the two of one group with the one of the other, both ways";

    project->undo();
    expectGroup({a, c}, {a, b, c});
    EXPECT_FALSE(b->isLinkedWith(a));
}

TEST_F(LinkCommandsTest, UnlinkingTakesOneMediaOutAndLeavesTheOthersLinked) {
    ASSERT_TRUE(project->execute(LinkCmd::create(a, b)));
    ASSERT_TRUE(project->execute(LinkCmd::create(a, c)));
    ASSERT_TRUE(project->execute(UnlinkCmd::create(b)));
    expectGroup({a, c}, {a, b, c});
    expectGroup({b}, {a, b, c});

    project->undo();
    expectGroup({a, b, c}, {a, b, c});
}

TEST_F(LinkCommandsTest, UnlinkableMediasAreRefusedBeforeAnyLinkIsMade) {
    // One range on the track, different starts in the material.
    ASSERT_TRUE(project->execute(TrimStartCmd::create(overlay, b, 10)));
    ASSERT_TRUE(project->execute(MoveCmd::create(overlay, b, -10)));
    ASSERT_TRUE(project->execute(TrimEndCmd::create(pictures, a, 10)));
    ASSERT_EQ(a->trackRange(), b->trackRange());
    EXPECT_FALSE(a->isLinkableWith(b));
    test::expectRefusedCommandLeavesProject<ValueException<shared_ptr<Media const> > >(*project, LinkCmd::create(a, b),
                                                                                      unableToLink);
    test::expectRefusedCommandLeavesProject<ValueException<shared_ptr<Media const> > >(*project, LinkCmd::create(a, a),
                                                                                      unableToLink);
    // The group {c, b} was made without the test, and b differs from c in the material. The
    // links of a with c are made, then a with b fails, and the two made are taken back.
    ASSERT_TRUE(project->execute(TrimEndCmd::create(voice, c, 10)));
    c->link(b);
    ASSERT_TRUE(a->isLinkableWith(c));
    test::expectRefusedCommandLeavesProject<ValueException<shared_ptr<Media const> > >(*project, LinkCmd::create(a, c),
                                                                                      unableToLink);
}

TEST_F(LinkCommandsTest, LinksWhoseRangesDriftedApartAreRefusedBeforeAnyChange) {
    ASSERT_TRUE(project->execute(LinkCmd::create(a, b)));
    ASSERT_TRUE(project->execute(TrimEndCmd::create(voice, c, 10)));
    a->link(c);
    // Something else to undo and redo after each refusal: the trim of c can't be undone now.
    placePicture(pictures, 200);
    test::expectRefusedCommandLeavesProject<LinkException>(*project, MoveCmd::create(pictures, a, 5), "");
    // The drifted link is the second of a's. Pins a rollback that put the first back at the
    // end of the lists, which changed the document although the unlink was refused.
    test::expectRefusedCommandLeavesProject<ValueException<shared_ptr<Media> > >(
        *project, UnlinkCmd::create(a), "unable to remove media link, somehow the track ranges aren't equal");
}

TEST_F(LinkCommandsTest, AMediaRefusesToRemoveLinksItDoesNotHave) {
    shared_ptr<MediaImpl> const media = dynamic_pointer_cast<MediaImpl>(a);
    ASSERT_TRUE(media);
    test::expectText<ValueException<shared_ptr<Media> > >([&] { media->removeLink(a); },
                                                          "unable to remove media link with itself");
    test::expectText<ValueException<shared_ptr<Media> > >([&] { media->removeLink(b); },
                                                          "unable to remove media link where none exists");
    test::expectText<ValueException<shared_ptr<Media> > >([&] { media->removeFromLinkedMediaList(b); },
                                                          "unable to remove linked media list");
    a->link(a);
    EXPECT_EQ(a->linkBegin(), a->linkEnd()) << "a media is never linked with itself";
}

TEST_F(LinkCommandsTest, LinkCommandsWriteTheMediasByTheirIds) {
    std::string const idA = std::to_string(a->xmlIdent());
    std::string const idB = std::to_string(b->xmlIdent());
    shared_ptr<Command> const commands[] = {LinkCmd::create(a, b), UnlinkCmd::create(a), AddLinkCmd::create(a, b),
                                            RemoveLinkCmd::create(a, b)};
    std::string const attributes[] = {"LinkCmd media1=\"" + idA + "\" media2=\"" + idB + "\"",
                                      "UnlinkCmd media=\"" + idA + "\"",
                                      "AddLinkCmd media=\"" + idA + "\" mediaToAdd=\"" + idB + "\"",
                                      "RemoveLinkCmd media=\"" + idA + "\" mediaToRemove=\"" + idB + "\""};
    for (int i = 0; i < 4; ++i) {
        std::string const name = attributes[i].substr(0, attributes[i].find(' '));
        EXPECT_EQ("<" + name + " id=\"" + test::id(*commands[i]) + "\" " + attributes[i].substr(name.size() + 1) +
                      " >\n</" + name + ">\n",
                  test::xml(*commands[i]));
    }
}

TEST_F(LinkCommandsTest, SelectionsWidenAndNarrowByLinks) {
    ASSERT_TRUE(project->execute(LinkCmd::create(a, c)));
    placePicture(overlay, 200);

    TrackSet widened;
    LinkUtil::tracksAffectedByRangeWithLinks(Range<long long>(10, 5), TrackSet{pictures}, widened);
    EXPECT_EQ((TrackSet{pictures, voice}), widened);
    TrackSet gap;
    LinkUtil::tracksAffectedByRangeWithLinks(Range<long long>(60, 100), TrackSet{pictures}, gap);
    EXPECT_EQ(TrackSet{pictures}, gap);

    TrackSet fewest;
    LinkUtil::minimumSetOfLinkedTracks(30, TrackSet{pictures, overlay, voice}, fewest);
    EXPECT_EQ(2u, fewest.size());
    EXPECT_TRUE(fewest.count(overlay));
    EXPECT_NE(fewest.count(pictures), fewest.count(voice)) << "one of the two linked tracks stays";

    MediaSet narrowed;
    LinkUtil::minimumSetOfLinkedMedia(MediaSet{a, b, c}, narrowed);
    EXPECT_EQ(2u, narrowed.size());
    EXPECT_TRUE(narrowed.count(b));
    EXPECT_NE(narrowed.count(a), narrowed.count(c)) << "one of the linked pair stays";
}

TEST_F(LinkCommandsTest, ClonesAreLinkedOnlyWithClonesOfTheirOriginalsLinks) {
    ASSERT_TRUE(project->execute(LinkCmd::create(a, c)));
    LinkCloneUtil::CloneMap half{{a, sharedClone(shared_ptr<Media const>(a))}};
    LinkCloneUtil::linkClones(half);
    EXPECT_EQ(half[a]->linkBegin(), half[a]->linkEnd()) << "the link to a media not cloned is dropped";

    LinkCloneUtil::CloneMap both{{a, sharedClone(shared_ptr<Media const>(a))},
                                 {c, sharedClone(shared_ptr<Media const>(c))}};
    LinkCloneUtil::linkClones(both);
    EXPECT_TRUE(both[a]->isLinkedWith(both[c]));
    EXPECT_TRUE(both[c]->isLinkedWith(both[a]));
    EXPECT_FALSE(both[a]->isLinkedWith(c));

    shared_ptr<LinkCloneUtil::ReverseCloneMap> const back = LinkCloneUtil::reverseCloneMap(both);
    EXPECT_EQ(2u, back->size());
    EXPECT_EQ(shared_ptr<Media const>(c), (*back)[both[c]]);
}

}  // namespace
}  // namespace ZelmarMediaLib
