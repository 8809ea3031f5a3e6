#pragma once
// The editor of material without a time axis (stills, annotations, transitions): no file limits.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/timeline/MediaEditor.h>

namespace ZelmarMediaLib {

class ZML_EXPORT StaticEditor : public MediaEditor {
public:
    // trimStartSum points into the owning media, or is null for a kind that keeps no sum.
    StaticEditor(MediaImpl* media, long long* trimStartSum);

    void move(long long offset, Range<long long>& trackRange, Range<double>& mediaRange) override;
    void trimStart(long long offset, Range<long long>& trackRange, Range<double>& mediaRange) override;
    // Always true: only the track's checks stop a trim of a still.
    bool validTrimStart(long long offset, Range<long long>& trackRange, Range<double>& mediaRange) override;
    void trimEnd(long long offset, Range<long long>& trackRange, Range<double>& mediaRange) override;
    bool validTrimEnd(long long offset, Range<long long>& trackRange, Range<double>& mediaRange) override;
    // No limit: the most negative long long.
    long long trimEndLimit(Range<long long> const& trackRange, Range<double> const& mediaRange, double const& scalar,
                           double const& durationLimit) const override;
    long long trimStartLimit(Range<long long> const& trackRange, Range<double> const& mediaRange, double const& scalar,
                             double const& durationLimit) const override;

private:
    long long* trimStartSum_;
};

}  // namespace ZelmarMediaLib
