#include <ZelmarMediaLib/clipbin/Clipping.h>

#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/timeline/AudioMixer.h>
#include <ZelmarMediaLib/timeline/Media.h>
#include <ZelmarMediaLib/timeline/Timeline.h>
#include <ZelmarMediaLib/timeline/Track.h>
#include <ZelmarMediaLib/timeline/VisualMixer.h>

#include <algorithm>
#include <limits>
#include <sstream>

namespace ZelmarMediaLib {
namespace {

typedef std::map<shared_ptr<Media const>, shared_ptr<Media> > CloneMap;
typedef std::vector<shared_ptr<Media> > CloneList;

// Every argument is tested before any part of the clipping is made, so that a refusal leaves
// nothing behind but the identity number, which goes back to the pool.
template <class T>
shared_ptr<T> const& requireTimeline(shared_ptr<T> const& timeline) {
    if (!timeline)
        throw ZelmarMediaLibException("trying to make a clipping without a timeline");
    return timeline;
}

weak_ptr<ThreadSafe const> projectOf(shared_ptr<Timeline const> const& timeline) {
    return requireTimeline(timeline)->projectMutex();
}

weak_ptr<ThreadSafe const> projectOf(shared_ptr<Timeline const> const& timeline, Clipping::TrackSet const& tracks) {
    if (tracks.count(shared_ptr<Track const>()))
        throw ZelmarMediaLibException("trying to make a clipping on a null track");
    return projectOf(timeline);
}

weak_ptr<ThreadSafe const> projectOf(shared_ptr<Timeline const> const& timeline,
                                     std::vector<shared_ptr<Media const> > const& medias) {
    for (shared_ptr<Media const> const& media : medias) {
        if (!media)
            throw ZelmarMediaLibException("trying to make a clipping of a null media");
    }
    return projectOf(timeline);
}

void checkClonesNotEmpty(CloneMap const& clones) {
    if (clones.empty())
        throw ZelmarMediaLibException("trying to make a clipping with no medias");
}

// The audio mixer is asked first. Each mixer counts its tracks from 0, so the positions of
// both kinds share one scale, and one minimum brings the lowest of either kind to 0.
int findTrackPosition(Timeline const& timeline, shared_ptr<Track const> const& track) {
    if (shared_ptr<AudioMixer> const audio = timeline.audioMixer()) {
        int const index = audio->indexForTrack(track);
        if (index != -1)
            return index;
    }
    if (shared_ptr<VisualMixer> const visual = timeline.visualMixer())
        return visual->indexForTrack(track);
    return -1;
}

void normalizeTempPositions(Clipping::TrackPositionMap const& temp, int minimum, Clipping::TrackPositionMap* positions) {
    for (Clipping::TrackPositionMap::value_type const& entry : temp)
        (*positions)[entry.first] = entry.second - minimum;
}

// Positions are those of the originals' tracks on the given timeline, keyed by the clones'
// tracks; a track with several medias counts once. A dead track raises bad_weak_ptr.
void genTrackPositions(Timeline const& timeline, CloneMap const& clones, Clipping::TrackPositionMap* positions) {
    std::map<shared_ptr<Track const>, shared_ptr<Track const> > cloneTracks;
    for (CloneMap::value_type const& entry : clones)
        cloneTracks[shared_ptr<Track const>(entry.first->parentTrack())] =
            shared_ptr<Track const>(entry.second->parentTrack());
    Clipping::TrackPositionMap temp;
    int minimum = std::numeric_limits<int>::max();
    for (std::pair<shared_ptr<Track const> const, shared_ptr<Track const> > const& entry : cloneTracks) {
        int const position = findTrackPosition(timeline, entry.first);
        temp[entry.second] = position;
        minimum = std::min(minimum, position);
    }
    normalizeTempPositions(temp, minimum, positions);
}

bool mediaSorter(shared_ptr<Media> const& first, shared_ptr<Media> const& second) {
    return first->trackRange().start < second->trackRange().start;
}

CloneList sortClonesByTrackStart(CloneMap const& clones) {
    CloneList sorted;
    sorted.reserve(clones.size());
    for (CloneMap::value_type const& entry : clones)
        sorted.push_back(entry.second);
    std::sort(sorted.begin(), sorted.end(), mediaSorter);
    return sorted;
}

long long calcMinStart(CloneList const& sorted) {
    return sorted.front()->trackRange().start;
}

// Every clone moves back by the same amount, with the checked move, so its new start is its
// start less minStart. Earliest first: each media moves into room that the ones before it on
// its track have already left, so no move meets a collision.
//   |      [A ]  [B ]   ->   [A ]  [B ]   (A moves before B)
// Links are left out of each move: a linked clone moves by the same amount on its own turn.
void moveClonesBack(long long minStart, CloneList const& sorted) {
    for (shared_ptr<Media> const& clone : sorted)
        shared_ptr<Track>(clone->parentTrack())->move(clone, -minStart, false);
}

void shiftClonesToZero(CloneMap const& clones) {
    CloneList const sorted = sortClonesByTrackStart(clones);
    moveClonesBack(calcMinStart(sorted), sorted);
}

}  // namespace

Clipping::Clipping(shared_ptr<Timeline const> timeline, Range<long long> range, TrackSet const& tracks,
                   std::string const& name)
    : SubProject(projectOf(timeline, tracks)),
      name_(boost::make_shared<Attribute<std::string> >(name, projectMutex())) {
    CloneMap clones;
    shared_ptr<Timeline> const copy = timeline->copyPortion(range, tracks, &clones);
    make(*timeline, copy, clones);
}

Clipping::Clipping(shared_ptr<Timeline const> timeline, std::vector<shared_ptr<Media const> > const& medias,
                   std::string const& name)
    : SubProject(projectOf(timeline, medias)),
      name_(boost::make_shared<Attribute<std::string> >(name, projectMutex())) {
    CloneMap clones;
    shared_ptr<Timeline> const copy = timeline->copyPortion(medias, &clones);
    make(*timeline, copy, clones);
}

Clipping::Clipping(std::string const& name, shared_ptr<Timeline> timeline, TrackPositionMap const& positions,
                   weak_ptr<ThreadSafe const> project)
    : SubProject(project),
      timeline_(requireTimeline(timeline)),
      name_(boost::make_shared<Attribute<std::string> >(name, project)),
      trackPositions_(positions) {}

Clipping& Clipping::operator=(Clipping const&) {
    return *this;
}

Clipping::~Clipping() = default;

// The clone map doesn't stay: the clipping keeps the copy and the positions only. The
// emptiness test comes before the clones are touched, and a refused clipping takes its copy
// down with it.
void Clipping::make(Timeline const& source, shared_ptr<Timeline> const& copy, CloneMap const& clones) {
    checkClonesNotEmpty(clones);
    genTrackPositions(source, clones, &trackPositions_);
    shiftClonesToZero(clones);
    timeline_ = copy;
}

std::string Clipping::description() const {
    std::ostringstream out;
    out << "Clipping\n"
        << "track positions:\n";
    for (TrackPositionMap::value_type const& entry : trackPositions_)
        out << '\t' << entry.first.get() << " - " << entry.second << '\n';
    return out.str();
}

void Clipping::xmlName(XMLable::Options& options) const {
    *options.stream << "Clipping";
}

void Clipping::xmlAttributes(XMLable::Options&) const {}

void Clipping::xmlBody(XMLable::Options&, int) const {}

unsigned int Clipping::trackPosition(shared_ptr<Track const> track) const {
    TrackPositionMap::const_iterator const found = trackPositions_.find(track);
    if (found == trackPositions_.end())
        return static_cast<unsigned int>(-1);
    return static_cast<unsigned int>(found->second);
}

}  // namespace ZelmarMediaLib
