#include <ZelmarMediaLib/edgemods/FadeOutFunc.h>

#include <ostream>

namespace ZelmarMediaLib {

void FadeOutFunc::xmlName(XMLable::Options& options) const {
    *options.stream << ident();
}

void FadeOutFunc::xmlAttributes(XMLable::Options&) const {}

void FadeOutFunc::xmlBody(XMLable::Options&, int) const {}

FadeOutFunc* FadeOutFunc::clone() const {
    return new FadeOutFunc(*this);
}

double FadeOutFunc::execute(double fraction, double value) const {
    return (1 - fraction) * value;
}

std::string FadeOutFunc::ident() const {
    return "FadeOutFunc";
}

void FadeOutFunc::setAuxInfo(AuxEdgeModInfo const&) {}

}  // namespace ZelmarMediaLib
