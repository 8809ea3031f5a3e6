#include <ZelmarMediaLib/timeline/VisualMixer.h>

#include <ZelmarMediaLib/datatypes/Point.h>
#include <ZelmarMediaLib/datatypes/VectorUtil.h>
#include <ZelmarMediaLib/exceptions/TypeException.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/parameters/VectorParam.h>
#include <ZelmarMediaLib/timeline/AbstractVisualTrack.h>
#include <ZelmarMediaLib/timeline/VisualTrack.h>

#include <cmath>
#include <ostream>

namespace ZelmarMediaLib {

namespace {

shared_ptr<VectorParam> makeVector(weak_ptr<ThreadSafe const> const& project, std::string const& name, double x,
                                   double y, double z) {
    shared_ptr<VectorParam> vector = boost::make_shared<VectorParam>(project, 3, name);
    vector->at(0)->addKeyFrame(0, x);
    vector->at(1)->addKeyFrame(0, y);
    vector->at(2)->addKeyFrame(0, z);
    return vector;
}

shared_ptr<InterpolatingParam<float> > makeFloat(weak_ptr<ThreadSafe const> const& project, std::string const& name,
                                                 float value) {
    shared_ptr<InterpolatingParam<float> > parameter = boost::make_shared<InterpolatingParam<float> >(project, name);
    parameter->addKeyFrame(0, value);
    return parameter;
}

Point pointAtTime(VectorParam const& vector, long long time) {
    double const at = static_cast<double>(time);
    return Point(vector.at(0)->valueAtTime(at), vector.at(1)->valueAtTime(at), vector.at(2)->valueAtTime(at));
}

double const defaultEyeZ = 3000.0;

struct Projection {
    double angle;
    double aspect;
    double zNear;
    double zFar;
};

Projection projectionAtTime(VisualMixer const& mixer, long long time, Rect<int> const& viewport) {
    double const height = static_cast<double>(viewport.height);
    double const at = static_cast<double>(time);
    // Each clip parameter is taken under the read lock and read outside it.
    return Projection{2.0 * std::atan2(height * 0.5, mixer.distanceBetweenEyeAndLookAt(time)),
                      static_cast<double>(viewport.width) / height,
                      static_cast<double>(mixer.nearClipDistanceParam()->valueAtTime(at)),
                      static_cast<double>(mixer.farClipDistanceParam()->valueAtTime(at))};
}

}  // namespace

VisualMixer::VisualMixer(float width, float height, weak_ptr<ThreadSafe const> project)
    : Mixer(project),
      Transformer(project),
      width_(boost::make_shared<Attribute<float> >(width, project)),
      height_(boost::make_shared<Attribute<float> >(height, project)),
      eyePosition_(makeVector(project, "eyePosition", 0.0, 0.0, defaultEyeZ)),
      eyeLookAtPosition_(makeVector(project, "eyeLookAtPosition", 0.0, 0.0, 0.0)),
      eyeUpVector_(makeVector(project, "eyeUpVector", 0.0, 1.0, 0.0)),
      fov_(makeFloat(project, "fov", static_cast<float>(2.0 * std::atan2(height * 0.5, defaultEyeZ - 0.0)))),
      nearClipDistance_(makeFloat(project, "nearClipDistance", 1.5f)),
      farClipDistance_(makeFloat(project, "farClipDistance", 6000.0f)) {}

VisualMixer::VisualMixer(VisualMixer const& other) : VisualMixer(other, WithoutTracks()) {
    for (shared_ptr<Track> const& track : other.tracks_)
        tracks_.push_back(sharedClone(track));
}

VisualMixer::VisualMixer(VisualMixer const& other, WithoutTracks)
    : XMLIdentified(other),
      Mixer(other),
      Transformer(other),
      width_(other.width_->clone()),
      height_(other.height_->clone()),
      eyePosition_(other.eyePosition_->clone()),
      eyeLookAtPosition_(other.eyeLookAtPosition_->clone()),
      eyeUpVector_(other.eyeUpVector_->clone()),
      fov_(other.fov_->clone()),
      nearClipDistance_(other.nearClipDistance_->clone()),
      farClipDistance_(other.farClipDistance_->clone()) {}

VisualMixer::~VisualMixer() = default;

void VisualMixer::xmlOfParameters(XMLable::Options& options, int indent) const {
    eyePosition_->toXML(options, indent, "name=\"eyePosition\"");
    eyeLookAtPosition_->toXML(options, indent, "name=\"eyeLookAtPosition\"");
    eyeUpVector_->toXML(options, indent, "name=\"eyeUpVector\"");
    fov_->toXML(options, indent, "name=\"fov\"");
    nearClipDistance_->toXML(options, indent, "name=\"nearClipDistance\"");
    farClipDistance_->toXML(options, indent, "name=\"farClipDistance\"");
}

void VisualMixer::xmlOfAttributes(XMLable::Options& options, int indent) const {
    width_->toXML(options, indent, "name=\"width\"");
    height_->toXML(options, indent, "name=\"height\"");
}

int VisualMixer::numAttributes() const {
    return 2;
}

VisualMixer* VisualMixer::clone() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return new VisualMixer(*this);
}

int VisualMixer::numParameters() const {
    return 12;
}

