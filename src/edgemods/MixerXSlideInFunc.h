#pragma once
// Slides a horizontal position in from just outside the left side of the stage.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/edgemods/EdgeModFunc.h>

#include <memory>

namespace ZelmarMediaLib {

class ZML_EXPORT MixerXSlideInFunc : public EdgeModFunc {
public:
    MixerXSlideInFunc();
    // The stage information is copied, not shared.
    MixerXSlideInFunc(MixerXSlideInFunc const& other);
    ~MixerXSlideInFunc() override;

    void xmlName(XMLable::Options& options) const override;
    // Always an angle of 0: the slide is horizontal.
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;
    MixerXSlideInFunc* clone() const override;
    // From -W/2 - B/2 + c*s/2 at fraction 0 to the value at fraction 1, with W the mixer's
    // width, B the media's width at its start, c its right geometry crop and s its x scale.
    // Raises bad_weak_ptr without stage information, or when its media or mixer is gone.
    double execute(double fraction, double value) const override;
    std::string ident() const override;
    void setAuxInfo(AuxEdgeModInfo const& info) override;

    // Null until setAuxInfo.
    AuxEdgeModInfo const* auxInfo() const { return aux_.get(); }

private:
    std::unique_ptr<AuxEdgeModInfo> aux_;
};

}  // namespace ZelmarMediaLib
