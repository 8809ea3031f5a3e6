#include <ZelmarMediaLib/timeline/TemporalEditor.h>

#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/timeline/MediaImpl.h>

#include <cmath>

namespace ZelmarMediaLib {

namespace {
double const closeness = 1e-8;
}

TemporalEditor::TemporalEditor(MediaImpl* media) : MediaEditor(media) {}

void TemporalEditor::move(long long offset, Range<long long>& trackRange, Range<double>&) {
    trackRange.start += offset;
}

bool TemporalEditor::validTrimStart(long long offset, Range<long long>&, Range<double>&) {
    return validMediaStartWithTrimOffset(offset) && validMediaDurationWithTrimOffset(offset);
}

bool TemporalEditor::validTrimEnd(long long offset, Range<long long>&, Range<double>&) {
    return validMediaDurationWithTrimOffset(offset);
}

// |<- offset ->|           the start moves right by offset, and the material start
// [============media=====] with it, by what the new duration leaves over.
void TemporalEditor::trimStart(long long offset, Range<long long>& trackRange, Range<double>& mediaRange) {
    if (!validTrimStart(offset, trackRange, mediaRange))
        throw ValueException<long long>("invalid media trim start offset", offset);
    double const scalar = media()->scalar();
    double const durationLimit = media()->mediaDurationLimit();
    trackRange.start += offset;
    trackRange.duration -= offset;
    double const oldDuration = mediaRange.duration;
    mediaRange.duration =
        roundIfClose(durationLimit, static_cast<double>(trackRange.duration) / scalar, closeness);
    mediaRange.start += oldDuration - mediaRange.duration;
    // A material start under 1.0 snaps to 0, also when it was meant to be there.
    if (almostNumber(0.0, mediaRange.start, closeness))
        mediaRange.start = 0.0;
}

void TemporalEditor::trimEnd(long long offset, Range<long long>& trackRange, Range<double>& mediaRange) {
    if (!validMediaDurationWithTrimOffset(offset))
        throw ValueException<long long>("invalid media trim end offset", offset);
    double const scalar = media()->scalar();
    double const durationLimit = media()->mediaDurationLimit();
    trackRange.duration -= offset;
    mediaRange.duration =
        roundIfClose(durationLimit, static_cast<double>(trackRange.duration) / scalar, closeness);
}

// The limit is multiplied by the scalar and the media end is not.
long long TemporalEditor::trimEndLimit(Range<long long> const&, Range<double> const& mediaRange,
                                       double const& scalar, double const& durationLimit) const {
    return static_cast<long long>(-std::floor(durationLimit * scalar - (mediaRange.start + mediaRange.duration)));
}

long long TemporalEditor::trimStartLimit(Range<long long> const&, Range<double> const& mediaRange,
                                         double const& scalar, double const&) const {
    return static_cast<long long>(-std::floor(mediaRange.start * scalar));
}

}  // namespace ZelmarMediaLib
