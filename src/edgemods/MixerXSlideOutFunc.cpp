#include <ZelmarMediaLib/edgemods/MixerXSlideOutFunc.h>

#include <ostream>

namespace ZelmarMediaLib {

MixerXSlideOutFunc::MixerXSlideOutFunc() : inner_(new MixerXSlideInFunc) {}

MixerXSlideOutFunc::MixerXSlideOutFunc(MixerXSlideOutFunc const& other)
    : XMLIdentified(other), EdgeModFunc(other), inner_(other.inner_->clone()) {}

MixerXSlideOutFunc::~MixerXSlideOutFunc() = default;

void MixerXSlideOutFunc::xmlName(XMLable::Options& options) const {
    *options.stream << ident();
}

void MixerXSlideOutFunc::xmlAttributes(XMLable::Options& options) const {
    *options.stream << " angle=\"" << 0.0 << '"';
}

void MixerXSlideOutFunc::xmlBody(XMLable::Options&, int) const {}

MixerXSlideOutFunc* MixerXSlideOutFunc::clone() const {
    return new MixerXSlideOutFunc(*this);
}

double MixerXSlideOutFunc::execute(double fraction, double value) const {
    return inner_->execute(1 - fraction, value);
}

std::string MixerXSlideOutFunc::ident() const {
    return "MixerXSlideOut";
}

void MixerXSlideOutFunc::setAuxInfo(AuxEdgeModInfo const& info) {
    inner_->setAuxInfo(info);
}

}  // namespace ZelmarMediaLib
