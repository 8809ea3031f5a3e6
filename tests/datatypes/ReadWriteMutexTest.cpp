// The project lock with real threads: nesting, free reads for the writer, shared readers,
// writers that exclude everyone and are not starved, and the refused upgrade.
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/exceptions/ThreadLockingException.h>

#include "support/BackgroundTask.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <future>

namespace ZelmarMediaLib {
namespace {

using test::BackgroundTask;
using test::blockedGrace;
using test::finishLimit;

// Takes a lock on a thread of its own and holds it until told to let go, since every lock
// is released on the thread that took it.
class HeldElsewhere {
public:
    HeldElsewhere(std::function<void()> acquire, std::function<void()> release)
        : entered_(enter_.get_future()),
          letGoSignal_(letGo_.get_future()),
          task_([this, acquire, release] {
              acquire();
              enter_.set_value();
              letGoSignal_.wait();
              release();
          }) {}
    ~HeldElsewhere() { letGo(); }

    bool enteredWithin(std::chrono::milliseconds timeout) {
        return entered_.wait_for(timeout) == std::future_status::ready;
    }
    void letGo() {
        if (!letGoneAlready_.exchange(true))
            letGo_.set_value();
    }
    bool finishedWithin(std::chrono::milliseconds timeout) { return task_.finishedWithin(timeout); }

private:
    std::promise<void> enter_;
    std::shared_future<void> entered_;
    std::promise<void> letGo_;
    std::shared_future<void> letGoSignal_;
    std::atomic<bool> letGoneAlready_{false};
    BackgroundTask task_;
};

class ReadWriteMutexTest : public ::testing::Test {
protected:
    std::function<void()> acquireRead() {
        return [this] { mutex.acquireReadLock(); };
    }
    std::function<void()> releaseRead() {
        return [this] { mutex.releaseReadLock(); };
    }
    std::function<void()> acquireWrite() {
        return [this] { mutex.acquireWriteLock(); };
    }
    std::function<void()> releaseWrite() {
        return [this] { mutex.releaseWriteLock(); };
    }

    void expectUpgradeRefused() {
        try {
            mutex.acquireWriteLock();
            FAIL() << "expected a ThreadLockingException";
        } catch (ThreadLockingException const& error) {
            EXPECT_STREQ("ThreadLockingException: trying to aquire a write lock while reading", error.what());
        }
    }

