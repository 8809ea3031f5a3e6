#include <ZelmarMediaLib/commands/keyframes/KeyFrameTime.h>

#include <ZelmarMediaLib/parameters/Parametric.h>

namespace ZelmarMediaLib {

long long toParameterKeyFrameTime(Parametric const& owner, long long time) {
    return static_cast<long long>(owner.toParameterTime(static_cast<double>(time)));
}

}  // namespace ZelmarMediaLib
