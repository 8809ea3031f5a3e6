#include <ZelmarMediaLib/timeline/ImageTrack.h>

#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/exceptions/TypeException.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/timeline/AbstractIMFile.h>
#include <ZelmarMediaLib/timeline/Callout.h>
#include <ZelmarMediaLib/timeline/ImageMedia.h>
#include <ZelmarMediaLib/timeline/ImageTransition.h>
#include <ZelmarMediaLib/timeline/MediaDispatcher.h>
#include <ZelmarMediaLib/timeline/TextBox.h>
#include <ZelmarMediaLib/timeline/TrackDispatcher.h>

#include <ostream>

namespace ZelmarMediaLib {

class ImageTrack::MediaAdder : public MediaDispatcher {
public:
    MediaAdder(ImageTrack* track, long long start) : track_(track), start_(start) {}

    void dispatchMedia(shared_ptr<VMFile>) override { throw TypeException("Trying to add a VMFile to an ImageTrack"); }
    void dispatchMedia(shared_ptr<AMFile>) override { throw TypeException("Trying to add a AMFile to an ImageTrack"); }
    void dispatchMedia(shared_ptr<IMFile> media) override { track_->addMediaSansTypeCheck(media, start_); }
    void dispatchMedia(shared_ptr<ImageTransition> media) override { track_->addMediaSansTypeCheck(media, start_); }
    void dispatchMedia(shared_ptr<AudioTransition>) override { throw TypeException("can't add transitions yet"); }
    void dispatchMedia(shared_ptr<TextBox> media) override { track_->addMediaSansTypeCheck(media, start_); }
    void dispatchMedia(shared_ptr<Callout> media) override { track_->addMediaSansTypeCheck(media, start_); }

private:
    ImageTrack* track_;
    long long start_;
};

ImageTrack::ImageTrack(weak_ptr<ThreadSafe const> project) : AbstractVisualTrack(project) {}

ImageTrack::ImageTrack(ImageTrack const& other) : XMLIdentified(other), AbstractVisualTrack(other) {}

ImageTrack::~ImageTrack() = default;

ImageTrack* ImageTrack::clone() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return new ImageTrack(*this);
}

void ImageTrack::receiveDispatcher(ConstTrackDispatcher* dispatcher) const {
    dispatcher->dispatchTrack(static_pointer_cast<ImageTrack const>(shared_from_this()));
}

void ImageTrack::receiveDispatcher(TrackDispatcher* dispatcher) {
    dispatcher->dispatchTrack(static_pointer_cast<ImageTrack>(shared_from_this()));
}

void ImageTrack::addMedia(shared_ptr<Media> media, long long start) {
    if (!media)
        throw ValueException<shared_ptr<Media> >("trying to add a null media", media);
    MediaAdder adder(this, start);
    media->receiveDispatcher(&adder);
}

Track::MediaMap& ImageTrack::medias() {
    return medias_;
}

Track::MediaMap const& ImageTrack::medias() const {
    return medias_;
}

int ImageTrack::numParameters() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return AbstractVisualTrack::numParameters();
}

int ImageTrack::numAttributes() const {
    return 0;
}

void ImageTrack::xmlOfAttributes(XMLable::Options&, int) const {}

void ImageTrack::xmlName(XMLable::Options& options) const {
    *options.stream << "ImageTrack";
}

ImageTrack::ImageMediaMap ImageTrack::imageMedias() const {
    return ImageMediaMap(medias_);
}

ConstIterator<ImageTrack::ImageMediaMap> ImageTrack::imageMediaBegin() const {
    shared_ptr<ReadWriteMutex::ScopedReadLock> lock = boost::make_shared<ReadWriteMutex::ScopedReadLock>(&mutex());
    return ConstIterator<ImageMediaMap>(imageMedias().begin(), lock);
}

ConstIterator<ImageTrack::ImageMediaMap> ImageTrack::imageMediaEnd() const {
    shared_ptr<ReadWriteMutex::ScopedReadLock> lock = boost::make_shared<ReadWriteMutex::ScopedReadLock>(&mutex());
    return ConstIterator<ImageMediaMap>(imageMedias().end(), lock);
}

ImageTrack::ImageMediaMap::const_iterator ImageTrack::imageMediaBegin() {
    return imageMedias().begin();
}

ImageTrack::ImageMediaMap::const_iterator ImageTrack::imageMediaEnd() {
    return imageMedias().end();
}

ConstIterator<ImageTrack::ImageMediaMap> ImageTrack::typeSafeMediaBegin() const {
    return imageMediaBegin();
}

ConstIterator<ImageTrack::ImageMediaMap> ImageTrack::typeSafeMediaEnd() const {
    return imageMediaEnd();
}

shared_ptr<TrackSubSection<ImageMedia> > ImageTrack::subSection(Range<long long> const& range) const {
    return subSectionImpl(this, range);
}

bool ImageTrack::allMediasAreImageMedias() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    for (MediaMap::value_type const& entry : medias_) {
        if (!dynamic_pointer_cast<ImageMedia const>(entry.second))
            return false;
    }
    return true;
}

}  // namespace ZelmarMediaLib
