#pragma once
// A row of medias ordered by time, where no two overlap, and the edits that keep it so, links included.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Cloneable.h>
#include <ZelmarMediaLib/datatypes/ConstIterator.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Pair.h>
#include <ZelmarMediaLib/datatypes/Range.h>
#include <ZelmarMediaLib/exceptions/DanglingWeakPtrException.h>
#include <ZelmarMediaLib/timeline/SubTimeline.h>
#include <ZelmarMediaLib/timeline/TrackSubSection.h>

#include <list>
#include <map>
#include <memory>
#include <set>
#include <utility>
#include <vector>

namespace ZelmarMediaLib {

class ConstTrackDispatcher;
class Media;
class Source;
class TrackDispatcher;
class Transition;
class VectorEffectable;

// Reads take the project's read lock themselves; edits take none, since the command that
// runs them holds the write lock.
class ZML_EXPORT Track : public SubTimeline, public virtual Cloneable, public enable_shared_from_this<Track> {
public:
    // What the store holds, seen from code common to all kinds.
    typedef Media MediaType;
    // Keyed by start time: every edit that moves a start must rekey the entry.
    typedef std::map<long long, shared_ptr<Media const> > MediaMap;
    typedef std::list<shared_ptr<Media const> > MediaList;
    // From each copied media to its clone; filled by copyPortion.
    typedef std::map<shared_ptr<Media const>, shared_ptr<Media> > CloneMap;

    ~Track() override;

    void xmlOfParameters(XMLable::Options& options, int indent) const override;
    void xmlOfAttributes(XMLable::Options& options, int indent) const override = 0;
    virtual void receiveDispatcher(ConstTrackDispatcher* dispatcher) const = 0;
    virtual void receiveDispatcher(TrackDispatcher* dispatcher) = 0;
    double toParameterTime(double time) const override;
    double fromParameterTime(double time) const override;
    long long fromGlobalToParametricTime(long long time) const override;
    int numParameters() const override;
    // Through the kind's dispatch: a media of a kind that the track doesn't take raises
    // TypeException and leaves the track as it was.
    virtual void addMedia(shared_ptr<Media> media, long long start) = 0;
    // The last media's end and the first media's start; 0 on an empty track.
    long long endTime() const override;
    long long startTime() const override;
    long long duration() const override;
    // Collected while an UpdateCollector runs, otherwise at once.
    void notify() const override;
    // An empty track of the same kind; sharedClone fills it through setupSharedClone.
    Track* clone() const override = 0;
    // Writing is for the kinds, which let in only medias of their own kind, and for edits
    // under the write lock that keep every key equal to its media's start.
    virtual MediaMap& medias() = 0;
    virtual MediaMap const& medias() const = 0;
    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

    // Adds a shared clone of each media at the media's own start, in time order.
    void setupSharedClone(shared_ptr<Track> clone) const;

    // The const forms hold the read lock for as long as the iterator or a copy lives; the
    // others hold none and are for code that runs under the write lock.
    ConstIterator<MediaMap> mediaBegin() const;
    ConstIterator<MediaMap> mediaEnd() const;
    ConstRIterator<MediaMap> mediaRBegin() const;
    ConstRIterator<MediaMap> mediaREnd() const;
    ConstIterator<MediaMap> lower_bound(long long time) const;
    ConstIterator<MediaMap> upper_bound(long long time) const;
    MediaMap::iterator mediaBegin();
    MediaMap::iterator mediaEnd();
    MediaMap::reverse_iterator mediaRBegin();
    MediaMap::reverse_iterator mediaREnd();

    int numMedias() const;
    bool hasMedia(shared_ptr<Media const> media) const;
    // The stored pointer, found by the media's start; null if another or none stands there.
    shared_ptr<Media const> findMedia(shared_ptr<Media const> media) const;
    shared_ptr<Media> findMedia(shared_ptr<Media const> media);
    bool hasInstanceOf(shared_ptr<Source const> source) const;
    // In time order.
    shared_ptr<MediaList> instancesOf(shared_ptr<Source const> source) const;

