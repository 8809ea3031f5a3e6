#include <ZelmarMediaLib/timeline/LinkUtil.h>

#include <ZelmarMediaLib/datatypes/Pair.h>
#include <ZelmarMediaLib/timeline/Media.h>
#include <ZelmarMediaLib/timeline/Track.h>

namespace ZelmarMediaLib {
namespace LinkUtil {

namespace {

void addMediaLinksTracks(Track const& track, shared_ptr<Media const> const& media,
                         std::set<shared_ptr<Track const> >& result) {
    for (ConstIterator<Media::LinkList> link = media->linkBegin(), end = media->linkEnd(); link != end; ++link)
        result.insert(track.lockMediaAndTrack<Media const, Track const>(weak_ptr<Media const>(*link)).second);
}

bool linked(shared_ptr<Media const> const& first, shared_ptr<Media const> const& second) {
    return first && second && first->isLinkedWith(second);
}

// At a cut between two medias the left and the right sides are each compared with their like.
bool tracksHaveLinksAtTime(Track const& first, Track const& second, long long time) {
    Pair<shared_ptr<Media const> > const atFirst = first.mediaAtTime(time);
    Pair<shared_ptr<Media const> > const atSecond = second.mediaAtTime(time);
    return linked(atFirst.first, atSecond.first) || linked(atFirst.second, atSecond.second);
}

}  // namespace

void tracksAffectedByRangeWithLinks(Range<long long> const& range, std::set<shared_ptr<Track const> > const& tracks,
                                    std::set<shared_ptr<Track const> >& result) {
    for (shared_ptr<Track const> const& track : tracks) {
        shared_ptr<Track::MediaList> const hits = track->mediasIntersectingRange(range, shared_ptr<Media const>());
        for (shared_ptr<Media const> const& media : *hits)
            addMediaLinksTracks(*track, media, result);
        result.insert(track);
    }
}

void minimumSetOfLinkedTracks(long long time, std::set<shared_ptr<Track const> > const& tracks,
                              std::set<shared_ptr<Track const> >& result) {
    for (shared_ptr<Track const> const& track : tracks) {
        bool joined = false;
        for (shared_ptr<Track const> const& taken : result) {
            if (tracksHaveLinksAtTime(*track, *taken, time)) {
                joined = true;
                break;
            }
        }
        if (!joined)
            result.insert(track);
    }
}

void minimumSetOfLinkedMedia(std::set<shared_ptr<Media const> > const& medias,
                             std::set<shared_ptr<Media const> >& result) {
    std::set<shared_ptr<Media const> > exemptions;
    for (shared_ptr<Media const> const& media : medias) {
        if (exemptions.count(media))
            continue;
        result.insert(media);
        for (ConstIterator<Media::LinkList> link = media->linkBegin(), end = media->linkEnd(); link != end; ++link)
            exemptions.insert(link->lock());
    }
}

}  // namespace LinkUtil
}  // namespace ZelmarMediaLib
