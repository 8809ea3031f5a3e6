#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>

#include <ZelmarMediaLib/exceptions/ThreadLockingException.h>

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace ZelmarMediaLib {

class ReadWriteMutexImpl {
public:
    typedef std::vector<std::pair<std::thread::id, int> > ReaderTable;

    ReadWriteMutexImpl() { readers.reserve(8); }

    // Held only for a few instructions; nobody waits for the lock while holding it except
    // inside a condition wait, which gives it up.
    std::mutex state;
    std::condition_variable readersMayEnter;
    std::condition_variable writerMayEnter;

    // Default-constructed (no thread) when there is no writer.
    std::thread::id writer;
    int writerCount = 0;
    // Read locks that the writer took inside its own write; they are not readers.
    int writerReads = 0;
    int waitingWriters = 0;

    // A few threads read at a time, so a short table scanned in place beats a map, and once
    // its capacity has grown an uncontended read allocates nothing.
    ReaderTable readers;
    // Sum of the depths in readers.
    int readerCount = 0;

    ReaderTable::iterator readerEntry(std::thread::id thread) {
        return std::find_if(readers.begin(), readers.end(),
                            [thread](std::pair<std::thread::id, int> const& entry) { return entry.first == thread; });
    }

    void enterReader(std::thread::id thread, int depth) {
        ReaderTable::iterator const entry = readerEntry(thread);
        if (entry == readers.end())
            readers.emplace_back(thread, depth);
        else
            entry->second += depth;
        readerCount += depth;
    }

    // A thread with no read lock left is taken out of the table, so that a later write
    // lock of that thread is not refused.
    void leaveReader(std::thread::id thread) {
        ReaderTable::iterator const entry = readerEntry(thread);
        if (entry == readers.end())
            return;
        --readerCount;
        if (--entry->second == 0) {
            *entry = readers.back();
            readers.pop_back();
        }
        if (readerCount == 0 && waitingWriters > 0)
            writerMayEnter.notify_one();
    }
};

ReadWriteMutex::ReadWriteMutex() : impl_(new ReadWriteMutexImpl) {}

ReadWriteMutex::~ReadWriteMutex() = default;

void ReadWriteMutex::acquireReadLock() {
    std::thread::id const caller = std::this_thread::get_id();
    std::unique_lock<std::mutex> lock(impl_->state);
    if (impl_->writer == caller) {
        ++impl_->writerReads;
        return;
    }
    // A thread that already reads goes on at once: a waiting writer waits for it, so making
    // it wait for that writer would deadlock both. New readers give way to a waiting writer.
    if (impl_->readerEntry(caller) == impl_->readers.end()) {
        impl_->readersMayEnter.wait(lock, [this] {
            return impl_->writer == std::thread::id() && impl_->waitingWriters == 0;
        });
    }
    impl_->enterReader(caller, 1);
}

void ReadWriteMutex::releaseReadLock() {
    std::thread::id const caller = std::this_thread::get_id();
    std::lock_guard<std::mutex> lock(impl_->state);
    if (impl_->writer == caller) {
        if (impl_->writerReads > 0)
            --impl_->writerReads;
        return;
    }
    impl_->leaveReader(caller);
}

void ReadWriteMutex::acquireWriteLock() {
    std::thread::id const caller = std::this_thread::get_id();
    std::unique_lock<std::mutex> lock(impl_->state);
    if (impl_->writer == caller) {
        ++impl_->writerCount;
        return;
    }
    // The writer would wait for its own read lock to go, which never happens.
    if (impl_->readerEntry(caller) != impl_->readers.end())
        throw ThreadLockingException("trying to aquire a write lock while reading");
    ++impl_->waitingWriters;
    impl_->writerMayEnter.wait(lock, [this] {
        return impl_->writer == std::thread::id() && impl_->readerCount == 0;
    });
    --impl_->waitingWriters;
    impl_->writer = caller;
    impl_->writerCount = 1;
}

void ReadWriteMutex::releaseWriteLock() {
    std::thread::id const caller = std::this_thread::get_id();
    std::lock_guard<std::mutex> lock(impl_->state);
    if (impl_->writer != caller)
        return;
    if (--impl_->writerCount > 0)
        return;
    impl_->writer = std::thread::id();
    // The reads still open inside the write outlive it: they become the thread's own read
    // locks, without a moment in which another writer could slip in.
    if (impl_->writerReads > 0) {
        impl_->enterReader(caller, impl_->writerReads);
        impl_->writerReads = 0;
    }
    if (impl_->waitingWriters > 0) {
        if (impl_->readerCount == 0)
            impl_->writerMayEnter.notify_one();
    } else {
        impl_->readersMayEnter.notify_all();
    }
}

int ReadWriteMutex::readerCount() const {
    std::lock_guard<std::mutex> lock(impl_->state);
    return impl_->readerCount;
}

int ReadWriteMutex::writerCount() const {
    std::lock_guard<std::mutex> lock(impl_->state);
    return impl_->writerCount;
}

bool ReadWriteMutex::hasWriter() const {
    std::lock_guard<std::mutex> lock(impl_->state);
    return impl_->writer != std::thread::id();
}

void ReadWriteMutex::addThreadToReaders() {
    std::lock_guard<std::mutex> lock(impl_->state);
    impl_->enterReader(std::this_thread::get_id(), 1);
}

void ReadWriteMutex::removeThreadFromReaders() {
    std::lock_guard<std::mutex> lock(impl_->state);
    impl_->leaveReader(std::this_thread::get_id());
}

void ReadWriteMutex::assertNoReadLockFromThisThread() const {
    std::thread::id const caller = std::this_thread::get_id();
    std::lock_guard<std::mutex> lock(impl_->state);
    if (impl_->readerEntry(caller) != impl_->readers.end())
        throw ThreadLockingException("trying to aquire a write lock while reading");
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
