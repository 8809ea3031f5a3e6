#include <ZelmarMediaLib/parameters/KeyframeUtil.h>

#include <ZelmarMediaLib/parameters/ParameterInterface.h>
#include <ZelmarMediaLib/parameters/Parametric.h>

#include <algorithm>
#include <memory>

namespace ZelmarMediaLib {
namespace KeyframeUtil {

Range<long long> keyframeRange(Parametric const* parametric) {
    std::unique_ptr<ParameterVector> const parameters(parametric->parameterVector());
    if (parameters->empty())
        return Range<long long>(0, 0);
    Range<long long> range = parameters->front()->keyframeRange();
    for (auto it = std::next(parameters->begin()); it != parameters->end(); ++it) {
        // A parameter with one keyframe is a constant and doesn't widen the range.
        if ((*it)->numKeyFrames() <= 1)
            continue;
        Range<long long> const other = (*it)->keyframeRange();
        long long const start = std::min(range.start, other.start);
        long long const end = std::max(other.start + other.duration, start + range.duration);
        range = Range<long long>(start, end - start);
    }
    return range;
}

}  // namespace KeyframeUtil
}  // namespace ZelmarMediaLib
