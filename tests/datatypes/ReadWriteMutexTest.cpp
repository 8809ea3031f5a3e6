// The project lock with real threads: nesting, free reads for the writer, shared readers,
// waiting first readers, and releases by a thread other than the one that acquired.
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/exceptions/ThreadLockingException.h>

#include "support/BackgroundTask.h"

#include <gtest/gtest.h>

#include <atomic>

namespace ZelmarMediaLib {
namespace {

using test::BackgroundTask;
using test::blockedGrace;
using test::finishLimit;

class ReadWriteMutexTest : public ::testing::Test {
protected:
    ReadWriteMutex mutex;
};

TEST_F(ReadWriteMutexTest, WriterReadsFreelyWithoutBeingCounted) {
    ReadWriteMutex::ScopedWriteLock write(&mutex);
    {
        ReadWriteMutex::ScopedReadLock read(&mutex);
        EXPECT_EQ(0, mutex.readerCount());
        EXPECT_EQ(1, mutex.writerCount());
    }
    EXPECT_EQ(0, mutex.readerCount());
    EXPECT_EQ(1, mutex.writerCount());
}

TEST_F(ReadWriteMutexTest, NestedWriteLocksReleaseOnlyWithTheOutermost) {
    std::atomic<bool> otherWriterIn(false);
    auto outer = std::make_unique<ReadWriteMutex::ScopedWriteLock>(&mutex);
    {
        ReadWriteMutex::ScopedWriteLock second(&mutex);
        {
            ReadWriteMutex::ScopedWriteLock third(&mutex);
            EXPECT_EQ(3, mutex.writerCount());
        }
        EXPECT_EQ(2, mutex.writerCount());
    }
    BackgroundTask otherWriter([&] {
        ReadWriteMutex::ScopedWriteLock lock(&mutex);
        otherWriterIn = true;
    });
    EXPECT_FALSE(otherWriter.finishedWithin(blockedGrace));
    EXPECT_TRUE(mutex.hasWriter());
    outer.reset();
    EXPECT_TRUE(otherWriter.finishedWithin(finishLimit));
    EXPECT_TRUE(otherWriterIn);
    EXPECT_FALSE(mutex.hasWriter());
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

TEST_F(ReadWriteMutexTest, ReadersShareAndTheLastToLeaveUnlocksFromItsOwnThread) {
    // Thread A arrives first and leaves first; B, on its own thread, leaves last and so
    // releases a lock that A took.
    mutex.acquireReadLock();
    BackgroundTask secondReader([&] { mutex.acquireReadLock(); });
    ASSERT_TRUE(secondReader.finishedWithin(finishLimit)) << "a second reader must not wait";
    EXPECT_EQ(2, mutex.readerCount());

    mutex.releaseReadLock();
    EXPECT_EQ(1, mutex.readerCount());
    BackgroundTask writer([&] {
        ReadWriteMutex::ScopedWriteLock lock(&mutex);
    });
    EXPECT_FALSE(writer.finishedWithin(blockedGrace)) << "a reader is still inside";

    BackgroundTask lastReaderLeaves([&] { mutex.releaseReadLock(); });
    ASSERT_TRUE(lastReaderLeaves.finishedWithin(finishLimit));
    EXPECT_TRUE(writer.finishedWithin(finishLimit));
    EXPECT_EQ(0, mutex.readerCount());
}

TEST_F(ReadWriteMutexTest, FirstReaderWaitsForWriterWhileLaterReadersPassAtOnce) {
    std::atomic<bool> firstReaderIn(false);
    mutex.acquireWriteLock();
    BackgroundTask firstReader([&] {
        mutex.acquireReadLock();
        firstReaderIn = true;
    });
    EXPECT_FALSE(firstReader.finishedWithin(blockedGrace));
    EXPECT_FALSE(firstReaderIn);

    BackgroundTask secondReader([&] { mutex.acquireReadLock(); });
    EXPECT_TRUE(secondReader.finishedWithin(finishLimit)) << "the count is above 0 already";
    EXPECT_EQ(2, mutex.readerCount());

    mutex.releaseWriteLock();
    EXPECT_TRUE(firstReader.finishedWithin(finishLimit));
    EXPECT_TRUE(firstReaderIn);
}

TEST_F(ReadWriteMutexTest, ReaderReleaseWhileWriterWorksChangesNoCount) {
    mutex.acquireReadLock();
    mutex.releaseReadLock();
    mutex.acquireWriteLock();
    BackgroundTask latecomer([&] { mutex.releaseReadLock(); });
    ASSERT_TRUE(latecomer.finishedWithin(finishLimit));
    EXPECT_EQ(0, mutex.readerCount());
    EXPECT_EQ(1, mutex.writerCount());
    mutex.releaseWriteLock();
}

TEST_F(ReadWriteMutexTest, ReaderTableIsNotConnectedToTheLockOperations) {
    ReadWriteMutex::ScopedReadLock read(&mutex);
    EXPECT_NO_THROW(mutex.assertNoReadLockFromThisThread());
    mutex.addThreadToReaders();
    try {
        mutex.assertNoReadLockFromThisThread();
        FAIL() << "expected a ThreadLockingException";
    } catch (ThreadLockingException const& error) {
        EXPECT_STREQ("ThreadLockingException: trying to aquire a write lock while reading", error.what());
    }
    mutex.removeThreadFromReaders();
    EXPECT_NO_THROW(mutex.assertNoReadLockFromThisThread());
}

}  // namespace
}  // namespace ZelmarMediaLib
