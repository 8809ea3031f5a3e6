#pragma once
// What every parameter offers whatever its value type: its name, its keyframe times, and moving them.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Cloneable.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Range.h>
#include <ZelmarMediaLib/datatypes/Subject.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>

#include <string>
#include <vector>

namespace ZelmarMediaLib {

class ParameterDispatcher;
class ConstParameterDispatcher;

class ZML_EXPORT ParameterInterface : public virtual Cloneable, public XMLable, public Subject {
public:
    ParameterInterface* clone() const override = 0;
    virtual std::string ident() const = 0;
    virtual Range<long long> keyframeRange() const = 0;
    // All keyframes shift by delta, with one notification.
    virtual void moveKeyframes(long long delta) = 0;
    virtual int numKeyFrames() const = 0;
    virtual shared_ptr<std::vector<long long> > keyframeTimes() const = 0;
    virtual void moveKeyFrame(long long from, long long to) = 0;
    virtual long long previousKeyFrameTime(long long time) const = 0;
    virtual long long nextKeyFrameTime(long long time) const = 0;
    virtual void receiveDispatcher(ParameterDispatcher* dispatcher) = 0;
    virtual void receiveDispatcher(ConstParameterDispatcher* dispatcher) const = 0;
    // Called on the source once its clone lives in a shared_ptr.
    virtual void setupSharedClone(shared_ptr<ParameterInterface> clone) const = 0;
    virtual bool valuesDifferAtTimes(long long first, long long second) const = 0;
};

}  // namespace ZelmarMediaLib
