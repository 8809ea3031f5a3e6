#pragma once
// Something that occupies a span of timeline time.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Range.h>

namespace ZelmarMediaLib {

class ZML_EXPORT Temporal {
public:
    virtual ~Temporal() = default;
    virtual long long startTime() const = 0;
    virtual long long endTime() const = 0;
    virtual long long duration() const = 0;

    Range<long long> timeRange() const { return Range<long long>(startTime(), duration()); }
};

}  // namespace ZelmarMediaLib
