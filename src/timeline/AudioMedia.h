#pragma once
// The common base of all audio medias: sample format, volume over time and gain.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/timeline/MediaImpl.h>

#include <memory>

namespace ZelmarMediaLib {

template <class T>
class Attribute;
template <class T>
class InterpolatingParam;
class TemporalEditor;

class ZML_EXPORT AudioMedia : public MediaImpl {
public:
    ~AudioMedia() override;

    std::string description() const override;
    void xmlOfParameters(XMLable::Options& options, int indent) const override;
    // ident, sampleRate, bitDepth and gain, in that order.
    void xmlOfAttributes(XMLable::Options& options, int indent) const override;
    int numAttributes() const override;
    MediaEditor* mediaEditor() override;
    MediaEditor const* mediaEditor() const override;
    int numParameters() const override;
    ParameterVector* parameterVector() const override;

    // 1.0 everywhere on a new media.
    shared_ptr<InterpolatingParam<double> > volume();
    shared_ptr<InterpolatingParam<double> const> volume() const;
    shared_ptr<Attribute<double> > gain();
    shared_ptr<Attribute<double> const> gain() const;
    shared_ptr<Attribute<unsigned int> const> sampleRate() const;
    shared_ptr<Attribute<unsigned int> const> bitDepth() const;

protected:
    AudioMedia(Range<long long> const& range, unsigned int sampleRate, unsigned int bitDepth, double startLimit,
               double durationLimit, weak_ptr<ThreadSafe const> project);
    // Clones the attributes and the volume, and makes an editor of its own.
    AudioMedia(AudioMedia const& other);

private:
    shared_ptr<Attribute<unsigned int> > sampleRate_;
    shared_ptr<Attribute<unsigned int> > bitDepth_;
    std::unique_ptr<TemporalEditor> editor_;
    shared_ptr<InterpolatingParam<double> > volume_;
    shared_ptr<Attribute<double> > gain_;
};

}  // namespace ZelmarMediaLib