ParameterVector* VisualMixer::parameterVector() const {
    ParameterVector* parameters = new ParameterVector(projectMutex());
    Parametric::addVectorParamToParameters(eyePosition_, parameters);
    Parametric::addVectorParamToParameters(eyeLookAtPosition_, parameters);
    Parametric::addVectorParamToParameters(eyeUpVector_, parameters);
    parameters->push_back(fov_);
    parameters->push_back(nearClipDistance_);
    parameters->push_back(farClipDistance_);
    return parameters;
}

void VisualMixer::addTrack(shared_ptr<Track> track, int index) {
    // The list is typed for both picture kinds, but only a VisualTrack may stand in it.
    if (!dynamic_pointer_cast<VisualTrack>(track))
        throw TypeException("VisualTrack");
    addTrackSansTypeCheck(track, index);
}

Mixer::TrackList& VisualMixer::trackList() {
    return tracks_;
}

Mixer::TrackList const& VisualMixer::trackList() const {
    return tracks_;
}

void VisualMixer::xmlName(XMLable::Options& options) const {
    *options.stream << "VisualMixer";
}

void VisualMixer::xmlBody(XMLable::Options& options, int indent) const {
    Mixer::xmlBody(options, indent);
    genXMLForTransformer(options, indent);
}

shared_ptr<AbstractVisualTrack> VisualMixer::trackAtIndex(unsigned int index) {
    return static_pointer_cast<AbstractVisualTrack>(Mixer::trackAtIndex(index));
}

shared_ptr<AbstractVisualTrack const> VisualMixer::trackAtIndex(unsigned int index) const {
    return static_pointer_cast<AbstractVisualTrack const>(Mixer::trackAtIndex(index));
}

shared_ptr<Attribute<float> const> VisualMixer::attributeWidth() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return width_;
}

shared_ptr<Attribute<float> const> VisualMixer::attributeHeight() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return height_;
}

shared_ptr<VectorParam> VisualMixer::eyePositionParam() {
    return eyePosition_;
}

shared_ptr<VectorParam const> VisualMixer::eyePositionParam() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return eyePosition_;
}

shared_ptr<VectorParam> VisualMixer::eyeLookAtPositionParam() {
    return eyeLookAtPosition_;
}

shared_ptr<VectorParam const> VisualMixer::eyeLookAtPositionParam() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return eyeLookAtPosition_;
}

shared_ptr<VectorParam> VisualMixer::eyeUpVectorParam() {
    return eyeUpVector_;
}

shared_ptr<VectorParam const> VisualMixer::eyeUpVectorParam() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return eyeUpVector_;
}

shared_ptr<InterpolatingParam<float> > VisualMixer::fovParam() {
    return fov_;
}

shared_ptr<InterpolatingParam<float> const> VisualMixer::fovParam() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return fov_;
}

shared_ptr<InterpolatingParam<float> > VisualMixer::nearClipDistanceParam() {
    return nearClipDistance_;
}

shared_ptr<InterpolatingParam<float> const> VisualMixer::nearClipDistanceParam() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return nearClipDistance_;
}

shared_ptr<InterpolatingParam<float> > VisualMixer::farClipDistanceParam() {
    return farClipDistance_;
}

shared_ptr<InterpolatingParam<float> const> VisualMixer::farClipDistanceParam() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return farClipDistance_;
}

TransformMatrix VisualMixer::cameraTransformAtTime(long long time) const {
    return TransformMatrix::cameraLookAt(eyeAtTime(time), lookAtAtTime(time), upAtTime(time));
}

TransformMatrix VisualMixer::cameraTransformAtTimeLH(long long time) const {
    return TransformMatrix::cameraLookAtLH(eyeAtTime(time), lookAtAtTime(time), upAtTime(time));
}

TransformMatrix VisualMixer::projectionTransformAtTime(long long time, Rect<int> viewport) const {
    Projection const projection = projectionAtTime(*this, time, viewport);
    return TransformMatrix::perspectiveProjection(projection.angle, projection.aspect, projection.zNear,
                                                  projection.zFar);
}

TransformMatrix VisualMixer::projectionTransformAtTimeLH(long long time, Rect<int> viewport) const {
    Projection const projection = projectionAtTime(*this, time, viewport);
    return TransformMatrix::perspectiveProjectionLH(projection.angle, projection.aspect, projection.zNear,
                                                    projection.zFar);
}

double VisualMixer::distanceBetweenEyeAndLookAt(long long time) const {
    return VectorUtil::length(eyeAtTime(time) - lookAtAtTime(time));
}

shared_ptr<VisualMixer> VisualMixer::copyPortion(Range<long long> const& range, TrackSet const& tracks,
                                                 Track::CloneMap* cloneMap) const {
    return copyPortionImpl(this, range, tracks, cloneMap);
}

shared_ptr<VisualMixer> VisualMixer::copyPortion(std::vector<shared_ptr<Media const> > const& medias,
                                                 Track::CloneMap* cloneMap) const {
    return copyPortionImpl(this, medias, cloneMap);
}

Point VisualMixer::eyeAtTime(long long time) const {
    return pointAtTime(*eyePositionParam(), time);
}

Point VisualMixer::lookAtAtTime(long long time) const {
    return pointAtTime(*eyeLookAtPositionParam(), time);
}

Point VisualMixer::upAtTime(long long time) const {
    return pointAtTime(*eyeUpVectorParam(), time);
}

}  // namespace ZelmarMediaLib
