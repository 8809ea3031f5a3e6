#include <ZelmarMediaLib/datatypes/ObserverList.h>

#include <algorithm>

namespace ZelmarMediaLib {

void ObserverList::attach(Observer* observer) {
    observers_.push_back(observer);
}

void ObserverList::detach(Observer* observer) {
    observers_.remove(observer);
}

bool ObserverList::isAttached(Observer* observer) const {
    return std::find(observers_.begin(), observers_.end(), observer) != observers_.end();
}

std::size_t ObserverList::size() const {
    return observers_.size();
}

void ObserverList::notify() {
    // A list iterator survives an append, so an observer may attach others while we walk.
    for (auto it = observers_.begin(); it != observers_.end(); ++it)
        (*it)->observerUpdate();
}

}  // namespace ZelmarMediaLib
