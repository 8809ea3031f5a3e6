#pragma once
// Widens a selection of tracks, or narrows a selection of medias, by the links between medias.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Range.h>

#include <set>

namespace ZelmarMediaLib {

class Media;
class Track;

namespace LinkUtil {

// Adds to result each given track and the tracks of every media linked with a media that
// the range touches on it. One step of widening is enough, since a linked group is a clique.
// A dead link raises DanglingWeakPtrException<Media const>.
ZML_EXPORT void tracksAffectedByRangeWithLinks(Range<long long> const& range,
                                               std::set<shared_ptr<Track const> > const& tracks,
                                               std::set<shared_ptr<Track const> >& result);

// Adds to result, in the set's order, each track whose medias at the time are not linked with
// those of a track already taken: of tracks joined by links at that time only the first stays.
ZML_EXPORT void minimumSetOfLinkedTracks(long long time, std::set<shared_ptr<Track const> > const& tracks,
                                         std::set<shared_ptr<Track const> >& result);

// Adds to result, in the set's order, each media not linked with one taken before: of each
// linked group only one media stays, so that an edit that carries links along runs once per group.
ZML_EXPORT void minimumSetOfLinkedMedia(std::set<shared_ptr<Media const> > const& medias,
                                        std::set<shared_ptr<Media const> >& result);

}  // namespace LinkUtil
}  // namespace ZelmarMediaLib
