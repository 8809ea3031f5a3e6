#pragma once
// A picture with a time axis of its own, trimmed within the limits of its material.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/timeline/VisualMedia.h>

#include <memory>

namespace ZelmarMediaLib {

class TemporalEditor;

class ZML_EXPORT VideoMedia : public VisualMedia {
public:
    ~VideoMedia() override;

    std::string description() const override;
    MediaEditor* mediaEditor() override;
    MediaEditor const* mediaEditor() const override;
    void xmlName(XMLable::Options& options) const override;

protected:
    VideoMedia(Range<long long> const& range, double startLimit, double durationLimit,
               weak_ptr<ThreadSafe const> project);
    VideoMedia(VideoMedia const& other);

private:
    std::unique_ptr<TemporalEditor> editor_;
};

}  // namespace ZelmarMediaLib
