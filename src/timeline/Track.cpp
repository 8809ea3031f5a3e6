#include <ZelmarMediaLib/timeline/Track.h>

#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/datatypes/UpdateCollector.h>
#include <ZelmarMediaLib/edgemods/EdgeModification.h>
#include <ZelmarMediaLib/effects/Effect.h>
#include <ZelmarMediaLib/effects/VectorEffectable.h>
#include <ZelmarMediaLib/exceptions/CollisionException.h>
#include <ZelmarMediaLib/exceptions/LinkException.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/timeline/Media.h>
#include <ZelmarMediaLib/timeline/MediaEditor.h>
#include <ZelmarMediaLib/timeline/ParentedMedia.h>
#include <ZelmarMediaLib/timeline/Transition.h>

#include <iterator>
#include <ostream>

namespace ZelmarMediaLib {

namespace {

char const* const notFoundText = "media not found in track";
char const* const parentedText = "trying to edit parented media like a parentless media";
char const* const notToRemoveText = "can't find media to remove";
char const* const moveBeforeZeroText = "invalid media move offset (start<0)";
char const* const addBeforeZeroText = "invalid media start on track (start<0)";
char const* const trimStartText = "invalid media trim start offset";
char const* const trimEndText = "invalid media trim end offset";
char const* const stretchText = "invalid duration after media stretch (<=0)";

Media const& requireMedia(shared_ptr<Media const> const& media) {
    if (!media)
        throw ValueException<shared_ptr<Media const> >(notFoundText, media);
    return *media;
}

void assertParentless(shared_ptr<Media> const& media) {
    if (!media->parentTrack().expired())
        throw ValueException<shared_ptr<Media> >(parentedText, media);
}

void assertParented(shared_ptr<Media> const& media) {
    if (!media)
        throw ValueException<shared_ptr<Media> >("trying to edit a parentless media like a parented media", media);
    ParentedMedia(media).assertParented();
}

// The first library failure ends the walk and is swallowed: the edits made so far stay, and
// the caller sees success. Failures of other kinds pass.
template <class Edit>
void editLinkedMedias(Track const& track, shared_ptr<Media> const& media, Edit edit) {
    // A copy, so that an observer that touches the links can't upset the walk.
    Media::LinkList const links(media->linkBegin(), media->linkEnd());
    try {
        for (weak_ptr<Media> const& link : links) {
            std::pair<shared_ptr<Media>, shared_ptr<Track> > const linked = track.lockMediaAndTrack<Media, Track>(link);
            edit(*linked.second, linked.first);
        }
    } catch (ZelmarMediaLibException const&) {
    }
}

// A media's place on a track begins at 0 or later and lasts at least one unit. The trim texts
// are the editors' own, which refuse the same of a temporal media; a static media's editor
// allows any trim and leaves this to the track.
void checkMoveRange(Range<long long> const& range, long long offset) {
    if (range.start < 0)
        throw ValueException<long long>(moveBeforeZeroText, offset);
}

void checkTrimStartRange(Range<long long> const& range, long long offset) {
    if (range.start < 0 || range.duration <= 0)
        throw ValueException<long long>(trimStartText, offset);
}

void checkTrimEndRange(Range<long long> const& range, long long offset) {
    if (range.duration <= 0)
        throw ValueException<long long>(trimEndText, offset);
}

// What stretch() will give the media, through the editor's own arithmetic.
Range<long long> stretchedRange(Media const& media, double wanted) {
    ReadWriteMutex::ScopedReadLock lock(&media.mutex());
    Range<long long> const range = media.trackRange();
    return Range<long long>(range.start, media.mediaEditor()->stretchedDuration(wanted, range.duration, media.scalar()));
}

void removeLeftEdgeMods(shared_ptr<Media> const& media) {
    for (EdgeModification const& modification : media->leftEdgeModifications())
        media->removeLeftEdgeModification(modification.parameter());
}

void removeRightEdgeMods(shared_ptr<Media> const& media) {
    for (EdgeModification const& modification : media->rightEdgeModifications())
        media->removeRightEdgeModification(modification.parameter());
}

struct IgnoreNone {
    bool operator()(shared_ptr<Media const> const&) const { return false; }
};

struct IgnoreOne {
    Media const* ignored;
    bool operator()(shared_ptr<Media const> const& media) const { return media.get() == ignored; }
};

struct IgnoreSome {
    std::set<shared_ptr<Media const> > const* ignored;
    bool operator()(shared_ptr<Media const> const& media) const { return ignored->count(media) != 0; }
};

}  // namespace

Track::Track(weak_ptr<ThreadSafe const> project) : SubTimeline(project), effects_(new VectorEffectable) {}

Track::Track(Track const& other)
    : XMLIdentified(other),
      SubTimeline(other),
      enable_shared_from_this<Track>(),
      effects_(other.effects_->clone()) {}

Track::~Track() = default;

void Track::xmlOfParameters(XMLable::Options&, int) const {}

VectorEffectable& Track::effectChain() {
    return *effects_;
}

VectorEffectable const& Track::effectChain() const {
    return *effects_;
}

double Track::toParameterTime(double time) const {
    return time;
}

double Track::fromParameterTime(double time) const {
    return time;
}

long long Track::fromGlobalToParametricTime(long long time) const {
    return time;
}

int Track::numParameters() const {
    return 0;
}

// The map is sorted and holds no overlaps, so two entries give the span.
long long Track::endTime() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    MediaMap const& store = medias();
    return store.empty() ? 0 : store.rbegin()->second->trackRange().end();
}

