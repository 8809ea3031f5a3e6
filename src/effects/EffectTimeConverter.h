#pragma once
// How the owner of an effect maps timeline time to the time in which the effect's keyframes are kept.
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class ZML_EXPORT EffectTimeConverter {
public:
    virtual long long globalTimeToEffectTime(long long time) const = 0;

protected:
    // Not virtual: an effect only borrows its converter and never deletes it through this interface.
    ~EffectTimeConverter() = default;
};

}  // namespace ZelmarMediaLib
