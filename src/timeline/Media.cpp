#include <ZelmarMediaLib/timeline/Media.h>

namespace ZelmarMediaLib {

Media::Media(weak_ptr<ThreadSafe const> project) : SubTimeline(project) {}

Media::Media(Media const& other)
    : XMLIdentified(other), SubTimeline(other), DecoratedCloneable<Media>(other), enable_shared_from_this<Media>(),
      EdgeModifiable(other) {}

Range<long long> Media::trackRangeWithMove(long long offset) const {
    Range<long long> const range = trackRange();
    return Range<long long>(range.start + offset, range.duration);
}

Range<long long> Media::trackRangeWithTrimStart(long long offset) const {
    Range<long long> const range = trackRange();
    return Range<long long>(range.start + offset, range.duration - offset);
}

Range<long long> Media::trackRangeWithTrimEnd(long long offset) const {
    Range<long long> const range = trackRange();
    return Range<long long>(range.start, range.duration - offset);
}

}  // namespace ZelmarMediaLib
