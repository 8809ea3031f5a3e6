#pragma once
// The span of time over which an object's parameters change.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Range.h>

namespace ZelmarMediaLib {

class Parametric;

namespace KeyframeUtil {

// Starts from the first parameter's keyframe range (which raises KeyFrameException(0) when
// it has no keyframe) and widens it by every parameter with more than one keyframe. The
// end is recomputed from the new start with the old duration, so a start that moves
// earlier drops that distance: (10,10) meeting (0,5) gives (0,10).
ZML_EXPORT Range<long long> keyframeRange(Parametric const* parametric);

}  // namespace KeyframeUtil
}  // namespace ZelmarMediaLib