    // (left, right): the media that covers the time from the left and the one that covers it
    // from the right. Inside a media both are that media; at a cut between two butted medias
    // they are the two; in a gap both are null.
    Pair<shared_ptr<Media const> > mediaAtTime(long long time) const;
    Pair<shared_ptr<Media> > mediaAtTime(long long time);

    // The medias whose track range overlaps the range by at least one unit, in time order,
    // leaving out the ignored ones. Touching ends don't overlap. A map search and a walk over
    // the hits; the track itself is never walked.
    shared_ptr<MediaList> mediasIntersectingRange(Range<long long> const& range,
                                                  std::set<shared_ptr<Media const> > const& ignored) const;
    shared_ptr<MediaList> mediasIntersectingRange(Range<long long> const& range, MediaList const& ignored) const;
    // A null media ignores nothing.
    shared_ptr<MediaList> mediasIntersectingRange(Range<long long> const& range,
                                                  shared_ptr<Media const> ignored) const;
    shared_ptr<std::list<shared_ptr<Media> > > mediasIntersectingRange(Range<long long> const& range,
                                                                       shared_ptr<Media const> ignored);
    bool intersectionAtRange(Range<long long> const& range) const;

    // Neighbours across exact touching: a gap of one unit ends the relation. Each searches the
    // given item's own parent track, whichever track it is called on. An item without a
    // parent has no neighbours; one whose parent died raises boost::bad_weak_ptr.
    // The transition whose end is the media's start, or null.
    shared_ptr<Transition const> leftTransition(shared_ptr<Media const> media) const;
    // The transition that starts at the media's end, or null.
    shared_ptr<Transition const> rightTransition(shared_ptr<Media const> media) const;
    // The media of any kind, transitions included, that ends at the transition's start.
    shared_ptr<Media const> leftOfTransition(shared_ptr<Transition const> transition) const;
    // The media of any kind that starts at the transition's end.
    shared_ptr<Media const> rightOfTransition(shared_ptr<Transition const> transition) const;

    // What would stand in the way of the media if it took the range, here and, with links, on
    // each linked media's track: every media that the range overlaps, and one whose entry
    // stands at the range's start even if nothing overlaps, as a media of no duration. The
    // range is tried as it stands on every linked track, which is sound only because linked
    // medias have equal track ranges: unequal ones raise LinkException with the media's
    // range first.
    shared_ptr<MediaList> collidingMedia(shared_ptr<Media const> media, Range<long long> const& range,
                                         bool withLinks) const;
    // Raises ValueException<shared_ptr<Media const> > "media not found in track", or
    // CollisionException with every media in the way.
    shared_ptr<Media> checkOwnershipAndCollisions(shared_ptr<Media const> media, Range<long long> const& range,
                                                  bool withLinks);

    // Rekeys an entry without a test or a notification. An entry already at newStart is
    // overwritten, so callers that move several medias choose an order in which no key
    // meets another.
    void relocateMedia(shared_ptr<Media> media, long long oldStart, long long newStart);
    // Removes the media's entry; a media that this track doesn't hold is refused with "can't
    // find media to remove". With removeLinked, the linked medias go too, from this same
    // track; each must be found there before anything is erased.
    void removeMedia(shared_ptr<Media> media, bool removeLinked);

    // Checked edits: the range that the edit will give is tested for collisions, with the
    // links if asked, and each media that the edit reaches is asked whether its material
    // allows it, all before anything changes; then the unchecked form runs. A stretch is
    // tested with the range that the editor's rounding and limits will really give, on each
    // linked media with its own scalar, not with trackRangeWithStretch's forecast.
    void move(shared_ptr<Media const> media, long long offset, bool withLinks);
    void trimStart(shared_ptr<Media const> media, long long offset, bool withLinks);
    void trimEnd(shared_ptr<Media const> media, long long offset, bool withLinks);
    double stretch(shared_ptr<Media const> media, double wanted, bool withLinks);

