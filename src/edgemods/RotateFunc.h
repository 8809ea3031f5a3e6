#pragma once
// Spins a rotation a whole number of turns across the zone, ending on the value itself.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/edgemods/EdgeModFunc.h>

#include <memory>

namespace ZelmarMediaLib {

class ZML_EXPORT RotateFunc : public EdgeModFunc {
public:
    explicit RotateFunc(int numRotations);
    // The stage information is copied, not shared.
    RotateFunc(RotateFunc const& other);
    ~RotateFunc() override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;
    RotateFunc* clone() const override;
    // numRotations * 2 pi * fraction + value, in radians.
    double execute(double fraction, double value) const override;
    std::string ident() const override;
    // Kept as a copy; the spin itself doesn't read it.
    void setAuxInfo(AuxEdgeModInfo const& info) override;

    int numRotations() const { return numRotations_; }
    // Null until setAuxInfo.
    AuxEdgeModInfo const* auxInfo() const { return aux_.get(); }

private:
    std::unique_ptr<AuxEdgeModInfo> aux_;
    int numRotations_;
};

}  // namespace ZelmarMediaLib
