#pragma once
// Slides a value in from a fixed offset across the zone, arriving at the value at its end.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/edgemods/EdgeModFunc.h>

namespace ZelmarMediaLib {

class ZML_EXPORT LinearSlideInFunc : public EdgeModFunc {
public:
    explicit LinearSlideInFunc(double offset);
    LinearSlideInFunc(LinearSlideInFunc const& other) = default;

    void xmlName(XMLable::Options& options) const override;
    // Writes nothing: the offset is not part of the document.
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;
    LinearSlideInFunc* clone() const override;
    // (1 - fraction) * offset + value.
    double execute(double fraction, double value) const override;
    std::string ident() const override;
    // Needs nothing of the stage.
    void setAuxInfo(AuxEdgeModInfo const& info) override;

    double offset() const { return offset_; }

private:
    double offset_;
};

}  // namespace ZelmarMediaLib
