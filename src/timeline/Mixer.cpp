#include <ZelmarMediaLib/timeline/Mixer.h>

#include <ZelmarMediaLib/datatypes/UpdateCollector.h>
#include <ZelmarMediaLib/effects/Effect.h>
#include <ZelmarMediaLib/effects/VectorEffectable.h>
#include <ZelmarMediaLib/exceptions/IndexException.h>
#include <ZelmarMediaLib/timeline/Media.h>

#include <algorithm>
#include <climits>
#include <ostream>

namespace ZelmarMediaLib {

Mixer::Mixer(weak_ptr<ThreadSafe const> project) : SubTimeline(project), effects_(new VectorEffectable) {}

Mixer::Mixer(Mixer const& other)
    : XMLIdentified(other),
      SubTimeline(other),
      enable_shared_from_this<Mixer>(),
      effects_(other.effects_->clone()) {}

Mixer::~Mixer() = default;

void Mixer::xmlOfParameters(XMLable::Options&, int) const {}

void Mixer::xmlOfAttributes(XMLable::Options&, int) const {}

int Mixer::numAttributes() const {
    return 0;
}

VectorEffectable& Mixer::effectChain() {
    return *effects_;
}

VectorEffectable const& Mixer::effectChain() const {
    return *effects_;
}

double Mixer::toParameterTime(double time) const {
    return time;
}

double Mixer::fromParameterTime(double time) const {
    return time;
}

long long Mixer::fromGlobalToParametricTime(long long time) const {
    return time;
}

int Mixer::numParameters() const {
    return 0;
}

ParameterVector* Mixer::parameterVector() const {
    return new ParameterVector(projectMutex());
}

void Mixer::swapTrackOrder(shared_ptr<Track const> first, shared_ptr<Track const> second) {
    TrackList& tracks = trackList();
    TrackList::iterator const a = std::find(tracks.begin(), tracks.end(), first);
    if (a == tracks.end())
        throw ValueException<shared_ptr<Track const> >("trying to swap track that doesn't exist", first);
    TrackList::iterator const b = std::find(tracks.begin(), tracks.end(), second);
    if (b == tracks.end())
        throw ValueException<shared_ptr<Track const> >("trying to swap track that doesn't exist", second);
    std::iter_swap(a, b);
    notify();
}

long long Mixer::endTime() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    long long latest = 0;
    for (shared_ptr<Track> const& track : trackList())
        latest = std::max(latest, track->endTime());
    return latest;
}

long long Mixer::startTime() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    long long earliest = LLONG_MAX;
    for (shared_ptr<Track> const& track : trackList())
        earliest = std::min(earliest, track->startTime());
    return earliest == LLONG_MAX ? 0 : earliest;
}

long long Mixer::duration() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return endTime() - startTime();
}

void Mixer::notify() const {
    UpdateCollector* collector = UpdateCollector::instance();
    if (collector->isCollecting()) {
        // Aliased on the mixer, so that the collection keeps it alive to the end.
        collector->addObservable(shared_ptr<Observable const>(shared_from_this(), static_cast<Observable const*>(this)));
        return;
    }
    Subject::notify();
}

void Mixer::xmlName(XMLable::Options& options) const {
    *options.stream << "Mixer";
}

void Mixer::xmlAttributes(XMLable::Options&) const {}

void Mixer::xmlBody(XMLable::Options& options, int indent) const {
    xmlOfParametersEffectsAttributes(options, indent);
    std::ostream& out = *options.stream;
    std::string const blanks = genIndent(indent);
    out << blanks << "<Tracks>\n";
    for (shared_ptr<Track> const& track : trackList())
        track->toXML(options, indent + 1, "");
    out << blanks << "</Tracks>\n";
}

int Mixer::numTracks() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return static_cast<int>(trackList().size());
}

shared_ptr<Track> Mixer::trackAtIndex(unsigned int index) {
    return const_pointer_cast<Track>(static_cast<Mixer const*>(this)->trackAtIndex(index));
}

shared_ptr<Track const> Mixer::trackAtIndex(unsigned int index) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    TrackList const& tracks = trackList();
    if (index >= tracks.size())
        throw IndexException(static_cast<int>(index));
    return tracks[index];
}

int Mixer::indexForTrack(shared_ptr<Track const> track) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    TrackList const& tracks = trackList();
    TrackList::const_iterator const found = std::find(tracks.begin(), tracks.end(), track);
    return found == tracks.end() ? -1 : static_cast<int>(found - tracks.begin());
}

bool Mixer::hasTrack(shared_ptr<Track const> track) const {
    return indexForTrack(track) != -1;
}

bool Mixer::hasInstanceOf(shared_ptr<Source const> source) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    for (shared_ptr<Track> const& track : trackList()) {
        if (track->hasInstanceOf(source))
            return true;
    }
    return false;
}

shared_ptr<Track::MediaList> Mixer::instancesOf(shared_ptr<Source const> source) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    shared_ptr<Track::MediaList> instances = boost::make_shared<Track::MediaList>();
    for (shared_ptr<Track> const& track : trackList())
        instances->splice(instances->end(), *track->instancesOf(source));
    return instances;
}

Mixer::TrackList::iterator Mixer::trackBegin() {
    return trackList().begin();
}

Mixer::TrackList::iterator Mixer::trackEnd() {
    return trackList().end();
}

ConstIterator<Mixer::TrackList> Mixer::trackBegin() const {
    // The lock comes first, so that the position is taken under it.
    shared_ptr<ReadWriteMutex::ScopedReadLock> lock = boost::make_shared<ReadWriteMutex::ScopedReadLock>(&mutex());
    return ConstIterator<TrackList>(trackList().cbegin(), lock);
}

ConstIterator<Mixer::TrackList> Mixer::trackEnd() const {
    shared_ptr<ReadWriteMutex::ScopedReadLock> lock = boost::make_shared<ReadWriteMutex::ScopedReadLock>(&mutex());
    return ConstIterator<TrackList>(trackList().cend(), lock);
}

void Mixer::removeTracks() {
    trackList().clear();
    notify();
}

void Mixer::addTrackSansTypeCheck(shared_ptr<Track> track, int index) {
    TrackList& tracks = trackList();
    if (index == -1) {
        tracks.push_back(track);
    } else {
        if (index < 0 || index > static_cast<int>(tracks.size()))
            throw ValueException<int>("invalid index", index);
        tracks.insert(tracks.begin() + index, track);
    }
    notify();
}

void Mixer::genTrackMapForCopying(std::vector<shared_ptr<Media const> > const& medias, TrackMediaMap* trackMap) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    TrackList const& tracks = trackList();
    for (shared_ptr<Media const> const& media : medias) {
        bool const owned = std::any_of(tracks.begin(), tracks.end(),
                                       [&media](shared_ptr<Track> const& track) { return track->hasMedia(media); });
        if (owned)
            (*trackMap)[shared_ptr<Track const>(media->parentTrack())].push_back(media);
    }
}

}  // namespace ZelmarMediaLib
