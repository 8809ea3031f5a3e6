#include <ZelmarMediaLib/edgemods/MixerXSlideInFunc.h>

#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/edgemods/AuxEdgeModInfo.h>
#include <ZelmarMediaLib/edgemods/MixerXSlideFuncUtil.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/parameters/VectorParam.h>
#include <ZelmarMediaLib/timeline/VisualMedia.h>
#include <ZelmarMediaLib/timeline/VisualMixer.h>

#include <ostream>

namespace ZelmarMediaLib {

MixerXSlideInFunc::MixerXSlideInFunc() = default;

MixerXSlideInFunc::MixerXSlideInFunc(MixerXSlideInFunc const& other)
    : XMLIdentified(other), EdgeModFunc(other), aux_(other.aux_ ? new AuxEdgeModInfo(*other.aux_) : nullptr) {}

MixerXSlideInFunc::~MixerXSlideInFunc() = default;

void MixerXSlideInFunc::xmlName(XMLable::Options& options) const {
    *options.stream << ident();
}

void MixerXSlideInFunc::xmlAttributes(XMLable::Options& options) const {
    *options.stream << " angle=\"" << 0.0 << '"';
}

void MixerXSlideInFunc::xmlBody(XMLable::Options&, int) const {}

MixerXSlideInFunc* MixerXSlideInFunc::clone() const {
    return new MixerXSlideInFunc(*this);
}

double MixerXSlideInFunc::execute(double fraction, double value) const {
    if (!aux_)
        throw bad_weak_ptr();
    shared_ptr<VisualMedia const> const media = aux_->visualMedia();
    shared_ptr<VisualMixer const> const mixer = aux_->visualMixer();
    double stageWidth;
    {
        shared_ptr<Attribute<float> const> const width = mixer->attributeWidth();
        ReadWriteMutex::ScopedReadLock lock(&width->mutex());
        stageWidth = width->value();
    }
    double const beginWidth = MixerXSlideFuncUtil::calcMediaBeginWidth(media);
    // The fraction stands in for a time here, so crop and scale are those of the media's first
    // edit unit, whatever part of the zone is being drawn.
    double const parameterTime = media->toParameterTime(fraction);
    double const crop = media->geometryCropParam()->at(2)->valueAtTime(parameterTime);
    double const scale = media->scale()->at(0)->valueAtTime(parameterTime);
    return value + (1 - fraction) * ((stageWidth * -0.5 + beginWidth * -0.5) - value + crop * scale * 0.5);
}

std::string MixerXSlideInFunc::ident() const {
    return "MixerXSlideIn";
}

void MixerXSlideInFunc::setAuxInfo(AuxEdgeModInfo const& info) {
    aux_.reset(new AuxEdgeModInfo(info));
}

}  // namespace ZelmarMediaLib
