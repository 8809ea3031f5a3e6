// Containers and iterators that keep the project read-locked while they live.
#include <ZelmarMediaLib/datatypes/ConstIterator.h>
#include <ZelmarMediaLib/datatypes/MTVector.h>
#include <ZelmarMediaLib/datatypes/SubProject.h>
#include <ZelmarMediaLib/project/Project.h>

#include "support/BackgroundTask.h"

#include <gtest/gtest.h>

#include <list>
#include <memory>

namespace ZelmarMediaLib {
namespace {

using test::BackgroundTask;
using test::blockedGrace;
using test::finishLimit;

class ReadLockHoldersTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);
    weak_ptr<ThreadSafe const> projectRef = project;

    // True when a writer on another thread gets in before the grace period ends.
    bool writerGetsIn() {
        auto writer = std::make_unique<BackgroundTask>([this] { ReadWriteMutex::ScopedWriteLock lock(&project->mutex()); });
        return writer->finishedWithin(blockedGrace);
    }
};

TEST_F(ReadLockHoldersTest, CopiedVectorKeepsTheLockUntilTheLastCopyGoes) {
    auto original = std::make_unique<MTVector<int> >(projectRef);
    original->push_back(7);
    auto copy = std::make_unique<MTVector<int> >(*original);
    original.reset();
    EXPECT_EQ(1, project->mutex().readerCount());
    EXPECT_EQ(7, copy->front());

    BackgroundTask writer([this] { ReadWriteMutex::ScopedWriteLock lock(&project->mutex()); });
    EXPECT_FALSE(writer.finishedWithin(blockedGrace));
    copy.reset();
    EXPECT_TRUE(writer.finishedWithin(finishLimit));
}

TEST_F(ReadLockHoldersTest, VectorOfAGoneProjectRaisesBadWeakPtr) {
    project.reset();
    EXPECT_THROW(MTVector<int> vector(projectRef), boost::bad_weak_ptr);
}

TEST_F(ReadLockHoldersTest, SubProjectReachesTheProjectLockUntilTheProjectDies) {
    SubProject child(projectRef);
    EXPECT_EQ(&project->mutex(), &child.mutex());
    EXPECT_FALSE(child.projectMutex().expired());
    project.reset();
    EXPECT_THROW(child.mutex(), boost::bad_weak_ptr);
}

TEST_F(ReadLockHoldersTest, IteratorsHoldTheLockAndCompareByPosition) {
    std::list<int> values{1, 2, 3};
    {
        ConstIterator<std::list<int> > begin(values.cbegin(), project->mutex());
        ConstIterator<std::list<int> > end(values.cend(), begin.lock());
        int sum = 0;
        for (ConstIterator<std::list<int> > it = begin; it != end; ++it)
            sum += *it;
        EXPECT_EQ(6, sum);
        ConstRIterator<std::list<int> > last(values.crbegin(), project->mutex());
        EXPECT_EQ(3, *last);
        EXPECT_EQ(2, project->mutex().readerCount());
    }
    EXPECT_EQ(0, project->mutex().readerCount());
}

}  // namespace
}  // namespace ZelmarMediaLib
