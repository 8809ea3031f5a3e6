#include <ZelmarMediaLib/datatypes/UpdateCollector.h>

#include <ZelmarMediaLib/datatypes/Observer.h>

#include <cassert>
#include <memory>
#include <set>

namespace ZelmarMediaLib {

namespace {

typedef std::set<shared_ptr<Observable const> > CollectedSet;

// Per thread, as plain values so that nothing needs a destructor at thread exit. The set is
// made by the first object collected and freed when the collection stops.
thread_local bool collecting = false;
thread_local CollectedSet* collected = nullptr;

}  // namespace

UpdateCollector* UpdateCollector::instance() {
    // Never deleted: objects may still notify while static destructors run.
    static UpdateCollector* const collector = new UpdateCollector;
    return collector;
}

void UpdateCollector::startCollecting() {
    collecting = true;
}

void UpdateCollector::stopCollecting() {
    collecting = false;
    if (!collected)
        return;
    // Collecting is off by now, so each notify takes the ordinary path, which may in
    // turn be held by a NotifyDelay.
    std::unique_ptr<CollectedSet> const taken(collected);
    collected = nullptr;
    for (shared_ptr<Observable const> const& observable : *taken)
        observable->notify();
}

bool UpdateCollector::isCollecting() const {
    return collecting;
}

void UpdateCollector::addObservable(shared_ptr<Observable const> const& observable) {
    // Only objects that notify while this thread collects come here.
    assert(collecting);
    if (!collected)
        collected = new CollectedSet;
    collected->insert(observable);
}

UpdateCollector::Collection::Collection() {
    UpdateCollector::instance()->startCollecting();
}

UpdateCollector::Collection::~Collection() {
    try {
        UpdateCollector::instance()->stopCollecting();
    } catch (...) {
        // An observer's failure must not escape a destructor.
    }
}

}  // namespace ZelmarMediaLib
