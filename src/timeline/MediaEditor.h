#pragma once
// The arithmetic of a media's edits against the limits of its material, and its rounding rules.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Range.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

namespace ZelmarMediaLib {

class MediaImpl;

// A strategy owned by its media for life. It checks nothing about neighbours: the track
// does that before it calls. Every refusal comes before any change.
class ZML_EXPORT MediaEditor : public virtual ZelmarObject {
public:
    explicit MediaEditor(MediaImpl* media);

    virtual void move(long long offset, Range<long long>& trackRange, Range<double>& mediaRange) = 0;
    virtual void trimStart(long long offset, Range<long long>& trackRange, Range<double>& mediaRange) = 0;
    virtual bool validTrimStart(long long offset, Range<long long>& trackRange, Range<double>& mediaRange) = 0;
    virtual void trimEnd(long long offset, Range<long long>& trackRange, Range<double>& mediaRange) = 0;
    virtual bool validTrimEnd(long long offset, Range<long long>& trackRange, Range<double>& mediaRange) = 0;
    // Snaps the wanted speed to one that gives a whole track duration; mediaRange is
    // never touched. Returns the scalar reached.
    virtual double stretch(double wanted, Range<long long>& trackRange, Range<double>& mediaRange, double& scalar);
    virtual long long trimEndLimit(Range<long long> const& trackRange, Range<double> const& mediaRange,
                                   double const& scalar, double const& durationLimit) const = 0;
    virtual long long trimStartLimit(Range<long long> const& trackRange, Range<double> const& mediaRange,
                                     double const& scalar, double const& durationLimit) const = 0;

    // The difference is truncated to a 32-bit integer before its absolute value is taken,
    // so any two numbers less than 1.0 apart are close, whatever the tolerance. A
    // difference beyond 32 bits truncates to the most negative integer, whose absolute
    // value stays negative: that counts as close too.
    static bool almostNumber(double a, double b, double tolerance);
    // target when close in that sense, otherwise value.
    static double roundIfClose(double target, double value, double tolerance);
    // How much material a track duration leaves over.
    static double stretchOffset(long long trackDuration, double mediaDuration, double scalar);
    // Half up by the fractional part: a negative number with a fraction always goes down.
    static double roundHalfUp(double value);

    // A speed near the wanted one that gives a whole number of track units; 1.0 returns
    // to real time, cut to the material left behind the media start.
    double findScalar(double wanted) const;
    // The track duration that stretch() gives for these values, without changing anything;
    // not above 0 where stretch() refuses. Checks before a stretch use it, so that they test
    // exactly what the stretch will do.
    long long stretchedDuration(double wanted, long long trackDuration, double scalar) const;
    bool validMediaStartWithTrimOffset(long long offset) const;
    bool validMediaDurationWithTrimOffset(long long offset) const;

protected:
    MediaImpl* media() const { return media_; }

private:
    MediaImpl* media_;
};

}  // namespace ZelmarMediaLib
