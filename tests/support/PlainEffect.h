#pragma once
// The smallest effect that can stand in a chain: a name, no parameters, its owner's time.
#include <ZelmarMediaLib/effects/CompositeEffect.h>

#include <string>

namespace ZelmarMediaLib {
namespace test {

class PlainEffect : public CompositeEffect {
public:
    PlainEffect(std::string const& name, weak_ptr<ThreadSafe const> project) : CompositeEffect(name, project) {}
    PlainEffect* clone() const override { return new PlainEffect(*this); }
    std::list<ParameterInterface const*> parameters() const override { return {}; }
    double toParameterTime(double time) const override { return time; }
    double fromParameterTime(double time) const override { return time; }
    ParameterVector* parameterVector() const override { return new ParameterVector(projectMutex()); }
};

}  // namespace test
}  // namespace ZelmarMediaLib
