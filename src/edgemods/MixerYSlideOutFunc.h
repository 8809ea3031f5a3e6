#pragma once
// Slides a vertical position out past the top of the stage: the slide in, run backwards.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/edgemods/EdgeModFunc.h>
#include <ZelmarMediaLib/edgemods/MixerYSlideInFunc.h>

#include <memory>

namespace ZelmarMediaLib {

class ZML_EXPORT MixerYSlideOutFunc : public EdgeModFunc {
public:
    MixerYSlideOutFunc();
    // The angle chooses the inner slide in's behaviour, as it does there.
    explicit MixerYSlideOutFunc(double angle);
    // The inner slide in is copied, not shared.
    MixerYSlideOutFunc(MixerYSlideOutFunc const& other);
    ~MixerYSlideOutFunc() override;

    void xmlName(XMLable::Options& options) const override;
    // The inner slide in's angle.
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;
    MixerYSlideOutFunc* clone() const override;
    // The slide in at 1 - fraction.
    double execute(double fraction, double value) const override;
    std::string ident() const override;
    // Handed to the slide in.
    void setAuxInfo(AuxEdgeModInfo const& info) override;

private:
    std::unique_ptr<MixerYSlideInFunc> inner_;
};

}  // namespace ZelmarMediaLib
