#pragma once
// Sets the value of one key frame of a parameter; undone by setting the former value back.
#include <ZelmarMediaLib/commands/keyframes/KeyFrameEditCmd.h>
#include <ZelmarMediaLib/datatypes/XMLRepresentation.h>

#include <optional>

namespace ZelmarMediaLib {

// A time without a key frame is refused by the parameter with KeyFrameException, before any
// change. The key frame object stays; only its value changes.
template <class T>
class ChangeParameterKeyFrameCmd : public KeyFrameEditCmd<T> {
public:
    // time is in the owner's units.
    static shared_ptr<ChangeParameterKeyFrameCmd> create(shared_ptr<Parametric const> owner,
                                                         shared_ptr<Parameter<T> const> parameter, long long time,
                                                         T const& value) {
        return shared_ptr<ChangeParameterKeyFrameCmd>(new ChangeParameterKeyFrameCmd(owner, parameter, time, value));
    }

    ChangeParameterKeyFrameCmd* clone() const override { return new ChangeParameterKeyFrameCmd(*this); }

    bool execute(CommandHandler*) override {
        this->checkTarget();
        changedAt_ = this->parameterTime(time_);
        former_ = this->editableParameter().changeKeyFrame(changedAt_, value_);
        return true;
    }

    bool unexecute(CommandHandler*) override {
        this->editableParameter().changeKeyFrame(changedAt_, *former_);
        return true;
    }

    void xmlName(XMLable::Options& options) const override { *options.stream << "ChangeParameterKeyFrameCmd"; }
    void xmlAttributes(XMLable::Options& options) const override {
        this->xmlOfTarget(*options.stream);
        *options.stream << " time=\"" << time_ << "\" value=\"" << xml_representation(value_) << '"';
    }
    void xmlBody(XMLable::Options&, int) const override {}

protected:
    ChangeParameterKeyFrameCmd(shared_ptr<Parametric const> owner, shared_ptr<Parameter<T> const> parameter,
                               long long time, T const& value)
        : KeyFrameEditCmd<T>(owner, parameter), time_(time), value_(value), changedAt_(0) {}
    ChangeParameterKeyFrameCmd(ChangeParameterKeyFrameCmd const& other) = default;

private:
    long long time_;
    T value_;
    long long changedAt_;
    std::optional<T> former_;
};

}  // namespace ZelmarMediaLib
