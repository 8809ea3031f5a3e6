#pragma once
// Slides a horizontal position out past the left side of the stage: the slide in, run backwards.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/edgemods/EdgeModFunc.h>
#include <ZelmarMediaLib/edgemods/MixerXSlideInFunc.h>

#include <memory>

namespace ZelmarMediaLib {

class ZML_EXPORT MixerXSlideOutFunc : public EdgeModFunc {
public:
    MixerXSlideOutFunc();
    // The inner slide in is copied, not shared.
    MixerXSlideOutFunc(MixerXSlideOutFunc const& other);
    ~MixerXSlideOutFunc() override;

    void xmlName(XMLable::Options& options) const override;
    // Always an angle of 0, as the slide in writes it.
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;
    MixerXSlideOutFunc* clone() const override;
    // The slide in at 1 - fraction.
    double execute(double fraction, double value) const override;
    std::string ident() const override;
    // Handed to the slide in.
    void setAuxInfo(AuxEdgeModInfo const& info) override;

private:
    std::unique_ptr<MixerXSlideInFunc> inner_;
};

}  // namespace ZelmarMediaLib
