// A track's placement rules: queries by time and range, collisions, checked and unchecked
// edits with their links, adding and removing, copies and notification.
#include <ZelmarMediaLib/datatypes/UpdateCollector.h>
#include <ZelmarMediaLib/exceptions/CollisionException.h>
#include <ZelmarMediaLib/exceptions/LinkException.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/AMFile.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>
#include <ZelmarMediaLib/timeline/AudioTransition.h>

#include "support/CountingObserver.h"

#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <sstream>
#include <stdexcept>
#include <utility>
#include <vector>

namespace ZelmarMediaLib {
namespace {

typedef std::vector<std::pair<long long, long long> > Layout;
typedef Track::MediaList MediaList;

using test::xml;

// The track holds exactly these ranges, in order, each under its own start.
void expectTrack(Track const& track, Layout const& layout) {
    Track::MediaMap const& medias = track.medias();
    ASSERT_EQ(layout.size(), medias.size());
    Layout::const_iterator expected = layout.begin();
    for (Track::MediaMap::value_type const& entry : medias) {
        Range<long long> const range = entry.second->trackRange();
        EXPECT_EQ(entry.first, range.start) << "the key of " << range;
        EXPECT_EQ(Range<long long>(expected->first, expected->second), range);
        ++expected;
    }
}

MediaList listOf(std::initializer_list<shared_ptr<Media const> > medias) {
    return MediaList(medias);
}

class TrackTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<AudioTrack> track = newTrack();

    shared_ptr<AudioTrack> newTrack() { return boost::make_shared<AudioTrack>(project); }

    // Material [1000, 1000 + duration) of a long file, so that trims have room on both sides.
    shared_ptr<AMFile> audio(long long duration) {
        return boost::make_shared<AMFile>(Range<long long>(1000, duration), 48000u, 16u, project, "/a.wav", 0.0,
                                          100000.0, 0u, 0u);
    }

    shared_ptr<AMFile> place(shared_ptr<Track> const& on, long long start, long long duration) {
        shared_ptr<AMFile> media = audio(duration);
        on->addMedia(media, start);
        return media;
    }

    shared_ptr<AMFile> place(long long start, long long duration) { return place(track, start, duration); }

    // The call must fail with E, and every watched track must print the same afterwards.
    template <class E, class Call>
    E refusal(Call call, std::initializer_list<shared_ptr<Track> > watched) {
        std::vector<std::string> before;
        for (shared_ptr<Track> const& each : watched)
            before.push_back(xml(*each));
        try {
            call();
        } catch (E const& error) {
            std::vector<std::string>::const_iterator printed = before.begin();
            for (shared_ptr<Track> const& each : watched)
                EXPECT_EQ(*printed++, xml(*each));
            return error;
        }
        ADD_FAILURE() << "expected a refusal";
        throw std::logic_error("no refusal");
    }

