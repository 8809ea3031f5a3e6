#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>

#include <ZelmarMediaLib/exceptions/ThreadLockingException.h>

#include <boost/thread/exceptions.hpp>
#include <boost/thread/thread.hpp>

#include <cerrno>
#include <map>

#include <pthread.h>
#include <semaphore.h>

namespace ZelmarMediaLib {

namespace {

// mainMutex is released by whichever reader leaves last, which need not be the thread
// that took it; a pthread mutex forbids that, a semaphore of one permit does not.
class BinarySemaphore {
public:
    BinarySemaphore() {
        if (sem_init(&semaphore_, 0, 1) != 0)
            throw boost::thread_resource_error(errno, "ReadWriteMutex: sem_init failed");
    }
    ~BinarySemaphore() { sem_destroy(&semaphore_); }
    BinarySemaphore(BinarySemaphore const&) = delete;
    BinarySemaphore& operator=(BinarySemaphore const&) = delete;

    void lock() {
        while (sem_wait(&semaphore_) != 0) {
            // Only a signal interrupts the wait; take it up again.
        }
    }
    void unlock() { sem_post(&semaphore_); }

private:
    sem_t semaphore_;
};

class StateMutex {
public:
    StateMutex() {
        int const error = pthread_mutex_init(&mutex_, nullptr);
        if (error != 0)
            throw boost::thread_resource_error(error, "ReadWriteMutex: pthread_mutex_init failed");
    }
    ~StateMutex() { pthread_mutex_destroy(&mutex_); }
    StateMutex(StateMutex const&) = delete;
    StateMutex& operator=(StateMutex const&) = delete;

    void lock() { pthread_mutex_lock(&mutex_); }
    void unlock() { pthread_mutex_unlock(&mutex_); }

private:
    pthread_mutex_t mutex_;
};

class StateSection {
public:
    explicit StateSection(StateMutex& mutex) : mutex_(mutex) { mutex_.lock(); }
    ~StateSection() { mutex_.unlock(); }
    StateSection(StateSection const&) = delete;
    StateSection& operator=(StateSection const&) = delete;

private:
    StateMutex& mutex_;
};

}  // namespace

class ReadWriteMutexImpl {
public:
    // Held by the writer, or by the reader group as a whole.
    BinarySemaphore mainMutex;
    // Empty (default-constructed) when there is no writer.
    boost::thread::id writer;
    int writerCount = 0;
    std::map<boost::thread::id, int> readers;
    // Guards every other field, held only for a few instructions and never while
    // mainMutex is waited for.
    mutable StateMutex stateMutex;
    int readerCount = 0;
};

ReadWriteMutex::ReadWriteMutex() : impl_(new ReadWriteMutexImpl) {}

ReadWriteMutex::~ReadWriteMutex() = default;

void ReadWriteMutex::acquireReadLock() {
    boost::thread::id const caller = boost::this_thread::get_id();
    bool firstReader = false;
    {
        StateSection section(impl_->stateMutex);
        if (impl_->writer == caller)
            return;  // a writer reads freely, and is not counted
        firstReader = (++impl_->readerCount == 1);
    }
    // Only the first reader waits for a writer; the others are let through at once,
    // even while a writer works, because the count is already above 0.
    if (firstReader)
        impl_->mainMutex.lock();
}

void ReadWriteMutex::releaseReadLock() {
    StateSection section(impl_->stateMutex);
    // While anyone writes, a release changes nothing: it is taken to be the writer's own
    // uncounted read lock.
    if (impl_->writerCount != 0)
        return;
    if (--impl_->readerCount == 0)
        impl_->mainMutex.unlock();
}

void ReadWriteMutex::acquireWriteLock() {
    boost::thread::id const caller = boost::this_thread::get_id();
    {
        StateSection section(impl_->stateMutex);
        if (impl_->writer == caller) {
            ++impl_->writerCount;
            return;
        }
    }
    impl_->mainMutex.lock();
    StateSection section(impl_->stateMutex);
    impl_->writer = caller;
    impl_->writerCount = 1;
}

void ReadWriteMutex::releaseWriteLock() {
    boost::thread::id const caller = boost::this_thread::get_id();
    StateSection section(impl_->stateMutex);
    if (impl_->writer != caller)
        return;
    if (--impl_->writerCount < 1) {
        impl_->mainMutex.unlock();
        impl_->writer = boost::thread::id();
    }
}

int ReadWriteMutex::readerCount() const {
    StateSection section(impl_->stateMutex);
    return impl_->readerCount;
}

int ReadWriteMutex::writerCount() const {
    StateSection section(impl_->stateMutex);
    return impl_->writerCount;
}

bool ReadWriteMutex::hasWriter() const {
    StateSection section(impl_->stateMutex);
    return impl_->writer != boost::thread::id();
}

void ReadWriteMutex::addThreadToReaders() {
    StateSection section(impl_->stateMutex);
    impl_->readers[boost::this_thread::get_id()] = 1;
}

void ReadWriteMutex::removeThreadFromReaders() {
    StateSection section(impl_->stateMutex);
    impl_->readers.erase(boost::this_thread::get_id());
}

void ReadWriteMutex::assertNoReadLockFromThisThread() const {
    boost::thread::id const caller = boost::this_thread::get_id();
    StateSection section(impl_->stateMutex);
    for (auto const& entry : impl_->readers) {
        if (entry.first == caller)
            throw ThreadLockingException("trying to aquire a write lock while reading");
    }
}

ReadWriteMutex::ScopedReadLock::ScopedReadLock(ReadWriteMutex* mutex) : mutex_(mutex) {
    mutex_->acquireReadLock();
}

ReadWriteMutex::ScopedReadLock::~ScopedReadLock() {
    mutex_->releaseReadLock();
}

ReadWriteMutex::ScopedWriteLock::ScopedWriteLock(ReadWriteMutex* mutex) : mutex_(mutex) {
    mutex_->acquireWriteLock();
}

ReadWriteMutex::ScopedWriteLock::~ScopedWriteLock() {
    mutex_->releaseWriteLock();
}

}  // namespace ZelmarMediaLib
