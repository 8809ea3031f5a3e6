#include <ZelmarMediaLib/edgemods/MixerYSlideInFunc.h>

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

namespace {

double execute0(double fraction, double value, AuxEdgeModInfo*) {
    return fraction * value;
}

double execute90(double fraction, double value, AuxEdgeModInfo* aux) {
    if (!aux)
        throw bad_weak_ptr();
    shared_ptr<VisualMedia const> const media = aux->visualMedia();
    shared_ptr<VisualMixer const> const mixer = aux->visualMixer();
    double stageHeight;
    {
        shared_ptr<Attribute<float> const> const height = mixer->attributeHeight();
        ReadWriteMutex::ScopedReadLock lock(&height->mutex());
        stageHeight = height->value();
    }
    double const beginHeight = MixerXSlideFuncUtil::calcMediaBeginHeight(media);
    // Read as the horizontal slide reads them, though the vertical one leaves them out: a
    // media whose crop or scale can't be read fails here as it does there.
    double const parameterTime = media->toParameterTime(fraction);
    media->geometryCropParam()->at(2)->valueAtTime(parameterTime);
    media->scale()->at(0)->valueAtTime(parameterTime);
    return value + (1 - fraction) * ((stageHeight * 0.5 + beginHeight * 0.5) - value);
}

MixerYSlideInFunc::Executor executorFor(double angle) {
    if (angle == 0.0)
        return &execute0;
    return &execute90;
}

}  // namespace

MixerYSlideInFunc::MixerYSlideInFunc() : MixerYSlideInFunc(0.0) {}

MixerYSlideInFunc::MixerYSlideInFunc(double angle) : angle_(angle), executor_(executorFor(angle)) {}

MixerYSlideInFunc::MixerYSlideInFunc(MixerYSlideInFunc const& other)
    : XMLIdentified(other),
      EdgeModFunc(other),
      aux_(other.aux_ ? new AuxEdgeModInfo(*other.aux_) : nullptr),
      angle_(other.angle_),
      executor_(other.executor_) {}

MixerYSlideInFunc::~MixerYSlideInFunc() = default;

void MixerYSlideInFunc::xmlName(XMLable::Options& options) const {
    *options.stream << ident();
}

void MixerYSlideInFunc::xmlAttributes(XMLable::Options& options) const {
    *options.stream << " angle=\"" << angle_ << '"';
}

void MixerYSlideInFunc::xmlBody(XMLable::Options&, int) const {}

MixerYSlideInFunc* MixerYSlideInFunc::clone() const {
    return new MixerYSlideInFunc(*this);
}

double MixerYSlideInFunc::execute(double fraction, double value) const {
    return executor_(fraction, value, aux_.get());
}

std::string MixerYSlideInFunc::ident() const {
    return "MixerYSlideIn";
}

void MixerYSlideInFunc::setAuxInfo(AuxEdgeModInfo const& info) {
    aux_.reset(new AuxEdgeModInfo(info));
}

double MixerYSlideInFunc::angle() const {
    return angle_;
}

}  // namespace ZelmarMediaLib
