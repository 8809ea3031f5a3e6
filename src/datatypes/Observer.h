#pragma once
// Change notification without a payload: an observer is only called, and looks for itself.
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class ZML_EXPORT Observer {
public:
    virtual ~Observer() = default;
    virtual void observerUpdate() = 0;
};

// Const, so that const views of the model can be watched.
class ZML_EXPORT Observable {
public:
    virtual ~Observable() = default;
    virtual void attach(Observer* observer) const = 0;
    virtual void detach(Observer* observer) const = 0;
    virtual void notify() const = 0;
};

}  // namespace ZelmarMediaLib
