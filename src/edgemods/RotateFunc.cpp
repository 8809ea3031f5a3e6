#include <ZelmarMediaLib/edgemods/RotateFunc.h>

#include <ZelmarMediaLib/edgemods/AuxEdgeModInfo.h>

#include <ostream>

namespace ZelmarMediaLib {

namespace {
// 2 pi as one constant: multiplying by 2 and then by pi rounds differently.
double const twoPi = 6.283185307179586;
}

RotateFunc::RotateFunc(int numRotations) : numRotations_(numRotations) {}

RotateFunc::RotateFunc(RotateFunc const& other)
    : XMLIdentified(other),
      EdgeModFunc(other),
      aux_(other.aux_ ? new AuxEdgeModInfo(*other.aux_) : nullptr),
      numRotations_(other.numRotations_) {}

RotateFunc::~RotateFunc() = default;

void RotateFunc::xmlName(XMLable::Options& options) const {
    *options.stream << ident();
}

void RotateFunc::xmlAttributes(XMLable::Options& options) const {
    *options.stream << " numRotations=\"" << numRotations_ << '"';
}

void RotateFunc::xmlBody(XMLable::Options&, int) const {}

RotateFunc* RotateFunc::clone() const {
    return new RotateFunc(*this);
}

double RotateFunc::execute(double fraction, double value) const {
    return numRotations_ * twoPi * fraction + value;
}

std::string RotateFunc::ident() const {
    return "Rotate";
}

void RotateFunc::setAuxInfo(AuxEdgeModInfo const& info) {
    aux_.reset(new AuxEdgeModInfo(info));
}

}  // namespace ZelmarMediaLib