long long Track::startTime() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    MediaMap const& store = medias();
    return store.empty() ? 0 : store.begin()->second->trackRange().start;
}

long long Track::duration() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return endTime() - startTime();
}

void Track::notify() const {
    UpdateCollector* collector = UpdateCollector::instance();
    if (collector->isCollecting()) {
        // Aliased on the track, so that the collection keeps it alive to the end.
        collector->addObservable(shared_ptr<Observable const>(shared_from_this(), static_cast<Observable const*>(this)));
        return;
    }
    Subject::notify();
}

void Track::xmlName(XMLable::Options& options) const {
    *options.stream << "Track";
}

void Track::xmlAttributes(XMLable::Options&) const {}

void Track::xmlBody(XMLable::Options& options, int indent) const {
    xmlOfParametersEffectsAttributes(options, indent);
    std::ostream& out = *options.stream;
    std::string const blanks = genIndent(indent);
    out << blanks << "<Medias>\n";
    for (MediaMap::value_type const& entry : medias())
        entry.second->toXML(options, indent + 1, "");
    out << blanks << "</Medias>\n";
}

void Track::setupSharedClone(shared_ptr<Track> clone) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    for (MediaMap::value_type const& entry : medias())
        clone->addMedia(sharedClone(entry.second), entry.second->trackRange().start);
}

ConstIterator<Track::MediaMap> Track::mediaBegin() const {
    // The lock comes first, so that the position is taken under it.
    shared_ptr<ReadWriteMutex::ScopedReadLock> lock = boost::make_shared<ReadWriteMutex::ScopedReadLock>(&mutex());
    return ConstIterator<MediaMap>(medias().cbegin(), lock);
}

ConstIterator<Track::MediaMap> Track::mediaEnd() const {
    shared_ptr<ReadWriteMutex::ScopedReadLock> lock = boost::make_shared<ReadWriteMutex::ScopedReadLock>(&mutex());
    return ConstIterator<MediaMap>(medias().cend(), lock);
}

ConstRIterator<Track::MediaMap> Track::mediaRBegin() const {
    shared_ptr<ReadWriteMutex::ScopedReadLock> lock = boost::make_shared<ReadWriteMutex::ScopedReadLock>(&mutex());
    return ConstRIterator<MediaMap>(medias().crbegin(), lock);
}

ConstRIterator<Track::MediaMap> Track::mediaREnd() const {
    shared_ptr<ReadWriteMutex::ScopedReadLock> lock = boost::make_shared<ReadWriteMutex::ScopedReadLock>(&mutex());
    return ConstRIterator<MediaMap>(medias().crend(), lock);
}

ConstIterator<Track::MediaMap> Track::lower_bound(long long time) const {
    shared_ptr<ReadWriteMutex::ScopedReadLock> lock = boost::make_shared<ReadWriteMutex::ScopedReadLock>(&mutex());
    return ConstIterator<MediaMap>(medias().lower_bound(time), lock);
}

ConstIterator<Track::MediaMap> Track::upper_bound(long long time) const {
    shared_ptr<ReadWriteMutex::ScopedReadLock> lock = boost::make_shared<ReadWriteMutex::ScopedReadLock>(&mutex());
    return ConstIterator<MediaMap>(medias().upper_bound(time), lock);
}