    ReadWriteMutex mutex;
};

TEST_F(ReadWriteMutexTest, WriterReadsFreelyWithoutBeingCounted) {
    ReadWriteMutex::ScopedWriteLock write(&mutex);
    {
        ReadWriteMutex::ScopedReadLock read(&mutex);
        ReadWriteMutex::ScopedReadLock nested(&mutex);
        EXPECT_EQ(0, mutex.readerCount());
        EXPECT_EQ(1, mutex.writerCount());
    }
    EXPECT_EQ(0, mutex.readerCount());
    EXPECT_EQ(1, mutex.writerCount());
}

TEST_F(ReadWriteMutexTest, NestedWriteLocksReleaseOnlyWithTheOutermost) {
    auto outer = std::make_unique<ReadWriteMutex::ScopedWriteLock>(&mutex);
    {
        ReadWriteMutex::ScopedWriteLock second(&mutex);
        ReadWriteMutex::ScopedWriteLock third(&mutex);
        EXPECT_EQ(3, mutex.writerCount());
    }
    HeldElsewhere otherWriter(acquireWrite(), releaseWrite());
    EXPECT_FALSE(otherWriter.enteredWithin(blockedGrace));
    outer.reset();
    EXPECT_TRUE(otherWriter.enteredWithin(finishLimit));
}

TEST_F(ReadWriteMutexTest, ReleaseOfWriteLockByAnotherThreadChangesNothing) {
    mutex.acquireWriteLock();
    BackgroundTask stranger([&] { mutex.releaseWriteLock(); });
    ASSERT_TRUE(stranger.finishedWithin(finishLimit));
    EXPECT_EQ(1, mutex.writerCount());
    EXPECT_TRUE(mutex.hasWriter());
    mutex.releaseWriteLock();
    EXPECT_FALSE(mutex.hasWriter());
}

TEST_F(ReadWriteMutexTest, ReadersShareAndAWriterWaitsForTheLastToLeave) {
    mutex.acquireReadLock();
    HeldElsewhere secondReader(acquireRead(), releaseRead());
    ASSERT_TRUE(secondReader.enteredWithin(finishLimit)) << "a second reader must not wait";
    EXPECT_EQ(2, mutex.readerCount());

    HeldElsewhere writer(acquireWrite(), releaseWrite());
    mutex.releaseReadLock();
    EXPECT_FALSE(writer.enteredWithin(blockedGrace)) << "a reader is still inside";
    secondReader.letGo();
    EXPECT_TRUE(writer.enteredWithin(finishLimit));
    EXPECT_EQ(0, mutex.readerCount());
}

// Regression: a reader that came while another reader waited for the writer was let in
// during the write, and its release during the write was dropped, so the count never went
// back to 0 and every later writer waited for ever.
TEST_F(ReadWriteMutexTest, ReadersArrivingDuringAWriteWaitAndTheirReleasesCount) {
    mutex.acquireWriteLock();
    HeldElsewhere firstReader(acquireRead(), releaseRead());
    EXPECT_FALSE(firstReader.enteredWithin(blockedGrace));
    HeldElsewhere secondReader(acquireRead(), releaseRead());
    EXPECT_FALSE(secondReader.enteredWithin(blockedGrace)) << "no reader inside a write";

    mutex.releaseWriteLock();
    ASSERT_TRUE(firstReader.enteredWithin(finishLimit));
    ASSERT_TRUE(secondReader.enteredWithin(finishLimit));
    EXPECT_EQ(2, mutex.readerCount());
    firstReader.letGo();
    secondReader.letGo();
    ASSERT_TRUE(firstReader.finishedWithin(finishLimit));
    ASSERT_TRUE(secondReader.finishedWithin(finishLimit));
    EXPECT_EQ(0, mutex.readerCount());

    HeldElsewhere laterWriter(acquireWrite(), releaseWrite());
    EXPECT_TRUE(laterWriter.enteredWithin(finishLimit));
}

TEST_F(ReadWriteMutexTest, WaitingWriterHoldsBackNewReadersButNotReentrantOnes) {
    mutex.acquireReadLock();
    HeldElsewhere writer(acquireWrite(), releaseWrite());
    EXPECT_FALSE(writer.enteredWithin(blockedGrace));

    BackgroundTask newReader([&] {
        mutex.acquireReadLock();
        mutex.releaseReadLock();
    });
    EXPECT_FALSE(newReader.finishedWithin(blockedGrace)) << "a stream of readers would starve the writer";
    // A thread that already reads must not wait for a writer that waits for it.
    mutex.acquireReadLock();
    EXPECT_EQ(2, mutex.readerCount());
    mutex.releaseReadLock();
    mutex.releaseReadLock();

    EXPECT_TRUE(writer.enteredWithin(finishLimit));
    EXPECT_FALSE(newReader.finishedWithin(blockedGrace)) << "the writer works";
    writer.letGo();
    EXPECT_TRUE(newReader.finishedWithin(finishLimit));
}

TEST_F(ReadWriteMutexTest, WriteLockWhileReadingIsRefusedAndChangesNothing) {
    {
        ReadWriteMutex::ScopedReadLock read(&mutex);
        expectUpgradeRefused();
        EXPECT_THROW(mutex.assertNoReadLockFromThisThread(), ThreadLockingException);
        EXPECT_EQ(1, mutex.readerCount());
        EXPECT_FALSE(mutex.hasWriter());
    }
    EXPECT_NO_THROW(mutex.assertNoReadLockFromThisThread());
    ReadWriteMutex::ScopedWriteLock write(&mutex);
    EXPECT_EQ(1, mutex.writerCount());
}

TEST_F(ReadWriteMutexTest, ReadTakenInsideAWriteOutlivesItAsAReadOfThatThread) {
    mutex.acquireWriteLock();
    mutex.acquireReadLock();
    mutex.releaseWriteLock();
    EXPECT_EQ(1, mutex.readerCount());
    EXPECT_FALSE(mutex.hasWriter());

    HeldElsewhere writer(acquireWrite(), releaseWrite());
    EXPECT_FALSE(writer.enteredWithin(blockedGrace));
    expectUpgradeRefused();
    mutex.releaseReadLock();
    EXPECT_TRUE(writer.enteredWithin(finishLimit));
}

TEST_F(ReadWriteMutexTest, ReadOnOneThreadLeavesNoTraceForAWriterOnAnother) {
    BackgroundTask reader([&] {
        ReadWriteMutex::ScopedReadLock outer(&mutex);
        ReadWriteMutex::ScopedReadLock inner(&mutex);
    });
    ASSERT_TRUE(reader.finishedWithin(finishLimit));
    EXPECT_EQ(0, mutex.readerCount());
    HeldElsewhere writer(acquireWrite(), releaseWrite());
    EXPECT_TRUE(writer.enteredWithin(finishLimit));
}

}  // namespace
}  // namespace ZelmarMediaLib
