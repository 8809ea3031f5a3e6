#include <ZelmarMediaLib/timeline/ImageMedia.h>

#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/timeline/StaticEditor.h>

namespace ZelmarMediaLib {

ImageMedia::ImageMedia(long long start, long long duration, double mediaStart, double mediaDuration,
                       weak_ptr<ThreadSafe const> project)
    : VisualMedia(Range<long long>(start, duration), mediaStart, mediaDuration, project),
      trimStartSum_(0),
      editor_(new StaticEditor(this, &trimStartSum_)) {}

ImageMedia::ImageMedia(ImageMedia const& other)
    : XMLIdentified(other), VisualMedia(other), trimStartSum_(other.trimStartSum_),
      editor_(new StaticEditor(this, &trimStartSum_)) {}

ImageMedia::~ImageMedia() = default;

MediaEditor* ImageMedia::mediaEditor() {
    return editor_.get();
}

MediaEditor const* ImageMedia::mediaEditor() const {
    return editor_.get();
}

double ImageMedia::toParameterTime(double time) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return static_cast<double>(trimStartSum_) + time / scalar();
}

double ImageMedia::fromParameterTime(double time) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return (time - static_cast<double>(trimStartSum_)) * scalar();
}

void ImageMedia::xmlName(XMLable::Options& options) const {
    *options.stream << "ImageMedia";
}

long long ImageMedia::trimStartSum() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return trimStartSum_;
}

}  // namespace ZelmarMediaLib
