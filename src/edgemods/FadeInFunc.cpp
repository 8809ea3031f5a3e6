#include <ZelmarMediaLib/edgemods/FadeInFunc.h>

#include <ostream>

namespace ZelmarMediaLib {

void FadeInFunc::xmlName(XMLable::Options& options) const {
    *options.stream << ident();
}

void FadeInFunc::xmlAttributes(XMLable::Options&) const {}

void FadeInFunc::xmlBody(XMLable::Options&, int) const {}

FadeInFunc* FadeInFunc::clone() const {
    return new FadeInFunc(*this);
}

double FadeInFunc::execute(double fraction, double value) const {
    return fraction * value;
}

std::string FadeInFunc::ident() const {
    return "FadeInFunc";
}

void FadeInFunc::setAuxInfo(AuxEdgeModInfo const&) {}

}  // namespace ZelmarMediaLib
