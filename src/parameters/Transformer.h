#pragma once
// The keyframed translation, rotation, shear, scale and anchor of a visual object, and the matrix they compose.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/ThreadSafe.h>
#include <ZelmarMediaLib/datatypes/TransformMatrix.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>
#include <ZelmarMediaLib/parameters/Parametric.h>

namespace ZelmarMediaLib {

class VectorParam;

// A mix-in: the owner is the Parametric whose time base the components are keyed in, and it
// is passed to each query rather than stored, because the owner is the derived object itself.
class ZML_EXPORT Transformer {
public:
    // Each component starts with one keyframe at 0: scale at 1, everything else at 0.
    explicit Transformer(weak_ptr<ThreadSafe const> project);
    // The copy's keyframes are independent of the original's.
    Transformer(Transformer const& other);
    Transformer& operator=(Transformer const&) = delete;
    virtual ~Transformer();

    // Three components each, except shear, which has two.
    shared_ptr<VectorParam> translation();
    shared_ptr<VectorParam const> translation() const;
    shared_ptr<VectorParam> rotation();
    shared_ptr<VectorParam const> rotation() const;
    shared_ptr<VectorParam> shear();
    shared_ptr<VectorParam const> shear() const;
    shared_ptr<VectorParam> scale();
    shared_ptr<VectorParam const> scale() const;
    shared_ptr<VectorParam> anchor();
    shared_ptr<VectorParam const> anchor() const;

    // Takes no lock of its own: each component read locks by itself, so a matrix computed while
    // another thread edits can mix states unless the caller holds the read lock throughout.
    // The values are the raw keyframed ones; edge modifications don't act through here.
    TransformMatrix calcTransformAtTime(Parametric const* owner, long long time) const;
    // The three numbers at scale stand in for the scale components.
    TransformMatrix calcTransformAtTimeWithScale(Parametric const* owner, long long time, double const* scale) const;
    // The three numbers at translation stand in for the translation components.
    TransformMatrix calcTransformAtTimeWithTranslation(Parametric const* owner, long long time,
                                                       double const* translation) const;

    // A "Transformer" element at indent holding the five vectors one level deeper, each named
    // by its role through the extra attributes.
    void genXMLForTransformer(XMLable::Options& options, int indent) const;

    // The 14 components in the order translation, rotation, shear, scale, anchor.
    static void addTransformerParametersToParameters(Transformer const* transformer, ParameterVector* list);

private:
    shared_ptr<VectorParam> translation_;
    shared_ptr<VectorParam> rotation_;
    shared_ptr<VectorParam> shear_;
    shared_ptr<VectorParam> scale_;
    shared_ptr<VectorParam> anchor_;
};

}  // namespace ZelmarMediaLib
