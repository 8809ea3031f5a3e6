#include <ZelmarMediaLib/timeline/VisualMedia.h>

#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/parameters/VectorParam.h>

namespace ZelmarMediaLib {

namespace {

shared_ptr<VectorParam> newCrop(weak_ptr<ThreadSafe const> const& project, char const* name) {
    shared_ptr<VectorParam> crop = boost::make_shared<VectorParam>(project, 4, name);
    for (int i = 0; i < 4; ++i)
        crop->at(i)->addKeyFrame(0, 0.0);
    return crop;
}

}  // namespace

VisualMedia::VisualMedia(Range<long long> const& range, double startLimit, double durationLimit,
                         weak_ptr<ThreadSafe const> project)
    : MediaImpl(range, startLimit, durationLimit, project),
      Transformer(project),
      sourceCrop_(newCrop(project, "sourceCrop")),
      geometryCrop_(newCrop(project, "geometryCrop")),
      opacity_(boost::make_shared<InterpolatingParam<double> >(project, "opacity")) {
    opacity_->addKeyFrame(0, 1.0);
}

VisualMedia::VisualMedia(VisualMedia const& other)
    : XMLIdentified(other),
      MediaImpl(other),
      Transformer(other),
      sourceCrop_(other.sourceCrop_->clone()),
      geometryCrop_(other.geometryCrop_->clone()),
      opacity_(other.opacity_->clone()) {}

VisualMedia::~VisualMedia() = default;

int VisualMedia::numParameters() const {
    return 4;
}

ParameterVector* VisualMedia::parameterVector() const {
    ParameterVector* parameters = new ParameterVector(projectMutex());
    addTransformerParametersToParameters(this, parameters);
    addVectorParamToParameters(sourceCrop_, parameters);
    addVectorParamToParameters(geometryCrop_, parameters);
    parameters->push_back(opacity_);
    return parameters;
}

void VisualMedia::xmlOfParameters(XMLable::Options& options, int indent) const {
    MediaImpl::xmlOfParameters(options, indent);
    sourceCrop_->toXML(options, indent, "name=\"sourceCrop\"");
    geometryCrop_->toXML(options, indent, "name=\"geometryCrop\"");
    opacity_->toXML(options, indent, "name=\"opacity\"");
}

void VisualMedia::xmlName(XMLable::Options& options) const {
    *options.stream << "VisualMedia";
}

void VisualMedia::xmlBody(XMLable::Options& options, int indent) const {
    genXMLForTransformer(options, indent);
    MediaImpl::xmlBody(options, indent);
}

TransformMatrix VisualMedia::transformAtTime(long long time) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return calcTransformAtTime(this, time);
}

void VisualMedia::cropAtTime(VectorParam const& crop, long long time, double* components) const {
    double const parameterTime = toParameterTime(static_cast<double>(time));
    for (int i = 0; i < 4; ++i)
        components[i] = crop.at(i)->valueAtTime(parameterTime);
}

Rect<double> VisualMedia::sourceCropRectAtTime(long long time) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    double c[4];
    cropAtTime(*sourceCrop_, time, c);
    return Rect<double>(c[0], c[3], width() - c[0] - c[2], height() - c[1] - c[3]);
}

Rect<double> VisualMedia::geometryCropRectAtTime(long long time) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    double c[4];
    cropAtTime(*geometryCrop_, time, c);
    double const w = width(), h = height();
    return Rect<double>(c[0] - w / 2, c[3] - h / 2, w - c[0] - c[2], h - c[1] - c[3]);
}

shared_ptr<VectorParam> VisualMedia::sourceCropParam() {
    return sourceCrop_;
}

shared_ptr<VectorParam const> VisualMedia::sourceCropParam() const {
    return sourceCrop_;
}

shared_ptr<VectorParam> VisualMedia::geometryCropParam() {
    return geometryCrop_;
}

shared_ptr<VectorParam const> VisualMedia::geometryCropParam() const {
    return geometryCrop_;
}

shared_ptr<InterpolatingParam<double> > VisualMedia::opacity() {
    return opacity_;
}

shared_ptr<InterpolatingParam<double> const> VisualMedia::opacity() const {
    return opacity_;
}

}  // namespace ZelmarMediaLib
