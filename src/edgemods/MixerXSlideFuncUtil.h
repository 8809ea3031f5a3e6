#pragma once
// How wide and how high a visual media stands on the stage at its first and last moment, as the slide functions need it.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class VisualMedia;

// The picture, less its right (or bottom) geometry crop, through the media's transform: the
// extent of the transformed corners along x (or y).
namespace MixerXSlideFuncUtil {

ZML_EXPORT double calcMediaBeginWidth(shared_ptr<VisualMedia const> media);
ZML_EXPORT double calcMediaEndWidth(shared_ptr<VisualMedia const> media);
ZML_EXPORT double calcMediaBeginHeight(shared_ptr<VisualMedia const> media);
ZML_EXPORT double calcMediaEndHeight(shared_ptr<VisualMedia const> media);

}  // namespace MixerXSlideFuncUtil
}  // namespace ZelmarMediaLib
