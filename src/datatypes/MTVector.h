#pragma once
// A vector that keeps the project read-locked for as long as it, or any copy of it, lives.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/datatypes/ThreadSafe.h>

#include <vector>

namespace ZelmarMediaLib {

template <class T>
class MTVector : public std::vector<T> {
public:
    // Raises boost::bad_weak_ptr when the project is gone.
    explicit MTVector(weak_ptr<ThreadSafe const> const& project)
        : lock_(boost::make_shared<ReadWriteMutex::ScopedReadLock>(&shared_ptr<ThreadSafe const>(project)->mutex())) {}

    // Copies share the lock, which goes with the last of them.
    MTVector(MTVector const&) = default;
    MTVector& operator=(MTVector const&) = default;

private:
    shared_ptr<ReadWriteMutex::ScopedReadLock> lock_;
};

}  // namespace ZelmarMediaLib
