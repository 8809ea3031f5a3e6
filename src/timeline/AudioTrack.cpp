#include <ZelmarMediaLib/timeline/AudioTrack.h>

#include <ZelmarMediaLib/datatypes/AudioPosition.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/exceptions/TypeException.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/timeline/AMFile.h>
#include <ZelmarMediaLib/timeline/AudioTransition.h>
#include <ZelmarMediaLib/timeline/MediaDispatcher.h>
#include <ZelmarMediaLib/timeline/TrackDispatcher.h>

#include <ostream>
#include <typeinfo>

namespace ZelmarMediaLib {

class AudioTrack::MediaAdder : public MediaDispatcher {
public:
    MediaAdder(AudioTrack* track, long long start) : track_(track), start_(start) {}

    void dispatchMedia(shared_ptr<VMFile>) override { throw TypeException("Trying to add a VMFile to an AudioTrack"); }
    void dispatchMedia(shared_ptr<AMFile> media) override { track_->addMediaSansTypeCheck(media, start_); }
    void dispatchMedia(shared_ptr<IMFile>) override { throw TypeException("Trying to add a IMFile to an AudioTrack"); }
    void dispatchMedia(shared_ptr<ImageTransition>) override { throw TypeException("can't add transitions yet"); }
    void dispatchMedia(shared_ptr<AudioTransition> media) override { track_->addMediaSansTypeCheck(media, start_); }
    void dispatchMedia(shared_ptr<TextBox>) override { throw TypeException("Trying to add a TextBox to an AudioTrack"); }
    void dispatchMedia(shared_ptr<Callout>) override { throw TypeException("Trying to add a Callout to an AudioTrack"); }

private:
    AudioTrack* track_;
    long long start_;
};

AudioTrack::AudioTrack(weak_ptr<ThreadSafe const> project)
    : Track(project), position_(boost::make_shared<InterpolatingParam<AudioPosition> >(project, "position")) {
    position_->addKeyFrame(0, AudioPosition());
}

AudioTrack::AudioTrack(AudioTrack const& other)
    : XMLIdentified(other), Track(other), position_(other.position_->clone()) {}

AudioTrack::~AudioTrack() = default;

AudioTrack* AudioTrack::clone() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return new AudioTrack(*this);
}

void AudioTrack::receiveDispatcher(ConstTrackDispatcher* dispatcher) const {
    dispatcher->dispatchTrack(static_pointer_cast<AudioTrack const>(shared_from_this()));
}

void AudioTrack::receiveDispatcher(TrackDispatcher* dispatcher) {
    dispatcher->dispatchTrack(static_pointer_cast<AudioTrack>(shared_from_this()));
}

void AudioTrack::addMedia(shared_ptr<Media> media, long long start) {
    if (!media)
        throw ValueException<shared_ptr<Media> >("trying to add a null media", media);
    MediaAdder adder(this, start);
    media->receiveDispatcher(&adder);
}

void AudioTrack::addUntypedMedia(shared_ptr<Media> media, long long start) {
    if (!dynamic_pointer_cast<AudioMedia>(media))
        throw TypeException(typeid(shared_ptr<Media>).name());
    addMediaSansTypeCheck(media, start);
}

Track::MediaMap& AudioTrack::medias() {
    return medias_;
}

Track::MediaMap const& AudioTrack::medias() const {
    return medias_;
}

int AudioTrack::numParameters() const {
    return 1;
}

ParameterVector* AudioTrack::parameterVector() const {
    ParameterVector* parameters = new ParameterVector(projectMutex());
    parameters->push_back(position_);
    return parameters;
}

void AudioTrack::xmlOfParameters(XMLable::Options& options, int indent) const {
    position_->toXML(options, indent, "name=\"position\"");
}

void AudioTrack::xmlOfAttributes(XMLable::Options& options, int indent) const {
    identAttribute()->toXML(options, indent, "name=\"ident\"");
}

void AudioTrack::xmlName(XMLable::Options& options) const {
    *options.stream << "AudioTrack";
}

shared_ptr<InterpolatingParam<AudioPosition> > AudioTrack::positionParam() {
    return position_;
}

shared_ptr<InterpolatingParam<AudioPosition> const> AudioTrack::positionParam() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return position_;
}

AudioTrack::AudioMediaMap AudioTrack::audioMedias() const {
    return AudioMediaMap(medias_);
}

ConstIterator<AudioTrack::AudioMediaMap> AudioTrack::audioMediaBegin() const {
    shared_ptr<ReadWriteMutex::ScopedReadLock> lock = boost::make_shared<ReadWriteMutex::ScopedReadLock>(&mutex());
    return ConstIterator<AudioMediaMap>(audioMedias().begin(), lock);
}

ConstIterator<AudioTrack::AudioMediaMap> AudioTrack::audioMediaEnd() const {
    shared_ptr<ReadWriteMutex::ScopedReadLock> lock = boost::make_shared<ReadWriteMutex::ScopedReadLock>(&mutex());
    return ConstIterator<AudioMediaMap>(audioMedias().end(), lock);
}

AudioTrack::AudioMediaMap::const_iterator AudioTrack::audioMediaBegin() {
    return audioMedias().begin();
}

AudioTrack::AudioMediaMap::const_iterator AudioTrack::audioMediaEnd() {
    return audioMedias().end();
}

ConstIterator<AudioTrack::AudioMediaMap> AudioTrack::typeSafeMediaBegin() const {
    return audioMediaBegin();
}

ConstIterator<AudioTrack::AudioMediaMap> AudioTrack::typeSafeMediaEnd() const {
    return audioMediaEnd();
}

shared_ptr<TrackSubSection<AudioMedia> > AudioTrack::subSection(Range<long long> const& range) const {
    return subSectionImpl(this, range);
}

bool AudioTrack::allMediasAreValid() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    for (MediaMap::value_type const& entry : medias_) {
        if (!dynamic_pointer_cast<AudioMedia const>(entry.second))
            return false;
    }
    return true;
}

}  // namespace ZelmarMediaLib
