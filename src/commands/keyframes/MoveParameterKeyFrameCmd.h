#pragma once
// Moves one key frame of a parameter in time, through the project's own move; a drag is one undo step.
#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/commands/keyframes/KeyFrameEditCmd.h>
#include <ZelmarMediaLib/exceptions/KeyFrameException.h>

namespace ZelmarMediaLib {

// A missing key frame or an occupied destination is refused with KeyFrameException before
// any change. Both times are in the owner's units.
template <class T>
class MoveParameterKeyFrameCmd : public KeyFrameEditCmd<T> {
public:
    static shared_ptr<MoveParameterKeyFrameCmd> create(shared_ptr<Parametric const> owner,
                                                       shared_ptr<Parameter<T> const> parameter, long long from,
                                                       long long to) {
        return shared_ptr<MoveParameterKeyFrameCmd>(new MoveParameterKeyFrameCmd(owner, parameter, from, to));
    }

    MoveParameterKeyFrameCmd* clone() const override { return new MoveParameterKeyFrameCmd(*this); }

    // Two owner times that meet in one key frame time leave nothing to do; that is also what
    // a drag that came back to its start combines to.
    bool execute(CommandHandler* handler) override {
        this->checkTarget();
        if (isStill()) {
            long long const time = this->parameterTime(from_);
            if (!this->parameter()->hasKeyFrameAtTime(time))
                throw KeyFrameException(time);
            return false;
        }
        handler->moveParameterKeyFrame(this->owner(), this->parameter(), from_, to_);
        return true;
    }

    bool unexecute(CommandHandler* handler) override {
        if (!isStill())
            handler->moveParameterKeyFrame(this->owner(), this->parameter(), to_, from_);
        return true;
    }

    // A later move of the key frame where this one left it becomes one move from this start.
    //   a -> b, then b -> c   gives   a -> c
    shared_ptr<Command> combine(shared_ptr<Command> next) override {
        shared_ptr<MoveParameterKeyFrameCmd> const later = dynamic_pointer_cast<MoveParameterKeyFrameCmd>(next);
        if (!later || !this->hasSameTarget(*later) || later->from_ != to_)
            return Command::combine(next);
        return create(this->owner(), this->parameter(), from_, later->to_);
    }

    void xmlName(XMLable::Options& options) const override { *options.stream << "MoveParameterKeyFrameCmd"; }
    void xmlAttributes(XMLable::Options& options) const override {
        this->xmlOfTarget(*options.stream);
        *options.stream << " from=\"" << from_ << "\" to=\"" << to_ << '"';
    }
    void xmlBody(XMLable::Options&, int) const override {}

protected:
    MoveParameterKeyFrameCmd(shared_ptr<Parametric const> owner, shared_ptr<Parameter<T> const> parameter,
                             long long from, long long to)
        : KeyFrameEditCmd<T>(owner, parameter), from_(from), to_(to) {}
    MoveParameterKeyFrameCmd(MoveParameterKeyFrameCmd const& other) = default;

private:
    bool isStill() const { return this->parameterTime(from_) == this->parameterTime(to_); }

    long long from_;
    long long to_;
};

}  // namespace ZelmarMediaLib
