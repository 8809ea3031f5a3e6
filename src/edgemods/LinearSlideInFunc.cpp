#include <ZelmarMediaLib/edgemods/LinearSlideInFunc.h>

#include <ostream>

namespace ZelmarMediaLib {

LinearSlideInFunc::LinearSlideInFunc(double offset) : offset_(offset) {}

void LinearSlideInFunc::xmlName(XMLable::Options& options) const {
    *options.stream << ident();
}

void LinearSlideInFunc::xmlAttributes(XMLable::Options&) const {}

void LinearSlideInFunc::xmlBody(XMLable::Options&, int) const {}

LinearSlideInFunc* LinearSlideInFunc::clone() const {
    return new LinearSlideInFunc(*this);
}

double LinearSlideInFunc::execute(double fraction, double value) const {
    return (1 - fraction) * offset_ + value;
}

std::string LinearSlideInFunc::ident() const {
    return "LinearSlideInFunc";
}

void LinearSlideInFunc::setAuxInfo(AuxEdgeModInfo const&) {}

}  // namespace ZelmarMediaLib
