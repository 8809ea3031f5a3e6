#pragma once
// Takes a value down to nothing across the zone: the usual fade out of an opacity or a volume.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/edgemods/EdgeModFunc.h>

namespace ZelmarMediaLib {

class ZML_EXPORT FadeOutFunc : public EdgeModFunc {
public:
    FadeOutFunc() = default;
    FadeOutFunc(FadeOutFunc const& other) = default;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;
    FadeOutFunc* clone() const override;
    // (1 - fraction) * value.
    double execute(double fraction, double value) const override;
    std::string ident() const override;
    // Needs nothing of the stage.
    void setAuxInfo(AuxEdgeModInfo const& info) override;
};

}  // namespace ZelmarMediaLib
