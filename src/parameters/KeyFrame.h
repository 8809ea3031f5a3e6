#pragma once
// One value of a parameter at a whole edit-unit time.
#include <ZelmarMediaLib/datatypes/Cloneable.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

namespace ZelmarMediaLib {

template <class T>
class KeyFrame : public virtual ZelmarObject, public virtual Cloneable {
public:
    KeyFrame(long long timeValue, T const& valueAtTime) : time(timeValue), value(valueAtTime) {}
    KeyFrame(KeyFrame const&) = default;

    // A pointer value is copied and its object shared.
    KeyFrame* clone() const override { return new KeyFrame(*this); }

    long long time;
    T value;
};

}  // namespace ZelmarMediaLib
