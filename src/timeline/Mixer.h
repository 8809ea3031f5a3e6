#pragma once
// An ordered stack of tracks: its edits, its span of time, and the copying of a part of it.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Cloneable.h>
#include <ZelmarMediaLib/datatypes/ConstIterator.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/timeline/LinkCloneUtil.h>
#include <ZelmarMediaLib/timeline/SubTimeline.h>
#include <ZelmarMediaLib/timeline/Track.h>

#include <map>
#include <memory>
#include <set>
#include <utility>
#include <vector>

namespace ZelmarMediaLib {

class Source;
class VectorEffectable;

// Index 0 is the first track of the list; the list's order is the stacking order. Reads
// take the project's read lock; edits take none, since commands hold the write lock.
class ZML_EXPORT Mixer : public SubTimeline, public virtual Cloneable, public enable_shared_from_this<Mixer> {
public:
    typedef std::vector<shared_ptr<Track> > TrackList;
    typedef std::set<shared_ptr<Track const> > TrackSet;
    typedef std::map<shared_ptr<Track const>, std::vector<shared_ptr<Media const> > > TrackMediaMap;

    ~Mixer() override;

    void xmlOfParameters(XMLable::Options& options, int indent) const override;
    void xmlOfAttributes(XMLable::Options& options, int indent) const override;
    int numAttributes() const override;
    Mixer* clone() const override = 0;
    // A mixer's parameters are keyed in global time, as a track's are.
    double toParameterTime(double time) const override;
    double fromParameterTime(double time) const override;
    long long fromGlobalToParametricTime(long long time) const override;
    int numParameters() const override;
    ParameterVector* parameterVector() const override;
    // The kinds test the track's kind and then call addTrackSansTypeCheck.
    virtual void addTrack(shared_ptr<Track> track, int index) = 0;
    // Raises ValueException<shared_ptr<Track const> > "trying to swap track that doesn't
    // exist", carrying the first of the two that is missing.
    virtual void swapTrackOrder(shared_ptr<Track const> first, shared_ptr<Track const> second);
    // The latest end of the tracks, or 0.
    long long endTime() const override;
    // The earliest start of the tracks, or 0 without tracks. An empty track starts at 0, so
    // it pulls the mixer's start to 0.
    long long startTime() const override;
    long long duration() const override;
    // Collected while an UpdateCollector runs, otherwise at once.
    void notify() const override;
    virtual TrackList& trackList() = 0;
    virtual TrackList const& trackList() const = 0;
    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

    int numTracks() const;
    // Raises IndexException at or past the end.
    shared_ptr<Track> trackAtIndex(unsigned int index);
    shared_ptr<Track const> trackAtIndex(unsigned int index) const;
    // -1 for a track that is not on this mixer.
    int indexForTrack(shared_ptr<Track const> track) const;
    bool hasTrack(shared_ptr<Track const> track) const;
    bool hasInstanceOf(shared_ptr<Source const> source) const;
    // Track by track in list order, each in time order.
    shared_ptr<Track::MediaList> instancesOf(shared_ptr<Source const> source) const;

    // The const forms hold the read lock for as long as the iterator or a copy lives.
    TrackList::iterator trackBegin();
    TrackList::iterator trackEnd();
    ConstIterator<TrackList> trackBegin() const;
    ConstIterator<TrackList> trackEnd() const;

    void removeTracks();
    // -1 appends; 0 to numTracks() inserts before the track at that index. Any other index
    // raises ValueException<int> "invalid index".
    void addTrackSansTypeCheck(shared_ptr<Track> track, int index);

    // A new track of kind T on this mixer's project, added through the kind's addTrack.
    template <class T>
    shared_ptr<T> newTrack(int index) {
        shared_ptr<T> track = boost::make_shared<T>(projectMutex());
        addTrack(track, index);
        return track;
    }

    // The track and the index it had. Raises ValueException<shared_ptr<Track const> >
    // "trying to remove a track not on mixer".
    template <class T>
    std::pair<shared_ptr<T>, int> removeTrack(shared_ptr<T const> track) {
        TrackList& tracks = trackList();
        for (TrackList::iterator at = tracks.begin(); at != tracks.end(); ++at) {
            if (*at == track) {
                shared_ptr<T> const removed = static_pointer_cast<T>(*at);
                int const index = static_cast<int>(at - tracks.begin());
                tracks.erase(at);
                notify();
                return std::make_pair(removed, index);
            }
        }
        throw ValueException<shared_ptr<Track const> >("trying to remove a track not on mixer", track);
    }

    // Groups those of the medias that lie on a track of this mixer by their track, keeping
    // the given order within each group. A media whose track is gone raises bad_weak_ptr.
    void genTrackMapForCopying(std::vector<shared_ptr<Media const> > const& medias, TrackMediaMap* trackMap) const;

protected:
    // Selects the kinds' copy that leaves the tracks behind, for a portion copy to fill.
    struct WithoutTracks {};

    explicit Mixer(weak_ptr<ThreadSafe const> project);
    // Clones the effect chain and no tracks: each kind clones its own.
    Mixer(Mixer const& other);
    Mixer& operator=(Mixer const&) = delete;

    // A mixer of kind M with the same effects, parameters and attributes, holding the part of
    // the range on each of the given tracks, in list order, and nothing for the others. The
    // clones are linked as their originals were.
    template <class M>
    shared_ptr<M> copyPortionImpl(M const* mixer, Range<long long> const& range, TrackSet const& tracks,
                                  Track::CloneMap* cloneMap) const {
        ReadWriteMutex::ScopedReadLock lock(&mutex());
        shared_ptr<M> result(new M(*mixer, WithoutTracks()));
        Track::CloneMap ownMap;
        Track::CloneMap* const clones = cloneMap ? cloneMap : &ownMap;
        for (shared_ptr<Track> const& track : mixer->trackList()) {
            if (tracks.count(track))
                result->addTrack(track->copyPortion(range, clones), -1);
        }
        LinkCloneUtil::linkClones(*clones);
        return result;
    }

    // The same with the named medias, untrimmed: one track for each track that holds some of
    // them, in list order.
    template <class M>
    shared_ptr<M> copyPortionImpl(M const* mixer, std::vector<shared_ptr<Media const> > const& medias,
                                  Track::CloneMap* cloneMap) const {
        ReadWriteMutex::ScopedReadLock lock(&mutex());
        shared_ptr<M> result(new M(*mixer, WithoutTracks()));
        Track::CloneMap ownMap;
        Track::CloneMap* const clones = cloneMap ? cloneMap : &ownMap;
        TrackMediaMap trackMap;
        mixer->genTrackMapForCopying(medias, &trackMap);
        for (shared_ptr<Track> const& track : mixer->trackList()) {
            TrackMediaMap::const_iterator const entry = trackMap.find(track);
            if (entry != trackMap.end())
                result->addTrack(track->copyPortion(entry->second, clones), -1);
        }
        LinkCloneUtil::linkClones(*clones);
        return result;
    }

private:
    VectorEffectable& effectChain() override;
    VectorEffectable const& effectChain() const override;

    std::unique_ptr<VectorEffectable> effects_;
};

}  // namespace ZelmarMediaLib
