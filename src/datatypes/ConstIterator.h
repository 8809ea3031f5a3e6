#pragma once
// Iterators into model containers that keep the project read-locked while any copy of them exists.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

#include <iterator>

namespace ZelmarMediaLib {

// Shared by the forward and the reverse form; It is the container's own iterator.
template <class It>
class LockedIterator : public virtual ZelmarObject {
public:
    typedef typename std::iterator_traits<It>::iterator_category iterator_category;
    typedef typename std::iterator_traits<It>::value_type value_type;
    typedef typename std::iterator_traits<It>::difference_type difference_type;
    typedef typename std::iterator_traits<It>::pointer pointer;
    typedef typename std::iterator_traits<It>::reference reference;

    LockedIterator(It iterator, shared_ptr<ReadWriteMutex::ScopedReadLock> lock)
        : iterator_(iterator), lock_(lock) {}
    // Takes a read lock of its own on the mutex.
    LockedIterator(It iterator, ReadWriteMutex& mutex)
        : iterator_(iterator), lock_(boost::make_shared<ReadWriteMutex::ScopedReadLock>(&mutex)) {}

    reference operator*() const { return *iterator_; }
    pointer operator->() const { return &*iterator_; }

    LockedIterator& operator++() {
        ++iterator_;
        return *this;
    }
    LockedIterator operator++(int) {
        LockedIterator before(*this);
        ++iterator_;
        return before;
    }
    LockedIterator& operator--() {
        --iterator_;
        return *this;
    }
    LockedIterator operator--(int) {
        LockedIterator before(*this);
        --iterator_;
        return before;
    }

    bool operator==(LockedIterator const& other) const { return iterator_ == other.iterator_; }
    bool operator!=(LockedIterator const& other) const { return iterator_ != other.iterator_; }

    It const& base() const { return iterator_; }
    shared_ptr<ReadWriteMutex::ScopedReadLock> const& lock() const { return lock_; }

private:
    It iterator_;
    shared_ptr<ReadWriteMutex::ScopedReadLock> lock_;
};

template <class C>
using ConstIterator = LockedIterator<typename C::const_iterator>;

template <class C>
using ConstRIterator = LockedIterator<typename C::const_reverse_iterator>;

}  // namespace ZelmarMediaLib
