#include <ZelmarMediaLib/edgemods/MixerXSlideFuncUtil.h>

#include <ZelmarMediaLib/datatypes/Point.h>
#include <ZelmarMediaLib/datatypes/TransformMatrix.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/parameters/VectorParam.h>
#include <ZelmarMediaLib/timeline/VisualMedia.h>

#include <algorithm>

namespace ZelmarMediaLib {
namespace MixerXSlideFuncUtil {

namespace {

enum class Axis { x, y };

// The bottom crop comes off the x extent too, not the y extent: the height is measured on the
// same shape as the width, which is how the stage positions of slides have always been computed.
double calcMediaExtent(VisualMedia const& media, double time, Axis axis) {
    double const w = media.width();
    double const h = media.height();
    double const x = 0.0, y = 0.0;
    int const cropComponent = axis == Axis::x ? 2 : 3;
    double const crop = media.geometryCropParam()->at(cropComponent)->valueAtTime(media.toParameterTime(time));
    TransformMatrix const transform = media.transformAtTime(static_cast<long long>(time));
    Point const corners[4] = {Point(x, y, 0), Point(x, y + h, 0), Point(x + w - crop, y + h, 0),
                              Point(x + w - crop, y, 0)};
    double low = 0.0, high = 0.0;
    for (int i = 0; i < 4; ++i) {
        Point const moved = transform * corners[i];
        double const along = axis == Axis::x ? moved.x : moved.y;
        if (i == 0 || along < low)
            low = along;
        if (i == 0 || along > high)
            high = along;
    }
    return high - low;
}

double endTime(VisualMedia const& media) {
    return static_cast<double>(media.duration());
}

}  // namespace

double calcMediaBeginWidth(shared_ptr<VisualMedia const> media) {
    return calcMediaExtent(*media, 0.0, Axis::x);
}

double calcMediaEndWidth(shared_ptr<VisualMedia const> media) {
    return calcMediaExtent(*media, endTime(*media), Axis::x);
}

double calcMediaBeginHeight(shared_ptr<VisualMedia const> media) {
    return calcMediaExtent(*media, 0.0, Axis::y);
}

double calcMediaEndHeight(shared_ptr<VisualMedia const> media) {
    return calcMediaExtent(*media, endTime(*media), Axis::y);
}

}  // namespace MixerXSlideFuncUtil
}  // namespace ZelmarMediaLib
