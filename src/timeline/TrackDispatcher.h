#pragma once
// Double dispatch on the three track kinds.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class AudioTrack;
class ImageTrack;
class VisualTrack;

class ZML_EXPORT TrackDispatcher {
public:
    virtual ~TrackDispatcher() = default;
    virtual void dispatchTrack(shared_ptr<VisualTrack> track) = 0;
    virtual void dispatchTrack(shared_ptr<ImageTrack> track) = 0;
    virtual void dispatchTrack(shared_ptr<AudioTrack> track) = 0;
};

class ZML_EXPORT ConstTrackDispatcher {
public:
    virtual ~ConstTrackDispatcher() = default;
    virtual void dispatchTrack(shared_ptr<VisualTrack const> track) = 0;
    virtual void dispatchTrack(shared_ptr<ImageTrack const> track) = 0;
    virtual void dispatchTrack(shared_ptr<AudioTrack const> track) = 0;
};

}  // namespace ZelmarMediaLib