Track::MediaMap::iterator Track::mediaBegin() {
    return medias().begin();
}

Track::MediaMap::iterator Track::mediaEnd() {
    return medias().end();
}

Track::MediaMap::reverse_iterator Track::mediaRBegin() {
    return medias().rbegin();
}

Track::MediaMap::reverse_iterator Track::mediaREnd() {
    return medias().rend();
}

int Track::numMedias() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return static_cast<int>(medias().size());
}

bool Track::hasMedia(shared_ptr<Media const> media) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return findMedia(media) != nullptr;
}

shared_ptr<Media const> Track::findMedia(shared_ptr<Media const> media) const {
    if (!media)
        return shared_ptr<Media const>();
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    MediaMap const& store = medias();
    MediaMap::const_iterator const entry = store.find(media->trackRange().start);
    if (entry == store.end() || entry->second != media)
        return shared_ptr<Media const>();
    return entry->second;
}

shared_ptr<Media> Track::findMedia(shared_ptr<Media const> media) {
    return const_pointer_cast<Media>(static_cast<Track const*>(this)->findMedia(media));
}

bool Track::hasInstanceOf(shared_ptr<Source const> source) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    for (MediaMap::value_type const& entry : medias()) {
        if (entry.second->isInstanceOf(source))
            return true;
    }
    return false;
}

shared_ptr<Track::MediaList> Track::instancesOf(shared_ptr<Source const> source) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    shared_ptr<MediaList> instances = boost::make_shared<MediaList>();
    for (MediaMap::value_type const& entry : medias()) {
        if (entry.second->isInstanceOf(source))
            instances->push_back(entry.second);
    }
    return instances;
}

Pair<shared_ptr<Media const> > Track::mediaAtTime(long long time) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    MediaMap const& store = medias();
    Pair<shared_ptr<Media const> > result;
    if (store.empty())
        return result;
    // The last media that starts at or before the time, or the first of all.
    MediaMap::const_iterator at = store.upper_bound(time);
    if (at != store.begin())
        --at;
    shared_ptr<Media const> const media = at->second;
    Range<long long> const range = media->timeRange();
    if (range.start < time && time < range.end())
        return Pair<shared_ptr<Media const> >(media, media);
    if (time == range.end()) {
        MediaMap::const_iterator const next = std::next(at);
        if (next != store.end() && next->second->timeRange().start == time)
            return Pair<shared_ptr<Media const> >(media, next->second);
        return Pair<shared_ptr<Media const> >(media, shared_ptr<Media const>());
    }
    if (time == range.start) {
        if (at != store.begin()) {
            MediaMap::const_iterator const previous = std::prev(at);
            if (previous->second->timeRange().end() == time)
                return Pair<shared_ptr<Media const> >(previous->second, media);
        }
        return Pair<shared_ptr<Media const> >(shared_ptr<Media const>(), media);
    }
    return result;
}

Pair<shared_ptr<Media> > Track::mediaAtTime(long long time) {
    Pair<shared_ptr<Media const> > const found = static_cast<Track const*>(this)->mediaAtTime(time);
    return Pair<shared_ptr<Media> >(const_pointer_cast<Media>(found.first), const_pointer_cast<Media>(found.second));
}

// The caller holds the read lock. The queries read each media's range through its lock-free
// Temporal side: the read lock is already held, and these run on every lookup.
template <class Ignore>
void Track::collectIntersecting(Range<long long> const& range, Ignore const& ignore, MediaList& hits) const {
    // Nothing has a positive overlap with an empty range. Returning here also keeps a
    // negative duration from putting the stop before the first entry.
    if (range.duration <= 0)
        return;
    MediaMap const& store = medias();
    long long const end = range.end();
    MediaMap::const_iterator at = store.upper_bound(range.start);
    // One step back takes in a media that begins before the range and reaches into it; none
    // further back can, since medias don't overlap.
    if (at != store.begin())
        --at;
    // Walking up to the last key at or before the end reaches the same entries as a second
    // search for the end would, at half the cost on a large track.
    for (; at != store.end() && at->first <= end; ++at) {
        if (ignore(at->second))
            continue;
        if (range.intersection(at->second->timeRange()).duration > 0)
            hits.push_back(at->second);
    }
}

