#pragma once
// The editor of material with a time axis of its own (video, audio): trims stay within the file.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/timeline/MediaEditor.h>

namespace ZelmarMediaLib {

class ZML_EXPORT TemporalEditor : public MediaEditor {
public:
    explicit TemporalEditor(MediaImpl* media);

    void move(long long offset, Range<long long>& trackRange, Range<double>& mediaRange) override;
    // Raises ValueException<long long> "invalid media trim start offset".
    void trimStart(long long offset, Range<long long>& trackRange, Range<double>& mediaRange) override;
    bool validTrimStart(long long offset, Range<long long>& trackRange, Range<double>& mediaRange) override;
    // Raises ValueException<long long> "invalid media trim end offset".
    void trimEnd(long long offset, Range<long long>& trackRange, Range<double>& mediaRange) override;
    bool validTrimEnd(long long offset, Range<long long>& trackRange, Range<double>& mediaRange) override;
    long long trimEndLimit(Range<long long> const& trackRange, Range<double> const& mediaRange, double const& scalar,
                           double const& durationLimit) const override;
    long long trimStartLimit(Range<long long> const& trackRange, Range<double> const& mediaRange, double const& scalar,
                             double const& durationLimit) const override;
};

}  // namespace ZelmarMediaLib