    void expectAt(long long time, shared_ptr<Media const> left, shared_ptr<Media const> right) {
        SCOPED_TRACE(time);
        Pair<shared_ptr<Media const> > const found = static_cast<Track const&>(*track).mediaAtTime(time);
        EXPECT_EQ(left, found.first);
        EXPECT_EQ(right, found.second);
        Pair<shared_ptr<Media> > const mutableFound = track->mediaAtTime(time);
        EXPECT_EQ(left, mutableFound.first);
        EXPECT_EQ(right, mutableFound.second);
    }
};

TEST_F(TrackTest, MediaAtTimeGivesTheMediasOnEitherSideOfATime) {
    shared_ptr<Media const> none;
    expectAt(0, none, none);
    shared_ptr<AMFile> a = place(0, 10), b = place(10, 10), c = place(25, 5);
    expectAt(5, a, a);
    expectAt(10, a, b);
    expectAt(0, none, a);
    expectAt(20, b, none);
    expectAt(22, none, none);
    expectAt(25, none, c);
    expectAt(30, c, none);
    expectAt(-3, none, none);
    expectAt(100, none, none);
}

TEST_F(TrackTest, RangeQueryFindsOverlapsInTimeOrderButNotTouchingEnds) {
    shared_ptr<AMFile> a = place(0, 10), b = place(10, 10), c = place(30, 10);
    Track const& view = *track;
    shared_ptr<Media const> none;
    EXPECT_EQ(listOf({a, b}), *view.mediasIntersectingRange(Range<long long>(5, 20), none));
    EXPECT_EQ(listOf({b, c}), *view.mediasIntersectingRange(Range<long long>(15, 20), none))
        << "a media that begins before the range is found";
    EXPECT_TRUE(view.mediasIntersectingRange(Range<long long>(20, 10), none)->empty()) << "both ends only touch";
    EXPECT_TRUE(view.mediasIntersectingRange(Range<long long>(5, 0), none)->empty()) << "an empty range hits nothing";
    EXPECT_TRUE(view.mediasIntersectingRange(Range<long long>(5, -3), none)->empty());
    EXPECT_EQ(listOf({a, b, c}), *view.mediasIntersectingRange(Range<long long>(-100, 1000), none));

    EXPECT_EQ(listOf({b, c}), *view.mediasIntersectingRange(Range<long long>(0, 40), a));
    EXPECT_EQ(listOf({b}), *view.mediasIntersectingRange(Range<long long>(0, 40),
                                                          std::set<shared_ptr<Media const> >{a, c}));
    EXPECT_EQ(listOf({a, c}), *view.mediasIntersectingRange(Range<long long>(0, 40), listOf({b})));
    shared_ptr<std::list<shared_ptr<Media> > > writable = track->mediasIntersectingRange(Range<long long>(0, 40), c);
    EXPECT_EQ((std::list<shared_ptr<Media> >{a, b}), *writable);

    EXPECT_FALSE(view.intersectionAtRange(Range<long long>(20, 10)));
    EXPECT_TRUE(view.intersectionAtRange(Range<long long>(19, 2)));
    EXPECT_FALSE(view.intersectionAtRange(Range<long long>(35, 0)));
}

TEST_F(TrackTest, TimesComeFromTheFirstAndLastMedia) {
    EXPECT_EQ(0, track->startTime());
    EXPECT_EQ(0, track->endTime());
    place(100, 10);
    place(300, 50);
    EXPECT_EQ(100, track->startTime());
    EXPECT_EQ(350, track->endTime());
    EXPECT_EQ(250, track->duration());
}

TEST_F(TrackTest, AddIntoOccupiedTimeIsRefusedAndNamesEveryMediaInTheWay) {
    shared_ptr<AMFile> a = place(0, 10), b = place(10, 10);
    shared_ptr<AMFile> wide = audio(15);
    CollisionException const error =
        refusal<CollisionException>([&] { track->addMedia(wide, 5); }, {track});
    EXPECT_EQ(listOf({a, b}), *error.medias());
    EXPECT_TRUE(wide->parentTrack().expired());
    EXPECT_EQ(0, wide->trackRange().start);

    shared_ptr<AMFile> butted = place(20, 5);
    EXPECT_EQ(track, butted->parentTrack().lock()) << "touching ends don't collide";
    EXPECT_EQ(20, butted->trackRange().start);
}

// Regression: a media of no duration collides with nothing, so an add at another media's
// start, or of a media at its start, overwrote that media's entry and orphaned it.
TEST_F(TrackTest, AddAtTheStartOfAnotherMediaIsRefusedEvenWithoutOverlap) {
    shared_ptr<AMFile> a = place(50, 10);
    CollisionException const onTop = refusal<CollisionException>([&] { track->addMedia(audio(0), 50); }, {track});
    EXPECT_EQ(listOf({a}), *onTop.medias());

    shared_ptr<AMFile> point = place(80, 0);
    CollisionException const under = refusal<CollisionException>([&] { track->addMedia(audio(10), 80); }, {track});
    EXPECT_EQ(listOf({point}), *under.medias());
    refusal<CollisionException>([&] { track->move(a, 30, false); }, {track});
    place(60, 0);
    expectTrack(*track, {{50, 10}, {60, 0}, {80, 0}});
}

// Regression: a media of another track was refused only after its entry was made, and the
// entry stayed behind.
TEST_F(TrackTest, AddOfAMediaThatBelongsToAnotherTrackIsRefusedBeforeAnyChange) {
    shared_ptr<AMFile> media = place(0, 10);
    shared_ptr<AudioTrack> other = newTrack();
    ValueException<shared_ptr<Media> > const error =
        refusal<ValueException<shared_ptr<Media> > >([&] { other->addMedia(media, 50); }, {track, other});
    EXPECT_STREQ("trying to edit parented media like a parentless media", error.what());
    EXPECT_EQ(media, error.value());
    EXPECT_EQ(0, other->numMedias());
    EXPECT_EQ(track, media->parentTrack().lock());
    refusal<ValueException<shared_ptr<Media> > >([&] { track->addMedia(media, 50); }, {track});
}

// Regression: nothing kept a media from being placed before time 0.
TEST_F(TrackTest, AddBeforeTimeZeroIsRefused) {
    shared_ptr<AMFile> media = audio(10);
    ValueException<long long> const error =
        refusal<ValueException<long long> >([&] { track->addMedia(media, -1); }, {track});
    EXPECT_STREQ("invalid media start on track (start<0)", error.what());
    EXPECT_EQ(-1, error.value());
    EXPECT_TRUE(media->parentTrack().expired());
}

TEST_F(TrackTest, AddToATrackThatNoSharedPtrHoldsFailsBeforeAnyChange) {
    AudioTrack loose(project);
    shared_ptr<AMFile> media = audio(10);
    EXPECT_THROW(loose.addMedia(media, 40), bad_weak_ptr);
    EXPECT_EQ(0, loose.numMedias());
    EXPECT_EQ(0, media->trackRange().start);
    EXPECT_THROW(track->addMedia(shared_ptr<Media>(), 0), ValueException<shared_ptr<Media> >);
}

TEST_F(TrackTest, CheckedMoveMayTouchANeighbourAndOverlapItsOwnPlaceButNotOverlapTheNeighbour) {
    shared_ptr<AMFile> a = place(0, 10), b = place(20, 10);
    CollisionException const error = refusal<CollisionException>([&] { track->move(a, 11, false); }, {track});
    EXPECT_EQ(listOf({b}), *error.medias());
    track->move(a, 10, false);
    expectTrack(*track, {{10, 10}, {20, 10}});
    track->move(a, -5, false);
    expectTrack(*track, {{5, 10}, {20, 10}});
}

TEST_F(TrackTest, TrimsAndStretchesRekeyOnlyWhenTheStartMoves) {
    shared_ptr<AMFile> a = place(100, 50), b = place(200, 50);
    track->trimStart(a, -20, false);
    expectTrack(*track, {{80, 70}, {200, 50}});
    track->trimEnd(a, -30, false);
    expectTrack(*track, {{80, 100}, {200, 50}});
    EXPECT_EQ(1.2, track->stretch(a, 1.2, false));
    expectTrack(*track, {{80, 120}, {200, 50}});

    CollisionException const error =
        refusal<CollisionException>([&] { track->stretch(a, 1.21, false); }, {track});
    EXPECT_EQ(listOf({b}), *error.medias());
    refusal<CollisionException>([&] { track->trimStart(b, -1, false); }, {track});
    refusal<CollisionException>([&] { track->trimEnd(a, -1, false); }, {track});
}

// Regression: the stretch was checked with trackRangeWithStretch, which leaves the current
// scalar out; after a stretch by 0.5 a stretch by 3 was forecast at half its real length
// and overlapped the neighbour.
TEST_F(TrackTest, CheckedStretchTestsTheRangeTheStretchWillReallyGive) {
    shared_ptr<AMFile> a = place(0, 10);
    track->stretch(a, 0.5, false);
    shared_ptr<AMFile> b = place(8, 10);
    EXPECT_EQ(Range<long long>(0, 15), a->trackRangeWithStretch(3.0)) << "the forecast itself is kept";
    CollisionException const error = refusal<CollisionException>([&] { track->stretch(a, 3.0, false); }, {track});
    EXPECT_EQ(listOf({b}), *error.medias());
    refusal<CollisionException>([&] { track->stretch(a, 1.0, false); }, {track});
    EXPECT_EQ(0.8, track->stretch(a, 0.8, false));
    expectTrack(*track, {{0, 8}, {8, 10}});
}

// Regression: a move or trim start before time 0 was accepted; a static media's trims were
// not even kept from leaving it no duration.
TEST_F(TrackTest, EditsThatLeaveTimeZeroOrAllDurationBehindAreRefused) {
    shared_ptr<AMFile> a = place(5, 10);
    ValueException<long long> const move =
        refusal<ValueException<long long> >([&] { track->move(a, -6, false); }, {track});
    EXPECT_STREQ("invalid media move offset (start<0)", move.what());
    EXPECT_EQ(-6, move.value());
    refusal<ValueException<long long> >([&] { track->moveSansCollision(a, -6, false); }, {track});

    shared_ptr<AudioTransition> fade = boost::make_shared<AudioTransition>(10, shared_ptr<Effect const>(), project);
    shared_ptr<AudioTrack> lane = newTrack();
    lane->addMedia(fade, 20);
    ValueException<long long> const start =
        refusal<ValueException<long long> >([&] { lane->trimStart(fade, -21, false); }, {lane});
    EXPECT_STREQ("invalid media trim start offset", start.what());
    refusal<ValueException<long long> >([&] { lane->trimStart(fade, 10, false); }, {lane});
    ValueException<long long> const end =
        refusal<ValueException<long long> >([&] { lane->trimEnd(fade, 12, false); }, {lane});
    EXPECT_STREQ("invalid media trim end offset", end.what());
    refusal<ValueException<long long> >([&] { lane->trimEndSansCollision(fade, 10, false); }, {lane});
    track->move(a, -5, false);
    lane->trimStart(fade, -20, false);
    expectTrack(*track, {{0, 10}});
    expectTrack(*lane, {{0, 30}});
}

TEST_F(TrackTest, EditRefusedByTheMaterialLeavesTheTrackUnchanged) {
    shared_ptr<AMFile> last = place(200, 50);
    ValueException<long long> const error =
        refusal<ValueException<long long> >([&] { track->trimEnd(last, -200000, false); }, {track});
    EXPECT_STREQ("invalid media trim end offset", error.what());
}

TEST_F(TrackTest, EditOfAMediaThatTheTrackDoesNotHoldIsRefused) {
    place(0, 10);
    shared_ptr<AMFile> stranger = audio(10);
    shared_ptr<AudioTrack> other = newTrack();
    shared_ptr<AMFile> elsewhere = place(other, 0, 10);
    for (shared_ptr<Media const> const& media : {shared_ptr<Media const>(stranger), shared_ptr<Media const>(elsewhere),
                                                 shared_ptr<Media const>()}) {
        ValueException<shared_ptr<Media const> > const error = refusal<ValueException<shared_ptr<Media const> > >(
            [&] { track->move(media, 20, false); }, {track, other});
        EXPECT_STREQ("media not found in track", error.what());
        EXPECT_EQ(media, error.value());
        refusal<ValueException<shared_ptr<Media const> > >([&] { track->trimStart(media, 1, false); }, {track});
        refusal<ValueException<shared_ptr<Media const> > >([&] { track->trimEnd(media, 1, false); }, {track});
        refusal<ValueException<shared_ptr<Media const> > >([&] { track->stretch(media, 2.0, false); }, {track});
    }
}

TEST_F(TrackTest, UncheckedEditOfAParentlessMediaIsRefused) {
    shared_ptr<AMFile> loose = audio(10);
    try {
        track->moveSansCollision(loose, 5, false);
        FAIL();
    } catch (ValueException<shared_ptr<Media> > const& error) {
        EXPECT_STREQ("trying to edit a parentless media like a parented media", error.what());
    }
    EXPECT_EQ(Range<long long>(0, 10), loose->trackRange());
    EXPECT_THROW(track->stretchSansCollision(shared_ptr<Media>(), 2.0, false), ValueException<shared_ptr<Media> >);
}

class LinkedTrackTest : public TrackTest {
protected:
    shared_ptr<AudioTrack> second = newTrack();
    shared_ptr<AudioTrack> third = newTrack();
    shared_ptr<AMFile> a = place(track, 0, 10);
    shared_ptr<AMFile> b = place(second, 0, 10);
    shared_ptr<AMFile> c = place(third, 0, 10);

