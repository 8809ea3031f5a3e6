#pragma once
// The project-wide lock: writers nest, a writer reads freely, readers share, a read lock is not upgraded.
#include <memory>

namespace ZelmarMediaLib {

class ReadWriteMutexImpl;

class ReadWriteMutex {
public:
    // Raises boost::thread_resource_error when the system refuses a primitive.
    ReadWriteMutex();
    ~ReadWriteMutex();
    ReadWriteMutex(ReadWriteMutex const&) = delete;
    ReadWriteMutex& operator=(ReadWriteMutex const&) = delete;

    void acquireReadLock();
    void releaseReadLock();
    void acquireWriteLock();
    void releaseWriteLock();

    class ScopedReadLock {
    public:
        explicit ScopedReadLock(ReadWriteMutex* mutex);
        explicit ScopedReadLock(ReadWriteMutex& mutex) : ScopedReadLock(&mutex) {}
        ~ScopedReadLock();
        ScopedReadLock(ScopedReadLock const&) = delete;
        ScopedReadLock& operator=(ScopedReadLock const&) = delete;

    private:
        ReadWriteMutex* mutex_;
    };

    class ScopedWriteLock {
    public:
        explicit ScopedWriteLock(ReadWriteMutex* mutex);
        explicit ScopedWriteLock(ReadWriteMutex& mutex) : ScopedWriteLock(&mutex) {}
        ~ScopedWriteLock();
        ScopedWriteLock(ScopedWriteLock const&) = delete;
        ScopedWriteLock& operator=(ScopedWriteLock const&) = delete;

    private:
        ReadWriteMutex* mutex_;
    };

    // Counters for tests and diagnostics; each is read under the state lock.
    int readerCount() const;
    int writerCount() const;
    bool hasWriter() const;

    // A check against upgrading a read lock. Nothing in the library connects these to the
    // four lock operations: the reader table stays empty unless a caller fills it.
    void addThreadToReaders();
    void removeThreadFromReaders();
    // Raises ThreadLockingException when the calling thread is entered as a reader.
    void assertNoReadLockFromThisThread() const;

private:
    std::unique_ptr<ReadWriteMutexImpl> impl_;
};

typedef ReadWriteMutex::ScopedReadLock ScopedReadLock;
typedef ReadWriteMutex::ScopedWriteLock ScopedWriteLock;

}  // namespace ZelmarMediaLib
