#include <ZelmarMediaLib/edgemods/MixerYSlideOutFunc.h>

#include <ostream>

namespace ZelmarMediaLib {

MixerYSlideOutFunc::MixerYSlideOutFunc() : inner_(new MixerYSlideInFunc) {}

MixerYSlideOutFunc::MixerYSlideOutFunc(double angle) : inner_(new MixerYSlideInFunc(angle)) {}

MixerYSlideOutFunc::MixerYSlideOutFunc(MixerYSlideOutFunc const& other)
    : XMLIdentified(other), EdgeModFunc(other), inner_(other.inner_->clone()) {}

MixerYSlideOutFunc::~MixerYSlideOutFunc() = default;

void MixerYSlideOutFunc::xmlName(XMLable::Options& options) const {
    *options.stream << ident();
}

void MixerYSlideOutFunc::xmlAttributes(XMLable::Options& options) const {
    *options.stream << " angle=\"" << inner_->angle() << '"';
}

void MixerYSlideOutFunc::xmlBody(XMLable::Options&, int) const {}

MixerYSlideOutFunc* MixerYSlideOutFunc::clone() const {
    return new MixerYSlideOutFunc(*this);
}

double MixerYSlideOutFunc::execute(double fraction, double value) const {
    return inner_->execute(1 - fraction, value);
}

std::string MixerYSlideOutFunc::ident() const {
    return "MixerYSlideOut";
}

void MixerYSlideOutFunc::setAuxInfo(AuxEdgeModInfo const& info) {
    inner_->setAuxInfo(info);
}

}  // namespace ZelmarMediaLib
