#pragma once
// From an owner's time to the time of its parameters' key frames, as every key frame edit converts it.
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class Parametric;

// Through the owner's toParameterTime, truncated toward zero: callers never convert by hand,
// so a command and the project's own move land on the same key frame.
ZML_EXPORT long long toParameterKeyFrameTime(Parametric const& owner, long long time);

}  // namespace ZelmarMediaLib
