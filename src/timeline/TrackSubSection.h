#pragma once
// Which medias of a track lie in a range, and which part of each.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Range.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

#include <utility>
#include <vector>

namespace ZelmarMediaLib {

template <class T>
class TrackSubSection : public virtual ZelmarObject {
public:
    typedef std::pair<shared_ptr<T const>, Range<long long> > MediaRange;

    void addMedia(shared_ptr<T const> media, Range<long long> const& part) { parts_.emplace_back(media, part); }

    std::vector<MediaRange> const& parts() const { return parts_; }
    typename std::vector<MediaRange>::const_iterator begin() const { return parts_.begin(); }
    typename std::vector<MediaRange>::const_iterator end() const { return parts_.end(); }

private:
    std::vector<MediaRange> parts_;
};

}  // namespace ZelmarMediaLib
