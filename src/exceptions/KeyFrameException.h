#pragma once
// A refused keyframe operation, with the time it concerned.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

namespace ZelmarMediaLib {

class ZML_EXPORT KeyFrameException : public ZelmarMediaLibException {
public:
    explicit KeyFrameException(long long time);

    long long time() const { return time_; }

private:
    long long time_;
};

}  // namespace ZelmarMediaLib
