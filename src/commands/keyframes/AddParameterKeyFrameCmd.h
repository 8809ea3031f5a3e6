#pragma once
// Adds a key frame to a parameter; undone by removing it again.
#include <ZelmarMediaLib/commands/keyframes/KeyFrameEditCmd.h>
#include <ZelmarMediaLib/datatypes/XMLRepresentation.h>

namespace ZelmarMediaLib {

// An occupied time is refused by the parameter with KeyFrameException, before any change.
template <class T>
class AddParameterKeyFrameCmd : public KeyFrameEditCmd<T> {
public:
    // time is in the owner's units.
    static shared_ptr<AddParameterKeyFrameCmd> create(shared_ptr<Parametric const> owner,
                                                      shared_ptr<Parameter<T> const> parameter, long long time,
                                                      T const& value) {
        return shared_ptr<AddParameterKeyFrameCmd>(new AddParameterKeyFrameCmd(owner, parameter, time, value));
    }

    AddParameterKeyFrameCmd* clone() const override { return new AddParameterKeyFrameCmd(*this); }

    bool execute(CommandHandler*) override {
        this->checkTarget();
        addedAt_ = this->parameterTime(time_);
        this->editableParameter().addKeyFrame(addedAt_, value_);
        return true;
    }

    bool unexecute(CommandHandler*) override {
        this->editableParameter().removeKeyFrame(addedAt_);
        return true;
    }

    void xmlName(XMLable::Options& options) const override { *options.stream << "AddParameterKeyFrameCmd"; }
    void xmlAttributes(XMLable::Options& options) const override {
        this->xmlOfTarget(*options.stream);
        *options.stream << " time=\"" << time_ << "\" value=\"" << xml_representation(value_) << '"';
    }
    void xmlBody(XMLable::Options&, int) const override {}

protected:
    AddParameterKeyFrameCmd(shared_ptr<Parametric const> owner, shared_ptr<Parameter<T> const> parameter,
                            long long time, T const& value)
        : KeyFrameEditCmd<T>(owner, parameter), time_(time), value_(value), addedAt_(0) {}
    AddParameterKeyFrameCmd(AddParameterKeyFrameCmd const& other) = default;

private:
    long long time_;
    T value_;
    // The key frame's own time, as it was added.
    long long addedAt_;
};

}  // namespace ZelmarMediaLib
