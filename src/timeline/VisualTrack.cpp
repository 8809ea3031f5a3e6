#include <ZelmarMediaLib/timeline/VisualTrack.h>

#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/exceptions/TypeException.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/timeline/AbstractIMFile.h>
#include <ZelmarMediaLib/timeline/Callout.h>
#include <ZelmarMediaLib/timeline/ImageTransition.h>
#include <ZelmarMediaLib/timeline/MediaDispatcher.h>
#include <ZelmarMediaLib/timeline/TextBox.h>
#include <ZelmarMediaLib/timeline/TrackDispatcher.h>
#include <ZelmarMediaLib/timeline/VMFile.h>

#include <ostream>

namespace ZelmarMediaLib {

class VisualTrack::MediaAdder : public MediaDispatcher {
public:
    MediaAdder(VisualTrack* track, long long start) : track_(track), start_(start) {}

    void dispatchMedia(shared_ptr<VMFile> media) override { track_->addMediaSansTypeCheck(media, start_); }
    void dispatchMedia(shared_ptr<AMFile>) override { throw TypeException("Trying to add a AMFile to an VisualTrack"); }
    void dispatchMedia(shared_ptr<IMFile> media) override { track_->addMediaSansTypeCheck(media, start_); }
    void dispatchMedia(shared_ptr<ImageTransition> media) override { track_->addMediaSansTypeCheck(media, start_); }
    void dispatchMedia(shared_ptr<AudioTransition>) override {
        throw TypeException("can't add audio transitions to visual tracks");
    }
    void dispatchMedia(shared_ptr<TextBox> media) override { track_->addMediaSansTypeCheck(media, start_); }
    void dispatchMedia(shared_ptr<Callout> media) override { track_->addMediaSansTypeCheck(media, start_); }

private:
    VisualTrack* track_;
    long long start_;
};

VisualTrack::VisualTrack(weak_ptr<ThreadSafe const> project) : AbstractVisualTrack(project) {}

VisualTrack::VisualTrack(VisualTrack const& other) : XMLIdentified(other), AbstractVisualTrack(other) {}

VisualTrack::~VisualTrack() = default;

VisualTrack* VisualTrack::clone() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return new VisualTrack(*this);
}

void VisualTrack::receiveDispatcher(ConstTrackDispatcher* dispatcher) const {
    dispatcher->dispatchTrack(static_pointer_cast<VisualTrack const>(shared_from_this()));
}

void VisualTrack::receiveDispatcher(TrackDispatcher* dispatcher) {
    dispatcher->dispatchTrack(static_pointer_cast<VisualTrack>(shared_from_this()));
}

void VisualTrack::addMedia(shared_ptr<Media> media, long long start) {
    if (!media)
        throw ValueException<shared_ptr<Media> >("trying to add a null media", media);
    MediaAdder adder(this, start);
    media->receiveDispatcher(&adder);
}

Track::MediaMap& VisualTrack::medias() {
    return medias_;
}

Track::MediaMap const& VisualTrack::medias() const {
    return medias_;
}

void VisualTrack::xmlOfAttributes(XMLable::Options& options, int indent) const {
    identAttribute()->toXML(options, indent, "name=\"ident\"");
}

void VisualTrack::xmlName(XMLable::Options& options) const {
    *options.stream << "VisualTrack";
}

shared_ptr<TrackSubSection<VisualMedia> > VisualTrack::subSection(Range<long long> const& range) const {
    return subSectionImpl(this, range);
}

}  // namespace ZelmarMediaLib