shared_ptr<Track::MediaList> Track::mediasIntersectingRange(Range<long long> const& range,
                                                            std::set<shared_ptr<Media const> > const& ignored) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    shared_ptr<MediaList> hits = boost::make_shared<MediaList>();
    collectIntersecting(range, IgnoreSome{&ignored}, *hits);
    return hits;
}

shared_ptr<Track::MediaList> Track::mediasIntersectingRange(Range<long long> const& range,
                                                            MediaList const& ignored) const {
    return mediasIntersectingRange(range, std::set<shared_ptr<Media const> >(ignored.begin(), ignored.end()));
}

shared_ptr<Track::MediaList> Track::mediasIntersectingRange(Range<long long> const& range,
                                                            shared_ptr<Media const> ignored) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    shared_ptr<MediaList> hits = boost::make_shared<MediaList>();
    if (ignored)
        collectIntersecting(range, IgnoreOne{ignored.get()}, *hits);
    else
        collectIntersecting(range, IgnoreNone(), *hits);
    return hits;
}

shared_ptr<std::list<shared_ptr<Media> > > Track::mediasIntersectingRange(Range<long long> const& range,
                                                                          shared_ptr<Media const> ignored) {
    shared_ptr<MediaList> const hits = static_cast<Track const*>(this)->mediasIntersectingRange(range, ignored);
    shared_ptr<std::list<shared_ptr<Media> > > result = boost::make_shared<std::list<shared_ptr<Media> > >();
    for (shared_ptr<Media const> const& media : *hits)
        result->push_back(const_pointer_cast<Media>(media));
    return result;
}

bool Track::intersectionAtRange(Range<long long> const& range) const {
    if (range.duration <= 0)
        return false;
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    MediaMap const& store = medias();
    long long const end = range.end();
    MediaMap::const_iterator at = store.upper_bound(range.start);
    if (at != store.begin())
        --at;
    for (; at != store.end() && at->first <= end; ++at) {
        if (range.intersection(at->second->timeRange()).duration > 0)
            return true;
    }
    return false;
}

// Overlap alone would miss a media of no duration at the range's start, and one of no
// duration placed at another's start: either way an entry would be overwritten.
shared_ptr<Track::MediaList> Track::mediasInTheWay(Range<long long> const& range,
                                                   shared_ptr<Media const> const& ignored) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    shared_ptr<MediaList> hits = mediasIntersectingRange(range, ignored);
    MediaMap const& store = medias();
    MediaMap::const_iterator const entry = store.find(range.start);
    if (entry == store.end() || entry->second == ignored)
        return hits;
    MediaList::iterator at = hits->begin();
    while (at != hits->end() && (*at)->trackRange().start < range.start)
        ++at;
    if (at == hits->end() || *at != entry->second)
        hits->insert(at, entry->second);
    return hits;
}

template <class RangeOf>
shared_ptr<Track::MediaList> Track::collisions(shared_ptr<Media const> const& media, bool withLinks,
                                               RangeOf const& rangeOf) const {
    shared_ptr<MediaList> colliding = mediasInTheWay(rangeOf(media), media);
    if (!withLinks || !media)
        return colliding;
    Range<long long> const own = media->trackRange();
    for (ConstIterator<Media::LinkList> link = media->linkBegin(), end = media->linkEnd(); link != end; ++link) {
        std::pair<shared_ptr<Media const>, shared_ptr<Track const> > const linked =
            lockMediaAndTrack<Media const, Track const>(weak_ptr<Media const>(*link));
        Range<long long> const linkedRange = linked.first->trackRange();
        if (linkedRange != own)
            throw LinkException(own, linkedRange);
        colliding->splice(colliding->end(), *linked.second->mediasInTheWay(rangeOf(linked.first), linked.first));
    }
    return colliding;
}

shared_ptr<Track::MediaList> Track::collidingMedia(shared_ptr<Media const> media, Range<long long> const& range,
                                                   bool withLinks) const {
    return collisions(media, withLinks, [&range](shared_ptr<Media const> const&) { return range; });
}

template <class Check>
void Track::checkLinkedMedias(shared_ptr<Media> const& media, Check const& check) const {
    Media::LinkList const links(media->linkBegin(), media->linkEnd());
    for (weak_ptr<Media> const& link : links)
        check(*lockMediaAndTrack<Media, Track>(link).first);
}

