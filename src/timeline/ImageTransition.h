#pragma once
// A picture transition: one effect, no size, no placement of its own.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/timeline/ImageMedia.h>
#include <ZelmarMediaLib/timeline/Transition.h>

#include <memory>

namespace ZelmarMediaLib {

class ZML_EXPORT ImageTransition : public ImageMedia, public Transition {
public:
    // Both media limits are 0: a transition comes from no material.
    ImageTransition(long long duration, weak_ptr<ThreadSafe const> project);
    ImageTransition(long long duration, shared_ptr<Effect> effect, weak_ptr<ThreadSafe const> project);
    ImageTransition(ImageTransition const& other);
    ~ImageTransition() override;

    ImageTransition* clone() const override;
    void receiveDispatcher(ConstMediaDispatcher* dispatcher) const override;
    void receiveDispatcher(MediaDispatcher* dispatcher) override;
    bool isInstanceOf(shared_ptr<Source const> source) const override;
    MediaEditor* mediaEditor() override;
    MediaEditor const* mediaEditor() const override;

    Range<long long> transitionRange() const override;
    shared_ptr<Effect const> transitionEffect() const override;
    shared_ptr<Media const> transitionMediaRepresentation() const override;

    // A transition holds one effect at most; a second is refused.
    int addEffect(shared_ptr<Effect> effect) override;
    void insertEffect(shared_ptr<Effect> effect, int index) override;
    // Replaces the one effect.
    void setEffect(shared_ptr<Effect> effect);

    TransformMatrix transformAtTime(long long time) const override;
    // Undefined for a transition: they raise.
    float width() const override;
    float height() const override;
    int numParameters() const override;
    int numAttributes() const override;
    ParameterVector* parameterVector() const override;
    void xmlOfAttributes(XMLable::Options& options, int indent) const override;
    void xmlName(XMLable::Options& options) const override;
    // Only where it stands: start and duration on the track.
    void xmlAttributes(XMLable::Options& options) const override;
    // A transition places nothing, so it has no transformer group; its effect stands in the
    // Effects block.
    void xmlBody(XMLable::Options& options, int indent) const override;

private:
    std::unique_ptr<StaticEditor> editor_;
};

}  // namespace ZelmarMediaLib
