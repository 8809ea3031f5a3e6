#pragma once
// What every key frame command holds: the parameter's owner, the parameter, and the owner's clock.
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/commands/keyframes/KeyFrameTime.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/parameters/Parameter.h>
#include <ZelmarMediaLib/parameters/Parametric.h>

#include <ostream>

namespace ZelmarMediaLib {

// Times are given in the owner's units and become key frame times through the owner, so
// that a media's key frames follow its media start and scalar without the caller knowing.
// The edit is done on the parameter behind the handle: a parameter edit needs nothing of
// the project but the write lock that the command path holds already.
template <class T>
class KeyFrameEditCmd : public Command {
public:
    shared_ptr<Parametric const> const& owner() const { return owner_; }
    shared_ptr<Parameter<T> const> const& parameter() const { return parameter_; }

protected:
    KeyFrameEditCmd(shared_ptr<Parametric const> owner, shared_ptr<Parameter<T> const> parameter)
        : owner_(owner), parameter_(parameter) {}
    KeyFrameEditCmd(KeyFrameEditCmd const& other) = default;

    // Raises before anything changes when the command names no parameter or no owner.
    void checkTarget() const {
        if (!parameter_)
            throw ZelmarMediaLibException("attempting to edit a key frame of a null parameter");
        if (!owner_)
            throw ZelmarMediaLibException("attempting to edit a key frame without the parameter's owner");
    }

    Parameter<T>& editableParameter() const { return const_cast<Parameter<T>&>(*parameter_); }

    long long parameterTime(long long time) const { return toParameterKeyFrameTime(*owner_, time); }

    bool hasSameTarget(KeyFrameEditCmd const& other) const {
        return owner_ == other.owner_ && parameter_ == other.parameter_;
    }

    // Each by the address of the whole object, whichever of its bases the handle points at.
    void xmlOfTarget(std::ostream& out) const {
        out << "owner=\"" << dynamic_cast<void const*>(owner_.get()) << "\" parameter=\""
            << dynamic_cast<void const*>(parameter_.get()) << '"';
    }

private:
    shared_ptr<Parametric const> owner_;
    shared_ptr<Parameter<T> const> parameter_;
};

}  // namespace ZelmarMediaLib
