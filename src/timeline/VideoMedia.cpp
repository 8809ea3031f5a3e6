#include <ZelmarMediaLib/timeline/VideoMedia.h>

#include <ZelmarMediaLib/timeline/TemporalEditor.h>

namespace ZelmarMediaLib {

VideoMedia::VideoMedia(Range<long long> const& range, double startLimit, double durationLimit,
                       weak_ptr<ThreadSafe const> project)
    : VisualMedia(range, startLimit, durationLimit, project), editor_(new TemporalEditor(this)) {}

VideoMedia::VideoMedia(VideoMedia const& other)
    : XMLIdentified(other), VisualMedia(other), editor_(new TemporalEditor(this)) {}

VideoMedia::~VideoMedia() = default;

std::string VideoMedia::description() const {
    return "videomedia";
}

MediaEditor* VideoMedia::mediaEditor() {
    return editor_.get();
}

MediaEditor const* VideoMedia::mediaEditor() const {
    return editor_.get();
}

void VideoMedia::xmlName(XMLable::Options& options) const {
    *options.stream << "VideoMedia";
}

}  // namespace ZelmarMediaLib
