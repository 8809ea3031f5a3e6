#pragma once
// A half-open span of time: from start up to, but not including, start + duration.
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

#include <ostream>

namespace ZelmarMediaLib {

template <class T>
class Range : public ZelmarObject {
public:
    Range() : start(), duration() {}
    Range(T startValue, T durationValue) : start(startValue), duration(durationValue) {}

    T end() const { return start + duration; }

    bool operator==(Range const& other) const { return start == other.start && duration == other.duration; }
    bool operator!=(Range const& other) const { return !(*this == other); }

    // Ranges that are disjoint, or only touch, give (0,0) rather than an empty range at
    // the place of contact; an empty range inside the other keeps its place.
    Range intersection(Range const& other) const {
        T const s1 = start, e1 = end(), s2 = other.start, e2 = other.end();
        T resultStart = T();
        if (s1 <= s2 && s2 < e1)
            resultStart = s2;
        else if (s2 <= s1 && s1 < e2)
            resultStart = s1;
        T resultEnd = T();
        if (s1 <= e2 - 1 && e2 - 1 < e1)
            resultEnd = e2;
        else if (s2 <= e1 - 1 && e1 - 1 < e2)
            resultEnd = e1;
        return Range(resultStart, resultEnd - resultStart);
    }

    T start;
    T duration;
};

template <class T>
std::ostream& operator<<(std::ostream& out, Range<T> const& range) {
    return out << '(' << range.start << ',' << range.duration << ')';
}

}  // namespace ZelmarMediaLib
