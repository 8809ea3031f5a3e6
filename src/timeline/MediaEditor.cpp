#include <ZelmarMediaLib/timeline/MediaEditor.h>

#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/timeline/MediaImpl.h>

#include <algorithm>
#include <climits>
#include <cmath>

namespace ZelmarMediaLib {

namespace {

double const closeness = 1e-8;

// Truncation toward zero to 32 bits; a value outside the range, or NaN, gives the most
// negative integer, as the hardware conversion does.
int truncateTo32Bits(double value) {
    if (!(value > -2147483649.0 && value < 2147483648.0))
        return INT_MIN;
    return static_cast<int>(value);
}

int absoluteKeepingMinimum(int value) {
    if (value == INT_MIN)
        return INT_MIN;
    return value < 0 ? -value : value;
}

}  // namespace

MediaEditor::MediaEditor(MediaImpl* media) : media_(media) {}

bool MediaEditor::almostNumber(double a, double b, double tolerance) {
    return tolerance > absoluteKeepingMinimum(truncateTo32Bits(a - b));
}

double MediaEditor::roundIfClose(double target, double value, double tolerance) {
    return absoluteKeepingMinimum(truncateTo32Bits(target - value)) < tolerance ? target : value;
}

double MediaEditor::stretchOffset(long long trackDuration, double mediaDuration, double scalar) {
    return mediaDuration - static_cast<double>(trackDuration) / scalar;
}

double MediaEditor::roundHalfUp(double value) {
    return std::fmod(value, 1.0) >= 0.5 ? std::ceil(value) : std::floor(value);
}

double MediaEditor::findScalar(double wanted) const {
    Range<long long> const trackRange = media_->trackRange();
    double const duration = static_cast<double>(trackRange.duration);
    double const scalar = media_->scalar();
    if (wanted == 1.0) {
        double const whole = roundHalfUp(duration / scalar);
        double const room = std::floor(media_->mediaDurationLimit() - media_->mediaRange().start);
        return std::min(whole, room) * scalar / duration;
    }
    return roundHalfUp(duration / scalar * wanted) * scalar / duration;
}

long long MediaEditor::stretchedDuration(double wanted, long long trackDuration, double scalar) const {
    double const rounded = roundHalfUp(static_cast<double>(trackDuration) / scalar * findScalar(wanted));
    // The new duration passes through 32 bits: one beyond that range comes out negative.
    return truncateTo32Bits(rounded);
}

double MediaEditor::stretch(double wanted, Range<long long>& trackRange, Range<double>&, double& scalar) {
    double const found = findScalar(wanted);
    long long const duration = stretchedDuration(wanted, trackRange.duration, scalar);
    if (duration <= 0)
        throw ValueException<double>("invalid duration after media stretch (<=0)", wanted);
    trackRange.duration = duration;
    if (wanted == 1.0) {
        scalar = 1.0;
        return 1.0;
    }
    scalar = found;
    return found;
}

bool MediaEditor::validMediaStartWithTrimOffset(long long offset) const {
    Range<long long> const trackRange = media_->trackRange();
    if (trackRange.start + offset < 0)
        return false;
    Range<double> const mediaRange = media_->mediaRange();
    double const start =
        stretchOffset(trackRange.duration - offset, mediaRange.duration, media_->scalar()) + mediaRange.start;
    double const startLimit = media_->mediaStartLimit();
    if (startLimit > roundIfClose(startLimit, start, closeness))
        return false;
    double const durationLimit = media_->mediaDurationLimit();
    return roundIfClose(durationLimit, start, closeness) < durationLimit;
}

bool MediaEditor::validMediaDurationWithTrimOffset(long long offset) const {
    Range<long long> const trackRange = media_->trackRange();
    if (trackRange.duration - offset < 0)
        return false;
    Range<double> const mediaRange = media_->mediaRange();
    double const delta = stretchOffset(trackRange.duration - offset, mediaRange.duration, media_->scalar());
    double const duration = mediaRange.duration - delta;
    // By the closeness rule a new media duration under 1.0 is always refused.
    if (almostNumber(0.0, duration, closeness) || duration <= 0)
        return false;
    double const durationLimit = media_->mediaDurationLimit();
    return !(roundIfClose(durationLimit, duration, closeness) > durationLimit);
}

}  // namespace ZelmarMediaLib
