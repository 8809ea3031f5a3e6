#include <ZelmarMediaLib/effects/ParametricEffectableUtil.h>

#include <ZelmarMediaLib/effects/Effect.h>
#include <ZelmarMediaLib/effects/Effectable.h>

namespace ZelmarMediaLib {
namespace ParametricEffectableUtil {

void addEffectablesParameters(Effectable const* effectable, ParameterVector*) {
    for (int i = 0; i < effectable->numEffects(); ++i)
        effectable->effectAtIndex(i);
}

}  // namespace ParametricEffectableUtil
}  // namespace ZelmarMediaLib
