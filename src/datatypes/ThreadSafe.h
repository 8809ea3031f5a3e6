#pragma once
// Access to the project-wide lock that guards every object of a document.

namespace ZelmarMediaLib {

class ReadWriteMutex;

class ThreadSafe {
public:
    virtual ~ThreadSafe() = default;
    virtual ReadWriteMutex& mutex() const = 0;
};

}  // namespace ZelmarMediaLib
