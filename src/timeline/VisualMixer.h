#pragma once
// The stack of visual tracks, and the scene's camera: eye, look-at point, up vector, field of view, clip distances.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Rect.h>
#include <ZelmarMediaLib/datatypes/TransformMatrix.h>
#include <ZelmarMediaLib/parameters/Transformer.h>
#include <ZelmarMediaLib/timeline/Mixer.h>

namespace ZelmarMediaLib {

class AbstractVisualTrack;
template <class T>
class Attribute;
template <class T>
class InterpolatingParam;
class Point;
class VectorParam;

// The Transformer side acts on the mixer as a whole; its parameters are not among the 12
// camera parameters.
class ZML_EXPORT VisualMixer : public Mixer, public Transformer {
public:
    // The camera starts at (0, 0, 3000) looking at the origin with y up, with a field of
    // view at which a picture of the mixer's height at the look-at plane fills the view.
    VisualMixer(float width, float height, weak_ptr<ThreadSafe const> project);
    // Clones the attributes, the parameters and every track with its medias.
    VisualMixer(VisualMixer const& other);
    // The same without the tracks, which a portion copy adds itself.
    VisualMixer(VisualMixer const& other, WithoutTracks);
    ~VisualMixer() override;

    // The six camera parameters, each named by its role.
    void xmlOfParameters(XMLable::Options& options, int indent) const override;
    // width and height.
    void xmlOfAttributes(XMLable::Options& options, int indent) const override;
    int numAttributes() const override;
    VisualMixer* clone() const override;
    int numParameters() const override;
    // The components of eye, look-at and up, then fov, near and far.
    ParameterVector* parameterVector() const override;
    // Takes only a VisualTrack; anything else, an ImageTrack too, raises TypeException
    // "VisualTrack".
    void addTrack(shared_ptr<Track> track, int index) override;
    TrackList& trackList() override;
    TrackList const& trackList() const override;
    void xmlName(XMLable::Options& options) const override;
    // The mixer's body, then the transformer.
    void xmlBody(XMLable::Options& options, int indent) const override;

    // Raises IndexException at or past the end.
    shared_ptr<AbstractVisualTrack> trackAtIndex(unsigned int index);
    shared_ptr<AbstractVisualTrack const> trackAtIndex(unsigned int index) const;

    shared_ptr<Attribute<float> const> attributeWidth() const;
    shared_ptr<Attribute<float> const> attributeHeight() const;

    shared_ptr<VectorParam> eyePositionParam();
    shared_ptr<VectorParam const> eyePositionParam() const;
    shared_ptr<VectorParam> eyeLookAtPositionParam();
    shared_ptr<VectorParam const> eyeLookAtPositionParam() const;
    shared_ptr<VectorParam> eyeUpVectorParam();
    shared_ptr<VectorParam const> eyeUpVectorParam() const;
    // Kept, saved and keyframed, but the projection doesn't read it.
    shared_ptr<InterpolatingParam<float> > fovParam();
    shared_ptr<InterpolatingParam<float> const> fovParam() const;
    shared_ptr<InterpolatingParam<float> > nearClipDistanceParam();
    shared_ptr<InterpolatingParam<float> const> nearClipDistanceParam() const;
    shared_ptr<InterpolatingParam<float> > farClipDistanceParam();
    shared_ptr<InterpolatingParam<float> const> farClipDistanceParam() const;

    TransformMatrix cameraTransformAtTime(long long time) const;
    TransformMatrix cameraTransformAtTimeLH(long long time) const;
    // The angle comes afresh from the eye's distance and the viewport's height, not from fov.
    // A viewport of height 0 gives an infinite aspect; nothing guards against it.
    TransformMatrix projectionTransformAtTime(long long time, Rect<int> viewport) const;
    TransformMatrix projectionTransformAtTimeLH(long long time, Rect<int> viewport) const;
    double distanceBetweenEyeAndLookAt(long long time) const;

    shared_ptr<VisualMixer> copyPortion(Range<long long> const& range, TrackSet const& tracks,
                                        Track::CloneMap* cloneMap) const;
    shared_ptr<VisualMixer> copyPortion(std::vector<shared_ptr<Media const> > const& medias,
                                        Track::CloneMap* cloneMap) const;

private:
    Point eyeAtTime(long long time) const;
    Point lookAtAtTime(long long time) const;
    Point upAtTime(long long time) const;

    shared_ptr<Attribute<float> > width_;
    shared_ptr<Attribute<float> > height_;
    shared_ptr<VectorParam> eyePosition_;
    shared_ptr<VectorParam> eyeLookAtPosition_;
    shared_ptr<VectorParam> eyeUpVector_;
    shared_ptr<InterpolatingParam<float> > fov_;
    shared_ptr<InterpolatingParam<float> > nearClipDistance_;
    shared_ptr<InterpolatingParam<float> > farClipDistance_;
    // Only visual tracks enter, through addTrack.
    TrackList tracks_;
};

}  // namespace ZelmarMediaLib