    // Unchecked edits, for callers that tested already for collisions. A move or trim start
    // that would take the media before time 0, or a trim that would leave it no duration,
    // is still refused before any change. With links, each linked media gets the same edit
    // on its own track; the first library failure on that walk ends it silently, keeping
    // what was done, and the call still succeeds.
    //   move A by 3, with links:
    //   this track:    [A ]           ->      [A ]
    //   linked track:  [A']   [B ]    ->      [A'][B ]
    void moveSansCollision(shared_ptr<Media> media, long long offset, bool withLinks);
    void trimStartSansCollision(shared_ptr<Media> media, long long offset, bool withLinks);
    void trimEndSansCollision(shared_ptr<Media> media, long long offset, bool withLinks);
    // Returns the scalar that the main media reached; the linked medias are asked for wanted.
    double stretchSansCollision(shared_ptr<Media> media, double wanted, bool withLinks);

    // A new track of this kind with clones of what the range covers, trimmed to it and kept
    // at their global times: a portion is cut out, not shifted.
    shared_ptr<Track> copyPortion(Range<long long> const& range, CloneMap* cloneMap) const;
    // A new track of this kind with untrimmed clones of the named medias.
    shared_ptr<Track> copyPortion(std::vector<shared_ptr<Media const> > const& medias, CloneMap* cloneMap) const;

    // Locks a link and the linked media's track; raises DanglingWeakPtrException<M> if either
    // is gone, so that a link is only used while both its ends live.
    template <class M, class T>
    std::pair<shared_ptr<M>, shared_ptr<T> > lockMediaAndTrack(weak_ptr<M> const& link) const {
        shared_ptr<M> media = link.lock();
        if (!media)
            throw DanglingWeakPtrException<M>("", link);
        shared_ptr<T> track = dynamic_pointer_cast<T>(media->parentTrack().lock());
        if (!track)
            throw DanglingWeakPtrException<M>("", link);
        return std::make_pair(media, track);
    }

protected:
    explicit Track(weak_ptr<ThreadSafe const> project);
    // Clones the effect chain and no medias.
    Track(Track const& other);
    Track& operator=(Track const&) = delete;

    // Only the kinds call this, once their dispatch has admitted the media. Refused before
    // any change: a media that has a parent already, a start before 0, and a place where
    // another media stands or has its entry.
    virtual void addMediaSansTypeCheck(shared_ptr<Media> media, long long start);

    // A zone that the range cuts loses its modifications on the clone, and its length
    // shrinks to what the range keeps of it.
    void setupCloneEdgeMods(Range<long long> const& range, shared_ptr<Media const> const& media,
                            shared_ptr<Media> const& clone) const;

    template <class T>
    shared_ptr<TrackSubSection<typename T::MediaType> > subSectionImpl(T const* track,
                                                                      Range<long long> const& range) const {
        typedef typename T::MediaType Kind;
        shared_ptr<TrackSubSection<Kind> > section = boost::make_shared<TrackSubSection<Kind> >();
        shared_ptr<MediaList> hits = track->mediasIntersectingRange(range, shared_ptr<Media const>());
        for (shared_ptr<Media const> const& media : *hits)
            section->addMedia(static_pointer_cast<Kind const>(media), range.intersection(trackRangeOf(media)));
        return section;
    }

private:
    template <class Look>
    static shared_ptr<Media const> lookAroundOnOwnTrack(Media const& media, Look const& look);
    static shared_ptr<Media const> leftNeighbour(Media const& media);
    static shared_ptr<Media const> rightNeighbour(Media const& media);

    // The overlapped medias, and the one whose entry stands at the range's start.
    shared_ptr<MediaList> mediasInTheWay(Range<long long> const& range, shared_ptr<Media const> const& ignored) const;
    // collidingMedia with the range that each media, the main one and each linked one, will take.
    template <class RangeOf>
    shared_ptr<MediaList> collisions(shared_ptr<Media const> const& media, bool withLinks, RangeOf const& rangeOf) const;
    // Calls check(linked) for each media linked with this one, which must be alive on a track.
    template <class Check>
    void checkLinkedMedias(shared_ptr<Media> const& media, Check const& check) const;

    template <class Ignore>
    void collectIntersecting(Range<long long> const& range, Ignore const& ignore, MediaList& hits) const;
    static Range<long long> trackRangeOf(shared_ptr<Media const> const& media);

    VectorEffectable& effectChain() override;
    VectorEffectable const& effectChain() const override;

    std::unique_ptr<VectorEffectable> effects_;
};

}  // namespace ZelmarMediaLib
