#include <ZelmarMediaLib/parameters/ParametricTemporalDifferentiater.h>

#include <ZelmarMediaLib/parameters/ParameterInterface.h>
#include <ZelmarMediaLib/parameters/Parametric.h>

#include <memory>

namespace ZelmarMediaLib {
namespace ParametricTemporalDifferentiater {

bool timesDiffer(shared_ptr<Parametric const> parametric, long long first, long long second) {
    std::unique_ptr<ParameterVector> const parameters(parametric->parameterVector());
    for (shared_ptr<ParameterInterface const> const& parameter : *parameters) {
        long long const firstTime = static_cast<long long>(parametric->toParameterTime(static_cast<double>(first)));
        long long const secondTime = static_cast<long long>(parametric->toParameterTime(static_cast<double>(second)));
        if (parameter->valuesDifferAtTimes(firstTime, secondTime))
            return true;
    }
    return false;
}

}  // namespace ParametricTemporalDifferentiater
}  // namespace ZelmarMediaLib
