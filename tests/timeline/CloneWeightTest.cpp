// What a clone of a media costs, and that whatever clones share never carries an edit from one
// to another. Its own executable: it replaces the global operator new to count allocations.
#include <ZelmarMediaLib/commands/keyframes/AddParameterKeyFrameCmd.h>
#include <ZelmarMediaLib/commands/keyframes/ChangeParameterKeyFrameCmd.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/AMFile.h>
#include <ZelmarMediaLib/timeline/AudioMixer.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>
#include <ZelmarMediaLib/timeline/Timeline.h>
#include <ZelmarMediaLib/timeline/VMFile.h>

#include "support/CommandInvariants.h"
#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long long> allocations{0};

void* allocate(std::size_t size) {
    allocations.fetch_add(1, std::memory_order_relaxed);
    if (void* memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}

}  // namespace

void* operator new(std::size_t size) { return allocate(size); }
void* operator new[](std::size_t size) { return allocate(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace ZelmarMediaLib {
namespace {

// A clone of a file media once made 481 allocations, a key frame map, a lane and a list of
// observers for each of its parameters; a count, not a time, so that it holds on any machine.
TEST(CloneWeightTest, CloneOfFileMediaStaysUnderItsAllocationCeiling) {
    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<Media const> const media = boost::make_shared<VMFile>(
        Range<long long>(0, 10), Rect<float>(0, 0, 640, 480), project, "/v.mov", 0.0, 1000.0, 0u);
    long long const before = allocations.load();
    shared_ptr<Media> const clone = sharedClone(media);
    EXPECT_LE(allocations.load() - before, 230);
}

class CloneIsolationTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<AudioTrack> track =
        project->timeline()->newTrack<AudioTrack>(project->timeline()->newAudioMixer(44100, 16, 2), 0);
    shared_ptr<AMFile> original = boost::make_shared<AMFile>(Range<long long>(0, 100), 44100u, 16u, project, "/a.wav",
                                                             0.0, 100000.0, 0u, 0u);
    shared_ptr<AMFile> first = placedClone(0);
    shared_ptr<AMFile> second = placedClone(200);

    shared_ptr<AMFile> placedClone(long long time) {
        shared_ptr<AMFile> clone = dynamic_pointer_cast<AMFile>(sharedClone(shared_ptr<Media const>(original)));
        track->addMedia(clone, time);
        return clone;
    }
};

// Clones that shared a key frame, a lane or an ident would show one clone's edit on the other.
TEST_F(CloneIsolationTest, EditsOnOneCloneLeaveTheOtherAlone) {
    std::string const untouched = test::xml(*second->volume());
    std::string const start = test::projectXml(*project);
    project->execute(ChangeParameterKeyFrameCmd<double>::create(first, first->volume(), 0, 0.25));
    project->execute(AddParameterKeyFrameCmd<double>::create(first, first->volume(), 40, 0.75));
    project->execute(ChangeParameterKeyFrameCmd<double>::create(second, second->volume(), 0, 0.5));
    EXPECT_EQ(0.25, first->volume()->valueAtTime(0));
    EXPECT_EQ(0.5, second->volume()->valueAtTime(0));
    EXPECT_EQ(1.0, original->volume()->valueAtTime(0));
    EXPECT_EQ(1, second->volume()->numKeyFrames());
    std::string const edited = test::projectXml(*project);

    project->undo();
    EXPECT_EQ(untouched, test::xml(*second->volume()));
    EXPECT_EQ(2, first->volume()->numKeyFrames());
    project->undo();
    project->undo();
    EXPECT_EQ(start, test::projectXml(*project));
    project->redo();
    project->redo();
    project->redo();
    EXPECT_EQ(edited, test::projectXml(*project));
}

TEST_F(CloneIsolationTest, LanesIdentsAndKeyFrameObjectsBelongToOneClone) {
    shared_ptr<InterpolatingParam<double> > const volume = first->volume();
    shared_ptr<InterpolatingParam<double> > const other = second->volume();
    EXPECT_NE(volume->keyframeAtTime(0), other->keyframeAtTime(0));
    EXPECT_NE(volume->interpolaterParam(), other->interpolaterParam());
    EXPECT_NE(volume->identAttribute(), other->identAttribute());

    volume->keyframeAtTime(0)->value = 0.125;
    volume->interpolaterParam()->addKeyFrame(5, LeftInterpolater<double>::instance());
    volume->identAttribute()->setValue("loudness");
    EXPECT_EQ(1.0, other->valueAtTime(0));
    EXPECT_EQ(1, other->interpolaterParam()->numKeyFrames());
    EXPECT_EQ(other->ident(), original->volume()->ident());
    EXPECT_EQ("loudness", volume->ident());
}

}  // namespace
}  // namespace ZelmarMediaLib
