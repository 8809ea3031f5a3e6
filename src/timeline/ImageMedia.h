#pragma once
// A still picture: free of file limits, with its keyframes held on the same moment when its start is trimmed.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/timeline/VisualMedia.h>

#include <memory>

namespace ZelmarMediaLib {

class StaticEditor;

class ZML_EXPORT ImageMedia : public VisualMedia {
public:
    ~ImageMedia() override;

    MediaEditor* mediaEditor() override;
    MediaEditor const* mediaEditor() const override;
    // With s the sum of start trims and k the scalar: s + t / k.
    double toParameterTime(double time) const override;
    double fromParameterTime(double time) const override;
    void xmlName(XMLable::Options& options) const override;

    long long trimStartSum() const;

protected:
    ImageMedia(long long start, long long duration, double mediaStart, double mediaDuration,
               weak_ptr<ThreadSafe const> project);
    ImageMedia(ImageMedia const& other);

private:
    long long trimStartSum_;
    std::unique_ptr<StaticEditor> editor_;
};

}  // namespace ZelmarMediaLib
