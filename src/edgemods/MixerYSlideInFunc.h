#pragma once
// Slides a vertical position in from just above the stage; at an angle of 0 it fades in instead.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/edgemods/EdgeModFunc.h>

#include <memory>

namespace ZelmarMediaLib {

class ZML_EXPORT MixerYSlideInFunc : public EdgeModFunc {
public:
    // fraction, value, the stage information (null until set).
    typedef function<double(double, double, AuxEdgeModInfo*)> Executor;

    MixerYSlideInFunc();
    // Only exactly 0.0 picks the fade in; any other angle slides from the top.
    explicit MixerYSlideInFunc(double angle);
    // The stage information is copied, not shared.
    MixerYSlideInFunc(MixerYSlideInFunc const& other);
    ~MixerYSlideInFunc() override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;
    MixerYSlideInFunc* clone() const override;
    // From H/2 + B/2 at fraction 0 to the value at fraction 1, with H the mixer's height and B
    // the media's height at its start. Raises bad_weak_ptr without stage information, or
    // when its media or mixer is gone; the fade in of angle 0 needs none.
    double execute(double fraction, double value) const override;
    std::string ident() const override;
    void setAuxInfo(AuxEdgeModInfo const& info) override;
    virtual double angle() const;

    // Null until setAuxInfo.
    AuxEdgeModInfo const* auxInfo() const { return aux_.get(); }

private:
    std::unique_ptr<AuxEdgeModInfo> aux_;
    double angle_;
    Executor executor_;
};

}  // namespace ZelmarMediaLib
