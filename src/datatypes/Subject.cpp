#include <ZelmarMediaLib/datatypes/Subject.h>

#include <ZelmarMediaLib/datatypes/NotifyDelay.h>
#include <ZelmarMediaLib/datatypes/ObserverList.h>

namespace ZelmarMediaLib {

Subject::Subject() = default;

Subject::Subject(Subject const&) : Observable() {}

Subject& Subject::operator=(Subject const&) {
    return *this;
}

Subject::~Subject() {
    // A subject that dies while held back must leave no dangling entry.
    NotifyDelay::removeObservable(this);
}

void Subject::attach(Observer* observer) const {
    observers_.attach(observer);
}

void Subject::detach(Observer* observer) const {
    if (observers_.isAttached(observer))
        observers_.detach(observer);
}

void Subject::notify() const {
    if (disableCount_ > 0)
        return;
    if (NotifyDelay::isActive()) {
        NotifyDelay::addObservable(this);
        return;
    }
    observers_.notify();
}

bool Subject::isAttached(Observer* observer) const {
    return observers_.isAttached(observer);
}

std::size_t Subject::numObservers() const {
    return observers_.size();
}

Subject::NotifyDisabler Subject::disableNotifies() const {
    return NotifyDisabler(this);
}

bool Subject::isNotifying() const {
    return disableCount_ == 0;
}

Subject::NotifyDisabler::NotifyDisabler(Subject const* subject) : subject_(subject) {
    ++subject_->disableCount_;
}

Subject::NotifyDisabler::NotifyDisabler(NotifyDisabler const& other) : subject_(other.subject_) {
    ++subject_->disableCount_;
}

Subject::NotifyDisabler::~NotifyDisabler() {
    --subject_->disableCount_;
}

}  // namespace ZelmarMediaLib
