#pragma once
// The project-wide lock: writers nest, a writer reads freely, readers share, a read lock is not upgraded.
#include <ZelmarMediaLib/datatypes/Export.h>

#include <memory>

namespace ZelmarMediaLib {

class ReadWriteMutexImpl;

// What it promises: write locks nest on one thread, and the writer takes read locks freely
// at any depth without being counted as a reader. Read locks on different threads run side
// by side and nest on one thread; a thread that already reads never waits for a further read
// lock, even with a writer waiting, since that writer waits for it. A write lock excludes
// every other thread. A waiting writer holds back new readers, so a stream of readers cannot
// starve it. A thread that reads and asks for a write lock is refused with
// ThreadLockingException: two such threads would wait for each other for ever.
// Every lock is released on the thread that took it.
class ZML_EXPORT ReadWriteMutex {
public:
    ReadWriteMutex();
    ~ReadWriteMutex();
    ReadWriteMutex(ReadWriteMutex const&) = delete;
    ReadWriteMutex& operator=(ReadWriteMutex const&) = delete;

    void acquireReadLock();
    void releaseReadLock();
    // Raises ThreadLockingException, and changes nothing, when the calling thread reads.
    void acquireWriteLock();
    // Read locks taken inside the write and still held become the thread's own read locks.
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

    // Counters for tests and diagnostics; each is read under the state lock. readerCount
    // counts the read locks held outside a write, nested ones included.
    int readerCount() const;
    int writerCount() const;
    bool hasWriter() const;

    // The reader table holds each reading thread's depth; acquireReadLock and releaseReadLock
    // keep it through these. Called by hand, they count one read lock of the calling thread in
    // or out without waiting for a writer.
    void addThreadToReaders();
    void removeThreadFromReaders();
    // Raises ThreadLockingException when the calling thread holds a read lock outside a write;
    // acquireWriteLock checks this before it waits.
    void assertNoReadLockFromThisThread() const;

private:
    std::unique_ptr<ReadWriteMutexImpl> impl_;
};

typedef ReadWriteMutex::ScopedReadLock ScopedReadLock;
typedef ReadWriteMutex::ScopedWriteLock ScopedWriteLock;

}  // namespace ZelmarMediaLib
