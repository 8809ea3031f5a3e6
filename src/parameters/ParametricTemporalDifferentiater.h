#pragma once
// Whether anything about an object differs between two times, so that a renderer may reuse a frame.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class Parametric;

namespace ParametricTemporalDifferentiater {

// True at the first parameter whose values differ at the two times, converted to
// parameter time and truncated, parameter by parameter with no caching.
ZML_EXPORT bool timesDiffer(shared_ptr<Parametric const> parametric, long long first, long long second);

}  // namespace ParametricTemporalDifferentiater
}  // namespace ZelmarMediaLib
