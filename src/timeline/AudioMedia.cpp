#include <ZelmarMediaLib/timeline/AudioMedia.h>

#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/timeline/TemporalEditor.h>

namespace ZelmarMediaLib {

AudioMedia::AudioMedia(Range<long long> const& range, unsigned int sampleRate, unsigned int bitDepth,
                       double startLimit, double durationLimit, weak_ptr<ThreadSafe const> project)
    : MediaImpl(range, startLimit, durationLimit, project),
      sampleRate_(boost::make_shared<Attribute<unsigned int> >(sampleRate, project)),
      bitDepth_(boost::make_shared<Attribute<unsigned int> >(bitDepth, project)),
      editor_(new TemporalEditor(this)),
      volume_(boost::make_shared<InterpolatingParam<double> >(project, "volume")),
      gain_(boost::make_shared<Attribute<double> >(1.0, project)) {
    volume_->addKeyFrame(0, 1.0);
}

AudioMedia::AudioMedia(AudioMedia const& other)
    : XMLIdentified(other),
      MediaImpl(other),
      sampleRate_(other.sampleRate_->clone()),
      bitDepth_(other.bitDepth_->clone()),
      editor_(new TemporalEditor(this)),
      volume_(other.volume_->clone()),
      gain_(other.gain_->clone()) {}

AudioMedia::~AudioMedia() = default;

std::string AudioMedia::description() const {
    return std::string();
}

void AudioMedia::xmlOfParameters(XMLable::Options& options, int indent) const {
    MediaImpl::xmlOfParameters(options, indent);
    volume_->toXML(options, indent, "name=\"volume\"");
}

void AudioMedia::xmlOfAttributes(XMLable::Options& options, int indent) const {
    identAttribute()->toXML(options, indent, "name=\"ident\"");
    sampleRate_->toXML(options, indent, "name=\"sampleRate\"");
    bitDepth_->toXML(options, indent, "name=\"bitDepth\"");
    gain_->toXML(options, indent, "name=\"gain\"");
}

int AudioMedia::numAttributes() const {
    return 4;
}

MediaEditor* AudioMedia::mediaEditor() {
    return editor_.get();
}

MediaEditor const* AudioMedia::mediaEditor() const {
    return editor_.get();
}

int AudioMedia::numParameters() const {
    return 1;
}

ParameterVector* AudioMedia::parameterVector() const {
    ParameterVector* parameters = new ParameterVector(projectMutex());
    parameters->push_back(volume_);
    return parameters;
}

shared_ptr<InterpolatingParam<double> > AudioMedia::volume() {
    return volume_;
}

shared_ptr<InterpolatingParam<double> const> AudioMedia::volume() const {
    return volume_;
}

shared_ptr<Attribute<double> > AudioMedia::gain() {
    return gain_;
}

shared_ptr<Attribute<double> const> AudioMedia::gain() const {
    return gain_;
}

shared_ptr<Attribute<unsigned int> const> AudioMedia::sampleRate() const {
    return sampleRate_;
}

shared_ptr<Attribute<unsigned int> const> AudioMedia::bitDepth() const {
    return bitDepth_;
}

}  // namespace ZelmarMediaLib
