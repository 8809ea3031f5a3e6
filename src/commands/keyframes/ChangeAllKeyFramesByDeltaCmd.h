#pragma once
// Adds a delta to the value of every key frame of a parameter; a drag's stream of them is one undo step.
#include <ZelmarMediaLib/commands/keyframes/KeyFrameEditCmd.h>
#include <ZelmarMediaLib/datatypes/XMLRepresentation.h>

#include <utility>
#include <vector>

namespace ZelmarMediaLib {

// For value types with operator+. Every former value is kept, so that undo gives back
// exactly what was there: memory grows with the number of key frames.
template <class T>
class ChangeAllKeyFramesByDeltaCmd : public KeyFrameEditCmd<T> {
public:
    static shared_ptr<ChangeAllKeyFramesByDeltaCmd> create(shared_ptr<Parametric const> owner,
                                                           shared_ptr<Parameter<T> const> parameter,
                                                           T const& delta) {
        return shared_ptr<ChangeAllKeyFramesByDeltaCmd>(new ChangeAllKeyFramesByDeltaCmd(owner, parameter, delta));
    }

    ChangeAllKeyFramesByDeltaCmd* clone() const override { return new ChangeAllKeyFramesByDeltaCmd(*this); }

    // A parameter without key frames leaves nothing to do.
    bool execute(CommandHandler*) override {
        this->checkTarget();
        Parameter<T>& parameter = this->editableParameter();
        shared_ptr<std::vector<long long> > const times = parameter.keyframeTimes();
        if (times->empty())
            return false;
        // Every value is read before the first changes.
        std::vector<std::pair<long long, T> > formers;
        formers.reserve(times->size());
        for (long long const time : *times)
            formers.emplace_back(time, parameter.keyframeAtTime(time)->value);
        for (std::pair<long long, T> const& former : formers)
            parameter.changeKeyFrame(former.first, former.second + delta_);
        formers_.swap(formers);
        return true;
    }

    bool unexecute(CommandHandler*) override {
        Parameter<T>& parameter = this->editableParameter();
        for (std::pair<long long, T> const& former : formers_)
            parameter.changeKeyFrame(former.first, former.second);
        return true;
    }

    // A later delta on the same parameter adds to this one; the values before the first stay
    // the ones that undo gives back.
    shared_ptr<Command> combine(shared_ptr<Command> next) override {
        shared_ptr<ChangeAllKeyFramesByDeltaCmd> const later = dynamic_pointer_cast<ChangeAllKeyFramesByDeltaCmd>(next);
        if (!later || !this->hasSameTarget(*later))
            return Command::combine(next);
        shared_ptr<ChangeAllKeyFramesByDeltaCmd> const combined(new ChangeAllKeyFramesByDeltaCmd(*this));
        combined->delta_ = delta_ + later->delta_;
        return combined;
    }

    void xmlName(XMLable::Options& options) const override { *options.stream << "ChangeAllKeyFramesByDeltaCmd"; }
    void xmlAttributes(XMLable::Options& options) const override {
        this->xmlOfTarget(*options.stream);
        *options.stream << " delta=\"" << xml_representation(delta_) << '"';
    }
    void xmlBody(XMLable::Options&, int) const override {}

protected:
    ChangeAllKeyFramesByDeltaCmd(shared_ptr<Parametric const> owner, shared_ptr<Parameter<T> const> parameter,
                                 T const& delta)
        : KeyFrameEditCmd<T>(owner, parameter), delta_(delta) {}
    ChangeAllKeyFramesByDeltaCmd(ChangeAllKeyFramesByDeltaCmd const& other) = default;

private:
    T delta_;
    std::vector<std::pair<long long, T> > formers_;
};

}  // namespace ZelmarMediaLib
