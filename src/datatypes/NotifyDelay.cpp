#include <ZelmarMediaLib/datatypes/NotifyDelay.h>

#include <ZelmarMediaLib/datatypes/Observer.h>

#include <list>

namespace ZelmarMediaLib {

namespace {

int& delayCount() {
    static int count = 0;
    return count;
}

std::list<Observable const*>& heldObservables() {
    static std::list<Observable const*> held;
    return held;
}

}  // namespace

NotifyDelay::NotifyDelay() {
    ++delayCount();
}

NotifyDelay::NotifyDelay(NotifyDelay const&) : ZelmarObject() {
    ++delayCount();
}

NotifyDelay::~NotifyDelay() {
    if (--delayCount() > 0)
        return;
    // Entries are taken off one at a time, so that a subject destroyed by an observer
    // during the walk can still remove its remaining entries.
    std::list<Observable const*>& held = heldObservables();
    while (!held.empty()) {
        Observable const* observable = held.front();
        held.pop_front();
        try {
            observable->notify();
        } catch (...) {
            // An observer's failure must not escape a destructor; the others still hear.
        }
    }
}

bool NotifyDelay::isActive() {
    return delayCount() > 0;
}

void NotifyDelay::addObservable(Observable const* observable) {
    heldObservables().push_back(observable);
}

void NotifyDelay::removeObservable(Observable const* observable) {
    heldObservables().remove(observable);
}

void NotifyDelay::removeObserver(Observer* observer) {
    for (Observable const* observable : heldObservables())
        observable->detach(observer);
}

}  // namespace ZelmarMediaLib
