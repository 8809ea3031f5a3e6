#pragma once
// The hook by which an owner of effects could add their parameters to its own list.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/parameters/Parametric.h>

namespace ZelmarMediaLib {

class Effectable;

namespace ParametricEffectableUtil {

// Walks the chain and adds nothing: the effects' parameters are deliberately kept out of
// their owner's parameter list.
ZML_EXPORT void addEffectablesParameters(Effectable const* effectable, ParameterVector* list);

}  // namespace ParametricEffectableUtil

}  // namespace ZelmarMediaLib
