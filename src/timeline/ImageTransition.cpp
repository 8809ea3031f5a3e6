#include <ZelmarMediaLib/timeline/ImageTransition.h>

#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/edgemods/EdgeModCloneUtil.h>
#include <ZelmarMediaLib/effects/Effect.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/timeline/MediaDispatcher.h>
#include <ZelmarMediaLib/timeline/StaticEditor.h>

#include <ostream>

namespace ZelmarMediaLib {

ImageTransition::ImageTransition(long long duration, weak_ptr<ThreadSafe const> project)
    : ImageMedia(0, duration, 0.0, 0.0, project), editor_(new StaticEditor(this, nullptr)) {}

ImageTransition::ImageTransition(long long duration, shared_ptr<Effect> effect, weak_ptr<ThreadSafe const> project)
    : ImageTransition(duration, project) {
    addEffect(effect);
}

ImageTransition::ImageTransition(ImageTransition const& other)
    : XMLIdentified(other), ImageMedia(other), Transition(other), editor_(new StaticEditor(this, nullptr)) {}

ImageTransition::~ImageTransition() = default;

ImageTransition* ImageTransition::clone() const {
    return EdgeModCloneUtil::withEdgeMods(std::unique_ptr<ImageTransition>(new ImageTransition(*this)), *this);
}

void ImageTransition::receiveDispatcher(ConstMediaDispatcher* dispatcher) const {
    dispatcher->dispatchMedia(dynamic_pointer_cast<ImageTransition const>(shared_from_this()));
}

void ImageTransition::receiveDispatcher(MediaDispatcher* dispatcher) {
    dispatcher->dispatchMedia(dynamic_pointer_cast<ImageTransition>(shared_from_this()));
}

bool ImageTransition::isInstanceOf(shared_ptr<Source const>) const {
    return false;
}

MediaEditor* ImageTransition::mediaEditor() {
    return editor_.get();
}

MediaEditor const* ImageTransition::mediaEditor() const {
    return editor_.get();
}

Range<long long> ImageTransition::transitionRange() const {
    return trackRange();
}

shared_ptr<Effect const> ImageTransition::transitionEffect() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return numEffects() > 0 ? effectAtIndex(0) : shared_ptr<Effect const>();
}

shared_ptr<Media const> ImageTransition::transitionMediaRepresentation() const {
    return shared_from_this();
}

int ImageTransition::addEffect(shared_ptr<Effect> effect) {
    if (numEffects() != 0)
        throw ZelmarMediaLibException("add error: Image Transitions can only have one transition effect");
    return MediaImpl::addEffect(effect);
}

void ImageTransition::insertEffect(shared_ptr<Effect> effect, int index) {
    if (numEffects() != 0)
        throw ZelmarMediaLibException("insert error: Image Transitions can only have one transition effect");
    MediaImpl::insertEffect(effect, index);
}

void ImageTransition::setEffect(shared_ptr<Effect> effect) {
    if (numEffects() != 0)
        removeEffect(0);
    addEffect(effect);
}

TransformMatrix ImageTransition::transformAtTime(long long) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return TransformMatrix();
}

float ImageTransition::width() const {
    throw ZelmarMediaLibException("width of a transition is undefined");
}

float ImageTransition::height() const {
    throw ZelmarMediaLibException("height of a transition is undefined");
}

int ImageTransition::numParameters() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return 1;
}

int ImageTransition::numAttributes() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return 1;
}

ParameterVector* ImageTransition::parameterVector() const {
    return new ParameterVector(projectMutex());
}

void ImageTransition::xmlOfAttributes(XMLable::Options& options, int indent) const {
    identAttribute()->toXML(options, indent, "name=\"ident\"");
}

void ImageTransition::xmlName(XMLable::Options& options) const {
    *options.stream << "ImageTransition";
}

void ImageTransition::xmlAttributes(XMLable::Options& options) const {
    Range<long long> const range = trackRange();
    *options.stream << "start=\"" << range.start << "\" duration=\"" << range.duration << '"';
}

void ImageTransition::xmlBody(XMLable::Options& options, int indent) const {
    MediaImpl::xmlBody(options, indent);
}

}  // namespace ZelmarMediaLib
