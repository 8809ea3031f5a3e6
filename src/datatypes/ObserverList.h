#pragma once
// The observers of one subject, in the order they attached; the observers are not owned.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Observer.h>

#include <cstddef>
#include <list>

namespace ZelmarMediaLib {

class ZML_EXPORT ObserverList {
public:
    // No test for doubles: an observer attached twice is called twice.
    void attach(Observer* observer);
    // Removes every entry of the observer.
    void detach(Observer* observer);
    bool isAttached(Observer* observer) const;
    std::size_t size() const;
    // An exception from an observer ends the walk; the observers behind it are not called.
    void notify();

private:
    std::list<Observer*> observers_;
};

}  // namespace ZelmarMediaLib
