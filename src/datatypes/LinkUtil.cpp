#include <ZelmarMediaLib/datatypes/LinkUtil.h>

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

}  // namespace LinkUtil
}  // namespace ZelmarMediaLib