shared_ptr<Media> Track::checkOwnershipAndCollisions(shared_ptr<Media const> media, Range<long long> const& range,
                                                     bool withLinks) {
    shared_ptr<Media> const owned = findMedia(media);
    if (!owned)
        throw ValueException<shared_ptr<Media const> >(notFoundText, media);
    shared_ptr<MediaList> const colliding = collidingMedia(media, range, withLinks);
    if (!colliding->empty())
        throw CollisionException(colliding);
    return owned;
}

void Track::relocateMedia(shared_ptr<Media> media, long long oldStart, long long newStart) {
    MediaMap& store = medias();
    store.erase(oldStart);
    MediaMap::iterator const hint = store.lower_bound(newStart);
    if (hint != store.end() && hint->first == newStart)
        hint->second = media;
    else
        store.emplace_hint(hint, newStart, media);
}

void Track::addMediaSansTypeCheck(shared_ptr<Media> media, long long start) {
    // Taken first, so that a track that no shared_ptr holds is refused before any change.
    shared_ptr<Track> const self = shared_from_this();
    // A media that lives on a track, this one or another, would be left with two entries.
    assertParentless(media);
    if (start < 0)
        throw ValueException<long long>(addBeforeZeroText, start);
    Range<long long> const range(start, media->trackRange().duration);
    shared_ptr<MediaList> const colliding = mediasInTheWay(range, shared_ptr<Media const>());
    if (!colliding->empty())
        throw CollisionException(colliding);
    medias()[start] = media;
    media->setTrackStart(start);
    media->setParentTrack(self);
    notify();
}

void Track::removeMedia(shared_ptr<Media> media, bool removeLinked) {
    if (!media)
        throw ValueException<shared_ptr<Media> >(notToRemoveText, media);
    MediaMap& store = medias();
    // Found by its start, then compared: another media under that key is not the one to remove.
    MediaMap::iterator const entry = store.find(media->trackRange().start);
    if (entry == store.end() || entry->second != media)
        throw ValueException<shared_ptr<Media> >(notToRemoveText, media);
    // Every linked media must be alive and found on this track before anything is erased.
    // Linked medias share their start, so one that sits on this track under the removed
    // media's key is not there to remove.
    std::vector<shared_ptr<Media> > linkedMedias;
    if (removeLinked) {
        shared_ptr<Media const> const removed = entry->second;
        for (ConstIterator<Media::LinkList> link = removed->linkBegin(), end = removed->linkEnd(); link != end;
             ++link) {
            shared_ptr<Media> const linked = link->lock();
            if (!linked)
                throw ZelmarMediaLibException("dead link when removing a media from a track");
            MediaMap::iterator const found = store.find(linked->trackRange().start);
            if (found == store.end() || found->second != linked)
                throw ValueException<shared_ptr<Media> >(notToRemoveText, linked);
            linkedMedias.push_back(linked);
        }
    }
    store.erase(entry);
    for (shared_ptr<Media> const& linked : linkedMedias)
        removeMedia(linked, false);
    media->setParentTrack(weak_ptr<Track>());
    notify();
}

void Track::move(shared_ptr<Media const> media, long long offset, bool withLinks) {
    Range<long long> const range = requireMedia(media).trackRangeWithMove(offset);
    shared_ptr<Media> const owned = checkOwnershipAndCollisions(media, range, withLinks);
    // The linked medias share the range, so this holds for them too.
    checkMoveRange(range, offset);
    moveSansCollision(owned, offset, withLinks);
}

void Track::trimStart(shared_ptr<Media const> media, long long offset, bool withLinks) {
    Range<long long> const range = requireMedia(media).trackRangeWithTrimStart(offset);
    shared_ptr<Media> const owned = checkOwnershipAndCollisions(media, range, withLinks);
    checkTrimStartRange(range, offset);
    // Each linked media's material is asked too: a refusal on the walk would be swallowed and
    // leave the links apart.
    auto const check = [offset](Media& each) {
        if (!each.validTrimStart(offset))
            throw ValueException<long long>(trimStartText, offset);
    };
    check(*owned);
    if (withLinks)
        checkLinkedMedias(owned, check);
    trimStartSansCollision(owned, offset, withLinks);
}

