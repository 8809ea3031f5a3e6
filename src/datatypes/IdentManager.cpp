#include <ZelmarMediaLib/datatypes/IdentManager.h>

namespace ZelmarMediaLib {

IdentManager* IdentManager::instance() {
    // Never destroyed: objects retire their numbers while static destructors run.
    static IdentManager* const manager = new IdentManager;
    return manager;
}

unsigned int IdentManager::newIdent() {
    std::lock_guard<std::mutex> lock(mutex_);
    // The most recently retired number first, which keeps the numbers small.
    if (!retiredIdents_.empty()) {
        unsigned int const ident = retiredIdents_.back();
        retiredIdents_.pop_back();
        return ident;
    }
    return nextIdent_++;
}

void IdentManager::retireIdent(unsigned int ident) {
    std::lock_guard<std::mutex> lock(mutex_);
    retiredIdents_.push_back(ident);
}

}  // namespace ZelmarMediaLib
