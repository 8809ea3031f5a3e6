#pragma once
// Brings a value up from nothing across the zone: the usual fade in of an opacity or a volume.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/edgemods/EdgeModFunc.h>

namespace ZelmarMediaLib {

class ZML_EXPORT FadeInFunc : public EdgeModFunc {
public:
    FadeInFunc() = default;
    FadeInFunc(FadeInFunc const& other) = default;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;
    FadeInFunc* clone() const override;
    // fraction * value.
    double execute(double fraction, double value) const override;
    std::string ident() const override;
    // Needs nothing of the stage.
    void setAuxInfo(AuxEdgeModInfo const& info) override;
};

}  // namespace ZelmarMediaLib
