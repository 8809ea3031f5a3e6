#include <ZelmarMediaLib/datatypes/NotifyDelay.h>

#include <ZelmarMediaLib/datatypes/Observer.h>

#include <cassert>
#include <list>

namespace ZelmarMediaLib {

namespace {

// Each thread has a delay of its own. Commands open theirs on the thread that holds the
// project's write lock, while reader threads edit clones of their own (a copied portion is
// trimmed where it is made), whose notifications must neither wait for the writer's delay
// nor touch its list. Plain values, so that the state needs no destructor at thread exit.
thread_local int delayCount = 0;
// Made when the first subject is held back and freed when the outermost delay closes.
thread_local std::list<Observable const*>* heldObservables = nullptr;
thread_local bool walking = false;

}  // namespace

NotifyDelay::NotifyDelay() {
    ++delayCount;
}

NotifyDelay::NotifyDelay(NotifyDelay const&) : ZelmarObject() {
    ++delayCount;
}

NotifyDelay::~NotifyDelay() {
    // A delay closed on a thread that did not open it would upset both threads' counts.
    assert(delayCount > 0);
    if (--delayCount > 0 || !heldObservables)
        return;
    // An observer may open and close a delay of its own during the walk; that inner end
    // walks the same list on, and only the outermost walk frees it.
    bool const outermostWalk = !walking;
    walking = true;
    // Entries are taken off one at a time, so that a subject destroyed by an observer
    // during the walk can still remove its remaining entries.
    std::list<Observable const*>& held = *heldObservables;
    while (!held.empty()) {
        Observable const* observable = held.front();
        held.pop_front();
        try {
            observable->notify();
        } catch (...) {
            // An observer's failure must not escape a destructor; the others still hear.
        }
    }
    if (outermostWalk) {
        walking = false;
        delete heldObservables;
        heldObservables = nullptr;
    }
}

bool NotifyDelay::isActive() {
    return delayCount > 0;
}

void NotifyDelay::addObservable(Observable const* observable) {
    if (!heldObservables)
        heldObservables = new std::list<Observable const*>;
    heldObservables->push_back(observable);
}

void NotifyDelay::removeObservable(Observable const* observable) {
    if (heldObservables)
        heldObservables->remove(observable);
}

void NotifyDelay::removeObserver(Observer* observer) {
    if (!heldObservables)
        return;
    for (Observable const* observable : *heldObservables)
        observable->detach(observer);
}

}  // namespace ZelmarMediaLib
