#pragma once
// Removes one key frame of a parameter; undone by putting the very same key frame back.
#include <ZelmarMediaLib/commands/keyframes/KeyFrameEditCmd.h>
#include <ZelmarMediaLib/parameters/KeyFrame.h>

namespace ZelmarMediaLib {

// A time without a key frame is refused by the parameter with KeyFrameException, before any change.
template <class T>
class RemoveParameterKeyFrameCmd : public KeyFrameEditCmd<T> {
public:
    // time is in the owner's units.
    static shared_ptr<RemoveParameterKeyFrameCmd> create(shared_ptr<Parametric const> owner,
                                                         shared_ptr<Parameter<T> const> parameter, long long time) {
        return shared_ptr<RemoveParameterKeyFrameCmd>(new RemoveParameterKeyFrameCmd(owner, parameter, time));
    }

    RemoveParameterKeyFrameCmd* clone() const override { return new RemoveParameterKeyFrameCmd(*this); }

    bool execute(CommandHandler*) override {
        this->checkTarget();
        Parameter<T>& parameter = this->editableParameter();
        removed_ = parameter.keyframeAtTime(this->parameterTime(time_));
        parameter.removeKeyFrame(removed_->time);
        return true;
    }

    bool unexecute(CommandHandler*) override {
        this->editableParameter().addKeyFrame(removed_);
        return true;
    }

    void xmlName(XMLable::Options& options) const override { *options.stream << "RemoveParameterKeyFrameCmd"; }
    void xmlAttributes(XMLable::Options& options) const override {
        this->xmlOfTarget(*options.stream);
        *options.stream << " time=\"" << time_ << '"';
    }
    void xmlBody(XMLable::Options&, int) const override {}

protected:
    RemoveParameterKeyFrameCmd(shared_ptr<Parametric const> owner, shared_ptr<Parameter<T> const> parameter,
                               long long time)
        : KeyFrameEditCmd<T>(owner, parameter), time_(time) {}
    RemoveParameterKeyFrameCmd(RemoveParameterKeyFrameCmd const& other) = default;

private:
    long long time_;
    // Kept alive here while the command is on a stack, so that undo restores the same object.
    shared_ptr<KeyFrame<T> > removed_;
};

}  // namespace ZelmarMediaLib