void Track::trimEnd(shared_ptr<Media const> media, long long offset, bool withLinks) {
    Range<long long> const range = requireMedia(media).trackRangeWithTrimEnd(offset);
    shared_ptr<Media> const owned = checkOwnershipAndCollisions(media, range, withLinks);
    checkTrimEndRange(range, offset);
    auto const check = [offset](Media& each) {
        if (!each.validTrimEnd(offset))
            throw ValueException<long long>(trimEndText, offset);
    };
    check(*owned);
    if (withLinks)
        checkLinkedMedias(owned, check);
    trimEndSansCollision(owned, offset, withLinks);
}

// Tested with what the stretch really gives: trackRangeWithStretch leaves the current scalar
// out, so after a stretch below real time its forecast is too short and let overlaps through.
// Each linked media is tested with its own result, since its scalar may differ.
double Track::stretch(shared_ptr<Media const> media, double wanted, bool withLinks) {
    requireMedia(media);
    shared_ptr<Media> const owned = findMedia(media);
    if (!owned)
        throw ValueException<shared_ptr<Media const> >(notFoundText, media);
    shared_ptr<MediaList> const colliding = collisions(
        media, withLinks, [wanted](shared_ptr<Media const> const& each) { return stretchedRange(*each, wanted); });
    if (!colliding->empty())
        throw CollisionException(colliding);
    if (withLinks)
        checkLinkedMedias(owned, [wanted](Media& each) {
            if (stretchedRange(each, wanted).duration <= 0)
                throw ValueException<double>(stretchText, wanted);
        });
    return stretchSansCollision(owned, wanted, withLinks);
}

void Track::moveSansCollision(shared_ptr<Media> media, long long offset, bool withLinks) {
    assertParented(media);
    checkMoveRange(media->trackRangeWithMove(offset), offset);
    long long const oldStart = media->trackRange().start;
    media->move(offset);
    relocateMedia(media, oldStart, media->trackRange().start);
    if (withLinks)
        editLinkedMedias(*this, media, [offset](Track& track, shared_ptr<Media> const& linked) {
            track.moveSansCollision(linked, offset, false);
        });
}

void Track::trimStartSansCollision(shared_ptr<Media> media, long long offset, bool withLinks) {
    assertParented(media);
    checkTrimStartRange(media->trackRangeWithTrimStart(offset), offset);
    long long const oldStart = media->trackRange().start;
    media->trimStart(offset);
    relocateMedia(media, oldStart, media->trackRange().start);
    if (withLinks)
        editLinkedMedias(*this, media, [offset](Track& track, shared_ptr<Media> const& linked) {
            track.trimStartSansCollision(linked, offset, false);
        });
}

void Track::trimEndSansCollision(shared_ptr<Media> media, long long offset, bool withLinks) {
    assertParented(media);
    checkTrimEndRange(media->trackRangeWithTrimEnd(offset), offset);
    media->trimEnd(offset);
    if (withLinks)
        editLinkedMedias(*this, media, [offset](Track& track, shared_ptr<Media> const& linked) {
            track.trimEndSansCollision(linked, offset, false);
        });
}

double Track::stretchSansCollision(shared_ptr<Media> media, double wanted, bool withLinks) {
    assertParented(media);
    double const scalar = media->stretch(wanted);
    // The linked medias are asked for the same speed, not handed the one reached here.
    if (withLinks)
        editLinkedMedias(*this, media, [wanted](Track& track, shared_ptr<Media> const& linked) {
            track.stretchSansCollision(linked, wanted, false);
        });
    return scalar;
}

//        range:      [-------------]
//   original:   [====A====]   [====B====]
//   result:          [=A'=]   [=B'=]        at the same global times
shared_ptr<Track> Track::copyPortion(Range<long long> const& range, CloneMap* cloneMap) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    shared_ptr<Track> result(clone());
    shared_ptr<TrackSubSection<Media> > const section = subSectionImpl(this, range);
    for (TrackSubSection<Media>::MediaRange const& entry : *section) {
        shared_ptr<Media const> const& media = entry.first;
        Range<long long> const& part = entry.second;
        shared_ptr<Media> const copy = sharedClone(media);
        assertParentless(copy);
        copy->trimStart(part.start - media->trackRange().start);
        assertParentless(copy);
        Range<long long> const trimmed = copy->trackRange();
        copy->trimEnd(trimmed.start + trimmed.duration - part.duration - part.start);
        setupCloneEdgeMods(range, media, copy);
        result->addMedia(copy, copy->trackRange().start);
        if (cloneMap)
            (*cloneMap)[media] = copy;
    }
    return result;
}

