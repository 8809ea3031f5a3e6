#pragma once
// An item that stands between two butted medias and blends from one to the other.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Range.h>

namespace ZelmarMediaLib {

class Effect;
class Media;

// Nothing points from a media to a transition or back: the track finds who touches whom.
class ZML_EXPORT Transition {
public:
    virtual ~Transition() = default;
    virtual Range<long long> transitionRange() const = 0;
    virtual shared_ptr<Effect const> transitionEffect() const = 0;
    // Raises bad_weak_ptr on a transition not held by a shared_ptr.
    virtual shared_ptr<Media const> transitionMediaRepresentation() const = 0;
};

}  // namespace ZelmarMediaLib
