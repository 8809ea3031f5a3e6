#pragma once
// What an edge modification function needs to know of the stage: the media and its visual mixer.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class VisualMedia;
class VisualMixer;

class ZML_EXPORT AuxEdgeModInfo {
public:
    AuxEdgeModInfo() = default;
    AuxEdgeModInfo(AuxEdgeModInfo const&) = default;
    AuxEdgeModInfo& operator=(AuxEdgeModInfo const&) = default;
    virtual ~AuxEdgeModInfo() = default;

    // An expired reference raises bad_weak_ptr.
    shared_ptr<VisualMedia const> visualMedia() const { return shared_ptr<VisualMedia const>(visualMedia_); }
    shared_ptr<VisualMixer const> visualMixer() const { return shared_ptr<VisualMixer const>(visualMixer_); }
    void setVisualMedia(weak_ptr<VisualMedia const> media) { visualMedia_ = media; }
    void setVisualMixer(weak_ptr<VisualMixer const> mixer) { visualMixer_ = mixer; }

private:
    weak_ptr<VisualMedia const> visualMedia_;
    weak_ptr<VisualMixer const> visualMixer_;
};

}  // namespace ZelmarMediaLib
