#pragma once
// Widens a selection of tracks by the links of the medias that a range touches on them.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Range.h>

#include <set>

namespace ZelmarMediaLib {

class Track;

namespace LinkUtil {

// Adds to result each given track and the tracks of every media linked with a media that
// the range touches on it. One step of widening is enough, since a linked group is a clique.
// A dead link raises DanglingWeakPtrException<Media const>.
void tracksAffectedByRangeWithLinks(Range<long long> const& range, std::set<shared_ptr<Track const> > const& tracks,
                                    std::set<shared_ptr<Track const> >& result);

}  // namespace LinkUtil
}  // namespace ZelmarMediaLib
