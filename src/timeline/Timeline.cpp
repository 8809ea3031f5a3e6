#include <ZelmarMediaLib/timeline/Timeline.h>

#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/parameters/LeftParameter.h>
#include <ZelmarMediaLib/timeline/AbstractVisualTrack.h>
#include <ZelmarMediaLib/timeline/AudioMixer.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>
#include <ZelmarMediaLib/timeline/LinkUtil.h>
#include <ZelmarMediaLib/timeline/VisualMixer.h>

#include <algorithm>
#include <ostream>

namespace ZelmarMediaLib {

namespace {

void appendMedias(Mixer const& mixer, Track::MediaList& medias) {
    for (ConstIterator<Mixer::TrackList> track = mixer.trackBegin(), end = mixer.trackEnd(); track != end; ++track) {
        Track const& tracked = **track;
        for (ConstIterator<Track::MediaMap> entry = tracked.mediaBegin(), last = tracked.mediaEnd(); entry != last;
             ++entry)
            medias.push_back(entry->second);
    }
}

}  // namespace

Timeline::Timeline(weak_ptr<ThreadSafe const> project)
    : SubProject(project), marker_(boost::make_shared<LeftParameter<std::string> >(project, "marker")) {}

Timeline::Timeline(Timeline const& other) : Timeline(other, WithoutMixers()) {
    if (other.visualMixer_)
        visualMixer_.reset(other.visualMixer_->clone());
    if (other.audioMixer_)
        audioMixer_.reset(other.audioMixer_->clone());
}

Timeline::Timeline(Timeline const& other, WithoutMixers)
    : XMLIdentified(other),
      SubProject(other),
      XMLable(other),
      Subject(other),
      Temporal(other),
      Parametric(other),
      marker_(other.marker_->clone()) {}

Timeline::~Timeline() = default;

Timeline* Timeline::clone() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return new Timeline(*this);
}

shared_ptr<VisualMixer> Timeline::newVisualMixer(float width, float height) {
    return newVisualMixer(boost::make_shared<VisualMixer>(width, height, projectMutex()));
}

shared_ptr<VisualMixer> Timeline::newVisualMixer(shared_ptr<VisualMixer> mixer) {
    if (visualMixer_)
        throw AddRemoveException("Can't create a new video mixer if we already have one");
    visualMixer_ = mixer;
    Subject::notify();
    return mixer;
}

shared_ptr<VisualMixer> Timeline::removeVisualMixer() {
    if (!visualMixer_)
        throw AddRemoveException("Can't remove a video mixer if we don't have one");
    shared_ptr<VisualMixer> removed;
    removed.swap(visualMixer_);
    Subject::notify();
    return removed;
}

shared_ptr<AudioMixer> Timeline::newAudioMixer(unsigned int sampleRate, unsigned int bitDepth,
                                               unsigned int numChannels) {
    return newAudioMixer(boost::make_shared<AudioMixer>(sampleRate, bitDepth, numChannels, projectMutex()));
}

shared_ptr<AudioMixer> Timeline::newAudioMixer(shared_ptr<AudioMixer> mixer) {
    if (audioMixer_)
        throw AddRemoveException("Can't create a new audio mixer if we already have one");
    audioMixer_ = mixer;
    Subject::notify();
    return mixer;
}

shared_ptr<AudioMixer> Timeline::removeAudioMixer() {
    if (!audioMixer_)
        throw AddRemoveException("Can't remove an audio mixer if we don't have one");
    shared_ptr<AudioMixer> removed;
    removed.swap(audioMixer_);
    Subject::notify();
    return removed;
}

std::pair<shared_ptr<Track>, int> Timeline::removeTrack(shared_ptr<Mixer> mixer, shared_ptr<Track const> track) {
    if (!mixer)
        throw ValueException<shared_ptr<Track const> >("trying to remove a track not on mixer", track);
    return mixer->removeTrack<Track>(track);
}

std::pair<shared_ptr<AbstractVisualTrack>, int> Timeline::removeVisualTrack(
    shared_ptr<AbstractVisualTrack const> track) {
    if (!visualMixer_)
        throw AddRemoveException("Can't remove a video track if we don't have a video mixer");
    return visualMixer_->removeTrack<AbstractVisualTrack>(track);
}

std::pair<shared_ptr<AudioTrack>, int> Timeline::removeAudioTrack(shared_ptr<AudioTrack const> track) {
    if (!audioMixer_)
        throw AddRemoveException("Can't remove a audio track if we don't have an audio mixer");
    return audioMixer_->removeTrack<AudioTrack>(track);
}

long long Timeline::endTime() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    long long latest = 0;
    if (visualMixer_)
        latest = std::max(latest, visualMixer_->endTime());
    if (audioMixer_)
        latest = std::max(latest, audioMixer_->endTime());
    return latest;
}

long long Timeline::startTime() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    if (visualMixer_ && audioMixer_)
        return std::min(visualMixer_->startTime(), audioMixer_->startTime());
    if (visualMixer_)
        return visualMixer_->startTime();
    return audioMixer_ ? audioMixer_->startTime() : 0;
}