shared_ptr<Track> Track::copyPortion(std::vector<shared_ptr<Media const> > const& medias, CloneMap* cloneMap) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    shared_ptr<Track> result(clone());
    for (shared_ptr<Media const> const& media : medias) {
        shared_ptr<Media> const copy = sharedClone(media);
        result->addMedia(copy, media->trackRange().start);
        if (cloneMap)
            (*cloneMap)[media] = copy;
    }
    return result;
}

void Track::setupCloneEdgeMods(Range<long long> const& range, shared_ptr<Media const> const& media,
                               shared_ptr<Media> const& clone) const {
    Range<long long> const source = media->trackRange();
    long long const left = media->leftEdgeModificationLength();
    long long const keptLeft = Range<long long>(source.start, left).intersection(range).duration;
    if (keptLeft < left) {
        removeLeftEdgeMods(clone);
        clone->setLeftEdgeModificationLength(keptLeft);
    }
    long long const right = media->rightEdgeModificationLength();
    long long const keptRight = Range<long long>(source.end() - right, right).intersection(range).duration;
    if (keptRight < right) {
        removeRightEdgeMods(clone);
        clone->setRightEdgeModificationLength(keptRight);
    }
}

Range<long long> Track::trackRangeOf(shared_ptr<Media const> const& media) {
    return media->trackRange();
}

namespace {

// The item's own track: null for an item that never had one or was taken off, while a track
// that died under its media is a fault.
shared_ptr<Track const> neighbourhoodOf(Media const& media) {
    weak_ptr<Track const> const parent = media.parentTrack();
    weak_ptr<Track const> const none;
    if (!parent.owner_before(none) && !none.owner_before(parent))
        return shared_ptr<Track const>();
    return shared_ptr<Track const>(parent);
}

void checkNotNull(void const* item) {
    if (!item)
        throw ZelmarMediaLibException("asking for the neighbours of a null media");
}

}  // namespace

// Calls look(store) with the item's own track read-locked; without a track there is nothing
// to look at and the answer is null.
template <class Look>
shared_ptr<Media const> Track::lookAroundOnOwnTrack(Media const& media, Look const& look) {
    shared_ptr<Track const> const track = neighbourhoodOf(media);
    if (!track)
        return shared_ptr<Media const>();
    ReadWriteMutex::ScopedReadLock lock(&track->mutex());
    return look(track->medias());
}

shared_ptr<Media const> Track::leftNeighbour(Media const& media) {
    return lookAroundOnOwnTrack(media, [&media](MediaMap const& store) {
        long long const start = media.startTime();
        MediaMap::const_iterator at = store.lower_bound(start);
        if (at == store.begin())
            return shared_ptr<Media const>();
        --at;
        Media const& left = *at->second;
        return left.startTime() + left.duration() == start ? at->second : shared_ptr<Media const>();
    });
}

shared_ptr<Media const> Track::rightNeighbour(Media const& media) {
    return lookAroundOnOwnTrack(media, [&media](MediaMap const& store) {
        long long const start = media.startTime(), end = start + media.duration();
        MediaMap::const_iterator const at = store.upper_bound(start);
        if (at == store.end())
            return shared_ptr<Media const>();
        return at->second->startTime() == end ? at->second : shared_ptr<Media const>();
    });
}

shared_ptr<Transition const> Track::leftTransition(shared_ptr<Media const> media) const {
    checkNotNull(media.get());
    return dynamic_pointer_cast<Transition const>(leftNeighbour(*media));
}

shared_ptr<Transition const> Track::rightTransition(shared_ptr<Media const> media) const {
    checkNotNull(media.get());
    return dynamic_pointer_cast<Transition const>(rightNeighbour(*media));
}

shared_ptr<Media const> Track::leftOfTransition(shared_ptr<Transition const> transition) const {
    checkNotNull(transition.get());
    return leftNeighbour(*transition->transitionMediaRepresentation());
}

shared_ptr<Media const> Track::rightOfTransition(shared_ptr<Transition const> transition) const {
    checkNotNull(transition.get());
    return rightNeighbour(*transition->transitionMediaRepresentation());
}

}  // namespace ZelmarMediaLib
