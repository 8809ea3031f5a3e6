#pragma once
// Adds a delta to the value of one key frame of a parameter; a drag's stream of them is one undo step.
#include <ZelmarMediaLib/commands/keyframes/KeyFrameEditCmd.h>
#include <ZelmarMediaLib/datatypes/XMLRepresentation.h>

#include <optional>

namespace ZelmarMediaLib {

// For value types with operator+. The undo sets the former value back rather than
// subtracting, so that it gives back exactly what was there.
template <class T>
class ChangeParameterKeyFrameByDeltaCmd : public KeyFrameEditCmd<T> {
public:
    // time is in the owner's units.
    static shared_ptr<ChangeParameterKeyFrameByDeltaCmd> create(shared_ptr<Parametric const> owner,
                                                                shared_ptr<Parameter<T> const> parameter,
                                                                long long time, T const& delta) {
        return shared_ptr<ChangeParameterKeyFrameByDeltaCmd>(
            new ChangeParameterKeyFrameByDeltaCmd(owner, parameter, time, delta));
    }

    ChangeParameterKeyFrameByDeltaCmd* clone() const override { return new ChangeParameterKeyFrameByDeltaCmd(*this); }

    // A time without a key frame raises KeyFrameException before any change.
    bool execute(CommandHandler*) override {
        this->checkTarget();
        changedAt_ = this->parameterTime(time_);
        Parameter<T>& parameter = this->editableParameter();
        former_ = parameter.keyframeAtTime(changedAt_)->value;
        parameter.changeKeyFrame(changedAt_, *former_ + delta_);
        return true;
    }

    bool unexecute(CommandHandler*) override {
        this->editableParameter().changeKeyFrame(changedAt_, *former_);
        return true;
    }

    // A later delta on the same key frame of the same parameter adds to this one; the value
    // before the first stays the one that undo gives back.
    shared_ptr<Command> combine(shared_ptr<Command> next) override {
        shared_ptr<ChangeParameterKeyFrameByDeltaCmd> const later =
            dynamic_pointer_cast<ChangeParameterKeyFrameByDeltaCmd>(next);
        if (!later || !this->hasSameTarget(*later) || later->time_ != time_)
            return Command::combine(next);
        shared_ptr<ChangeParameterKeyFrameByDeltaCmd> const combined(new ChangeParameterKeyFrameByDeltaCmd(*this));
        combined->delta_ = delta_ + later->delta_;
        return combined;
    }

    void xmlName(XMLable::Options& options) const override {
        *options.stream << "ChangeParameterKeyFrameByDeltaCmd";
    }
    void xmlAttributes(XMLable::Options& options) const override {
        this->xmlOfTarget(*options.stream);
        *options.stream << " time=\"" << time_ << "\" delta=\"" << xml_representation(delta_) << '"';
    }
    void xmlBody(XMLable::Options&, int) const override {}

protected:
    ChangeParameterKeyFrameByDeltaCmd(shared_ptr<Parametric const> owner, shared_ptr<Parameter<T> const> parameter,
                                      long long time, T const& delta)
        : KeyFrameEditCmd<T>(owner, parameter), time_(time), delta_(delta), changedAt_(0) {}
    ChangeParameterKeyFrameByDeltaCmd(ChangeParameterKeyFrameByDeltaCmd const& other) = default;

private:
    long long time_;
    T delta_;
    long long changedAt_;
    std::optional<T> former_;
};

}  // namespace ZelmarMediaLib