long long Timeline::duration() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return endTime() - startTime();
}

double Timeline::toParameterTime(double time) const {
    return time;
}

double Timeline::fromParameterTime(double time) const {
    return time;
}

long long Timeline::fromGlobalToParametricTime(long long time) const {
    return time;
}

int Timeline::numParameters() const {
    return 1;
}

ParameterVector* Timeline::parameterVector() const {
    ParameterVector* parameters = new ParameterVector(projectMutex());
    parameters->push_back(marker_);
    return parameters;
}

void Timeline::xmlName(XMLable::Options& options) const {
    *options.stream << "Timeline";
}

void Timeline::xmlAttributes(XMLable::Options&) const {}

void Timeline::xmlBody(XMLable::Options& options, int indent) const {
    // One level deeper than received: the format puts the mixers two levels below the
    // timeline, unlike the one level of the framework's rule.
    if (visualMixer_)
        visualMixer_->toXML(options, indent + 1, "");
    if (audioMixer_)
        audioMixer_->toXML(options, indent + 1, "");
}

shared_ptr<VisualMixer> Timeline::visualMixer() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return visualMixer_;
}

shared_ptr<AudioMixer> Timeline::audioMixer() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return audioMixer_;
}

void Timeline::addTrack(shared_ptr<Mixer> mixer, shared_ptr<Track> track, int index) {
    if (!mixer)
        throw ValueException<shared_ptr<Track> >("trying to add a track to no mixer", track);
    mixer->addTrack(track, index);
}

int Timeline::numTracks() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return (visualMixer_ ? visualMixer_->numTracks() : 0) + (audioMixer_ ? audioMixer_->numTracks() : 0);
}

shared_ptr<Track::MediaList> Timeline::allMedias() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    shared_ptr<Track::MediaList> medias = boost::make_shared<Track::MediaList>();
    if (visualMixer_)
        appendMedias(*visualMixer_, *medias);
    if (audioMixer_)
        appendMedias(*audioMixer_, *medias);
    return medias;
}

bool Timeline::hasInstanceOf(shared_ptr<Source const> source) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return (visualMixer_ && visualMixer_->hasInstanceOf(source)) || (audioMixer_ && audioMixer_->hasInstanceOf(source));
}

shared_ptr<Track::MediaList> Timeline::instancesOf(shared_ptr<Source const> source) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    shared_ptr<Track::MediaList> instances = boost::make_shared<Track::MediaList>();
    if (visualMixer_)
        instances->splice(instances->end(), *visualMixer_->instancesOf(source));
    if (audioMixer_)
        instances->splice(instances->end(), *audioMixer_->instancesOf(source));
    return instances;
}

shared_ptr<LeftParameter<std::string> > Timeline::markerParam() {
    return marker_;
}

shared_ptr<LeftParameter<std::string> const> Timeline::markerParam() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return marker_;
}

shared_ptr<Timeline> Timeline::copyPortion(Range<long long> const& range, TrackSet const& tracks,
                                           Track::CloneMap* cloneMap) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    shared_ptr<Timeline> result(new Timeline(*this, WithoutMixers()));
    Track::CloneMap ownMap;
    Track::CloneMap* const clones = cloneMap ? cloneMap : &ownMap;
    TrackSet affected;
    LinkUtil::tracksAffectedByRangeWithLinks(range, tracks, affected);
    // One map for both mixers, so that the audio mixer's linking also reaches the clones of
    // linked medias that the visual mixer made.
    if (visualMixer_) {
        shared_ptr<VisualMixer> const mixer = visualMixer_->copyPortion(range, affected, clones);
        if (mixer->numTracks() > 0)
            result->newVisualMixer(mixer);
    }
    if (audioMixer_) {
        shared_ptr<AudioMixer> const mixer = audioMixer_->copyPortion(range, affected, clones);
        if (mixer->numTracks() > 0)
            result->newAudioMixer(mixer);
    }
    return result;
}

shared_ptr<Timeline> Timeline::copyPortion(std::vector<shared_ptr<Media const> > const& medias,
                                           Track::CloneMap* cloneMap) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    shared_ptr<Timeline> result(new Timeline(*this, WithoutMixers()));
    Track::CloneMap ownMap;
    Track::CloneMap* const clones = cloneMap ? cloneMap : &ownMap;
    if (visualMixer_) {
        shared_ptr<VisualMixer> const mixer = visualMixer_->copyPortion(medias, clones);
        if (mixer->numTracks() > 0)
            result->newVisualMixer(mixer);
    }
    if (audioMixer_) {
        shared_ptr<AudioMixer> const mixer = audioMixer_->copyPortion(medias, clones);
        if (mixer->numTracks() > 0)
            result->newAudioMixer(mixer);
    }
    return result;
}

Timeline::MixerSlot Timeline::slotFor(AudioTrack const*) const {
    return MixerSlot{audioMixer_, "can't add audio tracks to mixer"};
}

Timeline::MixerSlot Timeline::slotFor(AbstractVisualTrack const*) const {
    return MixerSlot{visualMixer_, "can't add visual tracks to mixer"};
}

}  // namespace ZelmarMediaLib
