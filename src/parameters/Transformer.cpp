#include <ZelmarMediaLib/parameters/Transformer.h>

#include <ZelmarMediaLib/datatypes/GraphicsUtil.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/parameters/VectorParam.h>

#include <ostream>
#include <string>

namespace ZelmarMediaLib {

namespace {

shared_ptr<VectorParam> makeComponent(weak_ptr<ThreadSafe const> const& project, int dimensions,
                                      std::string const& name, double defaultValue) {
    shared_ptr<VectorParam> vector = boost::make_shared<VectorParam>(project, dimensions, name);
    for (int i = 0; i < dimensions; ++i)
        vector->at(i)->addKeyFrame(0, defaultValue);
    return vector;
}

// The raw keyframed values: doubleParametricTransform is deliberately not applied.
void load(VectorParam const& vector, double parameterTime, double* out) {
    for (int i = 0; i < vector.numDimensions(); ++i)
        out[i] = vector.at(i)->valueAtTime(parameterTime);
}

// A null override is read from the components instead. The time is converted once, since
// the owner's conversion takes the read lock on every call.
TransformMatrix compose(Transformer const& transformer, Parametric const* owner, long long time,
                        double const* scaleOverride, double const* translationOverride) {
    double const parameterTime = owner->toParameterTime(static_cast<double>(time));
    double scale[3], translation[3], rotation[3], shear[2], anchor[3];
    if (!scaleOverride)
        load(*transformer.scale(), parameterTime, scale);
    if (!translationOverride)
        load(*transformer.translation(), parameterTime, translation);
    load(*transformer.rotation(), parameterTime, rotation);
    load(*transformer.shear(), parameterTime, shear);
    load(*transformer.anchor(), parameterTime, anchor);
    return GraphicsUtil::calcTransformFromComponents(scaleOverride ? scaleOverride : scale,
                                                     translationOverride ? translationOverride : translation,
                                                     rotation, shear, anchor);
}

}  // namespace

Transformer::Transformer(weak_ptr<ThreadSafe const> project)
    : translation_(makeComponent(project, 3, "translation", 0.0)),
      rotation_(makeComponent(project, 3, "rotation", 0.0)),
      shear_(makeComponent(project, 2, "shear", 0.0)),
      scale_(makeComponent(project, 3, "scale", 1.0)),
      anchor_(makeComponent(project, 3, "anchor", 0.0)) {}

Transformer::Transformer(Transformer const& other)
    : translation_(other.translation_->clone()),
      rotation_(other.rotation_->clone()),
      shear_(other.shear_->clone()),
      scale_(other.scale_->clone()),
      anchor_(other.anchor_->clone()) {}

Transformer::~Transformer() = default;

shared_ptr<VectorParam> Transformer::translation() {
    return translation_;
}

shared_ptr<VectorParam const> Transformer::translation() const {
    return translation_;
}

shared_ptr<VectorParam> Transformer::rotation() {
    return rotation_;
}

shared_ptr<VectorParam const> Transformer::rotation() const {
    return rotation_;
}

shared_ptr<VectorParam> Transformer::shear() {
    return shear_;
}

shared_ptr<VectorParam const> Transformer::shear() const {
    return shear_;
}

shared_ptr<VectorParam> Transformer::scale() {
    return scale_;
}

shared_ptr<VectorParam const> Transformer::scale() const {
    return scale_;
}

shared_ptr<VectorParam> Transformer::anchor() {
    return anchor_;
}

shared_ptr<VectorParam const> Transformer::anchor() const {
    return anchor_;
}

TransformMatrix Transformer::calcTransformAtTime(Parametric const* owner, long long time) const {
    return compose(*this, owner, time, nullptr, nullptr);
}

TransformMatrix Transformer::calcTransformAtTimeWithScale(Parametric const* owner, long long time,
                                                          double const* scale) const {
    return compose(*this, owner, time, scale, nullptr);
}

TransformMatrix Transformer::calcTransformAtTimeWithTranslation(Parametric const* owner, long long time,
                                                                double const* translation) const {
    return compose(*this, owner, time, nullptr, translation);
}

void Transformer::genXMLForTransformer(XMLable::Options& options, int indent) const {
    std::string const blanks = XMLable::genIndent(indent);
    *options.stream << blanks << "<Transformer>\n";
    translation_->toXML(options, indent + 1, "name=\"translation\"");
    rotation_->toXML(options, indent + 1, "name=\"rotation\"");
    shear_->toXML(options, indent + 1, "name=\"shear\"");
    scale_->toXML(options, indent + 1, "name=\"scale\"");
    anchor_->toXML(options, indent + 1, "name=\"anchor\"");
    *options.stream << blanks << "</Transformer>\n";
}

void Transformer::addTransformerParametersToParameters(Transformer const* transformer, ParameterVector* list) {
    Parametric::addVectorParamToParameters(transformer->translation(), list);
    Parametric::addVectorParamToParameters(transformer->rotation(), list);
    Parametric::addVectorParamToParameters(transformer->shear(), list);
    Parametric::addVectorParamToParameters(transformer->scale(), list);
    Parametric::addVectorParamToParameters(transformer->anchor(), list);
}

}  // namespace ZelmarMediaLib
