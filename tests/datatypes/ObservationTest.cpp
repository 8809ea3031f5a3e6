// Notification: disabling drops, delays hold and repeat, collections merge, and the
// dead leave no trace.
#include <ZelmarMediaLib/datatypes/NotifyDelay.h>
#include <ZelmarMediaLib/datatypes/Subject.h>
#include <ZelmarMediaLib/datatypes/UpdateCollector.h>

#include "support/CountingObserver.h"

#include <gtest/gtest.h>

#include <memory>
#include <thread>

namespace ZelmarMediaLib {
namespace {

using test::CountingObserver;

class ObservationTest : public ::testing::Test {
protected:
    Subject subject;
    CountingObserver observer;
    void SetUp() override { subject.attach(&observer); }
};

TEST_F(ObservationTest, DisabledSubjectDropsNotificationsForGood) {
    {
        Subject::NotifyDisabler disabler = subject.disableNotifies();
        Subject::NotifyDisabler copy(disabler);
        EXPECT_FALSE(subject.isNotifying());
        subject.notify();
    }
    EXPECT_TRUE(subject.isNotifying());
    EXPECT_EQ(0, observer.calls);
    subject.notify();
    EXPECT_EQ(1, observer.calls);
}

TEST_F(ObservationTest, NestedDelaysReleaseOnlyAtTheOutermostEndAndRepeatEachChange) {
    {
        NotifyDelay outer;
        {
            NotifyDelay inner;
            subject.notify();
            subject.notify();
        }
        EXPECT_EQ(0, observer.calls);
        subject.notify();
        EXPECT_TRUE(NotifyDelay::isActive());
    }
    EXPECT_FALSE(NotifyDelay::isActive());
    EXPECT_EQ(3, observer.calls);
}

TEST_F(ObservationTest, SubjectDisabledWhenTheDelayEndsDropsItsHeldCalls) {
    NotifyDelay* delay = new NotifyDelay;
    subject.notify();
    Subject::NotifyDisabler disabler = subject.disableNotifies();
    delete delay;
    EXPECT_EQ(0, observer.calls);
}

TEST_F(ObservationTest, SubjectDestroyedWhileHeldIsNotCalled) {
    CountingObserver other;
    {
        NotifyDelay delay;
        auto doomed = std::make_unique<Subject>();
        doomed->attach(&other);
        doomed->notify();
        subject.notify();
        doomed.reset();
    }
    EXPECT_EQ(0, other.calls);
    EXPECT_EQ(1, observer.calls);
}

TEST_F(ObservationTest, FailingObserverEndsItsWalkButNotTheDelay) {
    CountingObserver failing, behind;
    Subject second;
    subject.detach(&observer);
    subject.attach(&failing);
    subject.attach(&behind);
    second.attach(&observer);
    failing.fail = true;
    {
        NotifyDelay delay;
        subject.notify();
        second.notify();
    }
    EXPECT_EQ(1, failing.calls);
    EXPECT_EQ(0, behind.calls);
    EXPECT_EQ(1, observer.calls);
    EXPECT_FALSE(NotifyDelay::isActive());
}

TEST_F(ObservationTest, CloneHasNoObserversAndDetachOfAStrangerIsHarmless) {
    Subject copy(subject);
    EXPECT_EQ(0u, copy.numObservers());
    CountingObserver stranger;
    subject.detach(&stranger);
    subject.attach(&observer);
    EXPECT_EQ(2u, subject.numObservers());
    subject.detach(&observer);
    EXPECT_EQ(0u, subject.numObservers());
}

TEST_F(ObservationTest, RemoveObserverDetachesItFromEveryHeldSubject) {
    NotifyDelay delay;
    subject.notify();
    NotifyDelay::removeObserver(&observer);
    EXPECT_FALSE(subject.isAttached(&observer));
}

TEST_F(ObservationTest, CollectionNotifiesEachObjectOnceThroughAnOpenDelay) {
    shared_ptr<Subject> collected = boost::make_shared<Subject>();
    CountingObserver watcher;
    collected->attach(&watcher);
    {
        NotifyDelay delay;
        {
            UpdateCollector::Collection collection;
            EXPECT_TRUE(UpdateCollector::instance()->isCollecting());
            for (int i = 0; i < 3; ++i)
                UpdateCollector::instance()->addObservable(collected);
        }
        EXPECT_FALSE(UpdateCollector::instance()->isCollecting());
        EXPECT_EQ(0, watcher.calls) << "the delay still holds the collected call";
    }
    EXPECT_EQ(1, watcher.calls);
}

TEST_F(ObservationTest, CollectionKeepsItsObjectsAliveUntilItEnds) {
    CountingObserver watcher;
    {
        UpdateCollector::Collection collection;
        shared_ptr<Subject> temporary = boost::make_shared<Subject>();
        temporary->attach(&watcher);
        UpdateCollector::instance()->addObservable(temporary);
    }
    EXPECT_EQ(1, watcher.calls);
}

// Regression: the held list and the collection were shared by every thread, so a reader that
// trimmed copies of its own while a command ran on another thread raced with that command's
// delay and put its copies into it.
TEST_F(ObservationTest, DelayAndCollectionHoldOnlyTheNotificationsOfTheirOwnThread) {
    {
        NotifyDelay delay;
        UpdateCollector::Collection collection;
        std::thread other([] {
            Subject elsewhere;
            CountingObserver watcher;
            elsewhere.attach(&watcher);
            EXPECT_FALSE(NotifyDelay::isActive());
            EXPECT_FALSE(UpdateCollector::instance()->isCollecting());
            elsewhere.notify();
            EXPECT_EQ(1, watcher.calls);
        });
        other.join();
        subject.notify();
        EXPECT_EQ(0, observer.calls);
    }
    EXPECT_EQ(1, observer.calls);
}

}  // namespace
}  // namespace ZelmarMediaLib
