#pragma once
// A media with a picture: placed by a transform, cropped at its source and its geometry, with an opacity.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Rect.h>
#include <ZelmarMediaLib/datatypes/TransformMatrix.h>
#include <ZelmarMediaLib/parameters/Transformer.h>
#include <ZelmarMediaLib/timeline/MediaImpl.h>

namespace ZelmarMediaLib {

class VectorParam;
template <class T>
class InterpolatingParam;

class ZML_EXPORT VisualMedia : public MediaImpl, public Transformer {
public:
    ~VisualMedia() override;

    // The transformer group, the two crops and the opacity, each counted as one.
    int numParameters() const override;
    // The transformer's parameters, the source crop, the geometry crop, the opacity.
    ParameterVector* parameterVector() const override;
    void xmlOfParameters(XMLable::Options& options, int indent) const override;
    void xmlName(XMLable::Options& options) const override;
    // The transformer group first, then what every media writes.
    void xmlBody(XMLable::Options& options, int indent) const override;

    virtual float width() const = 0;
    virtual float height() const = 0;
    virtual TransformMatrix transformAtTime(long long time) const;

    // Picture coordinates with the origin at the lower left corner.
    Rect<double> sourceCropRectAtTime(long long time) const;
    // Centred on the media's own origin, as the geometry is.
    Rect<double> geometryCropRectAtTime(long long time) const;

    // Components in index order: left, top, right, bottom.
    shared_ptr<VectorParam> sourceCropParam();
    shared_ptr<VectorParam const> sourceCropParam() const;
    shared_ptr<VectorParam> geometryCropParam();
    shared_ptr<VectorParam const> geometryCropParam() const;
    shared_ptr<InterpolatingParam<double> > opacity();
    shared_ptr<InterpolatingParam<double> const> opacity() const;

protected:
    VisualMedia(Range<long long> const& range, double startLimit, double durationLimit,
                weak_ptr<ThreadSafe const> project);
    VisualMedia(VisualMedia const& other);

private:
    // The four crop components at the media's parameter time.
    void cropAtTime(VectorParam const& crop, long long time, double* components) const;

    shared_ptr<VectorParam> sourceCrop_;
    shared_ptr<VectorParam> geometryCrop_;
    shared_ptr<InterpolatingParam<double> > opacity_;
};

}  // namespace ZelmarMediaLib