    void SetUp() override {
        a->link(b);
        a->link(c);
    }
};

TEST_F(LinkedTrackTest, LinkedEditsCarryTheSameChangeToEveryLinkedTrack) {
    track->move(a, 20, true);
    track->trimStart(a, 5, true);
    track->trimEnd(a, -5, true);
    EXPECT_EQ(2.0, track->stretch(a, 2.0, true));
    for (shared_ptr<AudioTrack> const& each : {track, second, third})
        expectTrack(*each, {{25, 20}});
}

TEST_F(LinkedTrackTest, LinkedMoveBlockedOnALinkedTrackMovesNone) {
    shared_ptr<AMFile> blocker = place(third, 15, 10);
    CollisionException const error =
        refusal<CollisionException>([&] { track->move(a, 10, true); }, {track, second, third});
    EXPECT_EQ(listOf({blocker}), *error.medias());

    track->move(a, 10, false);
    expectTrack(*track, {{10, 10}});
    expectTrack(*third, {{0, 10}, {15, 10}});
}

TEST_F(LinkedTrackTest, LinkedMediasWithUnequalRangesRaiseLinkException) {
    track->move(a, 5, false);
    LinkException const error = refusal<LinkException>([&] { track->move(a, 5, true); }, {track, second, third});
    EXPECT_EQ(Range<long long>(5, 10), error.firstRange());
    EXPECT_EQ(Range<long long>(0, 10), error.secondRange());
}

// Regression: a linked media whose material refused the trim, or whose own stretch would hit a
// neighbour, was found out only on the walk over the links, after the main media had changed.
TEST_F(LinkedTrackTest, CheckedLinkedEditsRefusedForALinkedMediaChangeNothing) {
    shared_ptr<AMFile> tight = boost::make_shared<AMFile>(Range<long long>(1000, 10), 48000u, 16u, project, "/t.wav",
                                                          998.0, 12.0, 0u, 0u);
    shared_ptr<AudioTrack> fourth = newTrack();
    fourth->addMedia(tight, 0);
    track->move(a, 10, true);
    fourth->move(tight, 10, false);
    a->link(tight);
    std::initializer_list<shared_ptr<Track> > const all = {track, second, third, fourth};
    refusal<ValueException<long long> >([&] { track->trimStart(a, -5, true); }, all);
    refusal<ValueException<long long> >([&] { track->trimEnd(a, -5, true); }, all);
    refusal<ValueException<long long> >([&] { track->move(a, -11, true); }, all);

    // At half speed the partner grows to 40 where the main media reaches 20.
    shared_ptr<AudioTrack> fifth = newTrack();
    shared_ptr<AMFile> slow = place(fifth, 10, 20);
    fifth->stretch(slow, 0.5, false);
    shared_ptr<AMFile> blocker = place(fifth, 35, 5);
    a->link(slow);
    CollisionException const error =
        refusal<CollisionException>([&] { track->stretch(a, 2.0, true); }, {track, second, third, fourth, fifth});
    EXPECT_EQ(listOf({blocker}), *error.medias());
}

// Kept as documented: a failure on the walk over the links is swallowed, and what was done stays.
TEST_F(LinkedTrackTest, FirstFailureOnTheLinkedWalkEndsItSilently) {
    second->removeMedia(b, false);
    track->moveSansCollision(a, 5, true);
    expectTrack(*track, {{5, 10}});
    EXPECT_EQ(Range<long long>(0, 10), b->trackRange());
    // The walk ended at the first link, before this one.
    expectTrack(*third, {{0, 10}});

    track->trimEndSansCollision(a, 2, true);
    EXPECT_EQ(Range<long long>(5, 8), a->trackRange());
    EXPECT_EQ(Range<long long>(0, 10), c->trackRange());
}

TEST_F(LinkedTrackTest, LockingALinkNeedsTheMediaAndItsTrack) {
    std::pair<shared_ptr<Media const>, shared_ptr<Track const> > const locked =
        track->lockMediaAndTrack<Media const, Track const>(weak_ptr<Media const>(b));
    EXPECT_EQ(b, locked.first);
    EXPECT_EQ(second, locked.second);
    second->removeMedia(b, false);
    EXPECT_THROW((track->lockMediaAndTrack<Media const, Track const>(weak_ptr<Media const>(b))),
                 DanglingWeakPtrException<Media const>);
    EXPECT_THROW((track->lockMediaAndTrack<Media, Track>(weak_ptr<Media>())), DanglingWeakPtrException<Media>);
}

TEST_F(TrackTest, RemoveTakesTheEntryAndClearsTheParent) {
    shared_ptr<AMFile> a = place(0, 10);
    place(10, 10);
    test::CountingObserver observer;
    track->attach(&observer);
    track->removeMedia(a, false);
    track->detach(&observer);
    EXPECT_EQ(1, observer.calls);
    expectTrack(*track, {{10, 10}});
    EXPECT_TRUE(a->parentTrack().expired());
    EXPECT_EQ(0, a->trackRange().start) << "the media keeps its start";

    ValueException<shared_ptr<Media> > const error =
        refusal<ValueException<shared_ptr<Media> > >([&] { track->removeMedia(a, false); }, {track});
    EXPECT_STREQ("can't find media to remove", error.what());
}

// Regression: removal found the entry by start alone, so a media that the track doesn't hold
// took out the one standing at its start.
TEST_F(TrackTest, RemoveOfAMediaThatTheTrackDoesNotHoldIsRefused) {
    place(0, 10);
    shared_ptr<AMFile> stranger = audio(10);
    refusal<ValueException<shared_ptr<Media> > >([&] { track->removeMedia(stranger, false); }, {track});
    expectTrack(*track, {{0, 10}});
}

TEST_F(TrackTest, LinkedRemoveIsRefusedBeforeAnyChange) {
    shared_ptr<AMFile> a = place(0, 10);
    {
        shared_ptr<AMFile> gone = audio(10);
        a->link(gone);
    }
    ZelmarMediaLibException const dead =
        refusal<ZelmarMediaLibException>([&] { track->removeMedia(a, true); }, {track});
    EXPECT_STREQ("dead link when removing a media from a track", dead.what());
    EXPECT_EQ(track, a->parentTrack().lock());

    // Every linked media is looked for on this track before anything is erased, so one that
    // stands on another track is refused with nothing changed.
    shared_ptr<AudioTrack> other = newTrack();
    shared_ptr<AMFile> b = place(20, 10), partner = place(other, 20, 10);
    b->link(partner);
    ValueException<shared_ptr<Media> > const missing =
        refusal<ValueException<shared_ptr<Media> > >([&] { track->removeMedia(b, true); }, {track, other});
    EXPECT_STREQ("can't find media to remove", missing.what());
    EXPECT_EQ(partner, missing.value());
    EXPECT_EQ(track, b->parentTrack().lock());
}

TEST_F(TrackTest, RangeCopyCutsMediasToTheRangeAtTheirGlobalTimes) {
    shared_ptr<AMFile> a = place(0, 100), b = place(100, 50);
    place(300, 10);
    Track::CloneMap clones;
    shared_ptr<Track> copy = static_cast<Track const&>(*track).copyPortion(Range<long long>(20, 100), &clones);
    ASSERT_TRUE(dynamic_pointer_cast<AudioTrack>(copy));
    expectTrack(*copy, {{20, 80}, {100, 20}});
    ASSERT_EQ(2u, clones.size());
    EXPECT_EQ(Range<double>(1020.0, 80.0), clones.at(a)->mediaRange());
    EXPECT_EQ(Range<double>(1000.0, 20.0), clones.at(b)->mediaRange());
    EXPECT_EQ(copy, clones.at(a)->parentTrack().lock());
    expectTrack(*track, {{0, 100}, {100, 50}, {300, 10}});

    shared_ptr<Track> inside = track->copyPortion(Range<long long>(30, 40), nullptr);
    expectTrack(*inside, {{30, 40}});
}

TEST_F(TrackTest, RangeCopyShortensACutEdgeZoneAndKeepsAWholeOne) {
    shared_ptr<AMFile> a = place(0, 100);
    a->setLeftEdgeModificationLength(30);
    a->setRightEdgeModificationLength(10);
    Track::CloneMap clones;
    track->copyPortion(Range<long long>(10, 95), &clones);
    EXPECT_EQ(20, clones.at(a)->leftEdgeModificationLength());
    EXPECT_EQ(10, clones.at(a)->rightEdgeModificationLength());

    clones.clear();
    track->copyPortion(Range<long long>(0, 95), &clones);
    EXPECT_EQ(30, clones.at(a)->leftEdgeModificationLength());
    EXPECT_EQ(5, clones.at(a)->rightEdgeModificationLength());
}

TEST_F(TrackTest, SelectionCopyAndSharedCloneCopyMediasWhole) {
    shared_ptr<AMFile> a = place(0, 100), b = place(150, 10), c = place(300, 10);
    Track::CloneMap clones;
    shared_ptr<Track> selection = track->copyPortion(std::vector<shared_ptr<Media const> >{a, c}, &clones);
    expectTrack(*selection, {{0, 100}, {300, 10}});
    EXPECT_EQ(2u, clones.size());
    shared_ptr<Track> whole = sharedClone(shared_ptr<Track const>(track));
    expectTrack(*whole, {{0, 100}, {150, 10}, {300, 10}});
    for (Track::MediaMap::value_type const& entry : whole->medias()) {
        EXPECT_EQ(whole, entry.second->parentTrack().lock());
        EXPECT_NE(a, entry.second);
    }
}

TEST_F(TrackTest, EditsDuringACollectionNotifyTheTrackOnce) {
    test::CountingObserver observer;
    track->attach(&observer);
    place(0, 10);
    EXPECT_EQ(1, observer.calls);
    {
        UpdateCollector::Collection collection;
        place(10, 10);
        place(20, 10);
        EXPECT_EQ(1, observer.calls);
    }
    EXPECT_EQ(2, observer.calls);
    track->detach(&observer);
}

TEST_F(TrackTest, LockedIteratorsHoldTheReadLockWhileTheyLive) {
    shared_ptr<AMFile> a = place(0, 10), b = place(10, 10);
    Track const& view = *track;
    {
        ConstRIterator<Track::MediaMap> last = view.mediaRBegin();
        EXPECT_EQ(1, project->mutex().readerCount());
        EXPECT_EQ(b, last->second);
        EXPECT_EQ(b, view.upper_bound(5)->second);
        EXPECT_EQ(a, view.lower_bound(0)->second);
        EXPECT_EQ(2, std::distance(view.mediaBegin(), view.mediaEnd()));
    }
    EXPECT_EQ(0, project->mutex().readerCount());
}

}  // namespace
}  // namespace ZelmarMediaLib
