#include <ZelmarMediaLib/datatypes/UpdateCollector.h>

#include <ZelmarMediaLib/datatypes/Observer.h>

namespace ZelmarMediaLib {

UpdateCollector::UpdateCollector() : record_(new Record) {}

UpdateCollector* UpdateCollector::instance() {
    // Never deleted: objects may still notify while static destructors run.
    static UpdateCollector* const collector = new UpdateCollector;
    return collector;
}

void UpdateCollector::startCollecting() {
    record_->collecting = true;
}

void UpdateCollector::stopCollecting() {
    record_->collecting = false;
    // Collecting is off by now, so each notify takes the ordinary path, which may in
    // turn be held by a NotifyDelay.
    std::set<shared_ptr<Observable const> > collected;
    collected.swap(record_->observables);
    for (shared_ptr<Observable const> const& observable : collected)
        observable->notify();
}

bool UpdateCollector::isCollecting() const {
    return record_->collecting;
}

void UpdateCollector::addObservable(shared_ptr<Observable const> const& observable) {
    record_->observables.insert(observable);
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
