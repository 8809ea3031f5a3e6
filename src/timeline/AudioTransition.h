#pragma once
// A sound transition: one effect, no channels, no material.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/timeline/AudioMedia.h>
#include <ZelmarMediaLib/timeline/Transition.h>

#include <memory>
#include <vector>

namespace ZelmarMediaLib {

class AMFile;
class StaticEditor;

class ZML_EXPORT AudioTransition : public AudioMedia, public Transition {
public:
    AudioTransition(long long duration, shared_ptr<Effect const> effect, weak_ptr<ThreadSafe const> project);
    AudioTransition(AudioTransition const& other);
    ~AudioTransition() override;

    AudioTransition* clone() const override;
    void receiveDispatcher(ConstMediaDispatcher* dispatcher) const override;
    void receiveDispatcher(MediaDispatcher* dispatcher) override;
    bool isInstanceOf(shared_ptr<Source const> source) const override;
    MediaEditor* mediaEditor() override;
    MediaEditor const* mediaEditor() const override;
    void xmlName(XMLable::Options& options) const override;
    // Only where it stands: start and duration on the track.
    void xmlAttributes(XMLable::Options& options) const override;
    // The media's body, then the effect in an Effect element at the same indent.
    void xmlBody(XMLable::Options& options, int indent) const override;

    Range<long long> transitionRange() const override;
    shared_ptr<Effect const> transitionEffect() const override;
    shared_ptr<Media const> transitionMediaRepresentation() const override;

    int numChannels() const;
    // There are none: raises.
    shared_ptr<std::vector<shared_ptr<AMFile> > > splitChannels() const;

private:
    shared_ptr<Effect const> effect_;
    std::unique_ptr<StaticEditor> editor_;
};

}  // namespace ZelmarMediaLib
