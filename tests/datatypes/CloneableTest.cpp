// The two-step copy of shared objects: a clone is finished only once it lives in a shared_ptr.
#include <ZelmarMediaLib/datatypes/Cloneable.h>

#include <gtest/gtest.h>

#include <vector>

namespace ZelmarMediaLib {
namespace {

class Sheep : public DecoratedCloneable<Sheep>, public enable_shared_from_this<Sheep> {
public:
    explicit Sheep(int wool) : wool(wool) {}
    Sheep* clone() const override { return new Sheep(*this); }
    int wool;
};

class RecordingDelegate : public DecoratedCloneable<Sheep>::CloneDelegate {
public:
    void finishClone(Sheep const& original, shared_ptr<Sheep> const& clone) const override {
        // The clone can already be handed out as a shared_ptr here.
        finished.push_back(clone->shared_from_this().get());
        clone->wool = original.wool + 1;
    }
    mutable std::vector<Sheep*> finished;
};

TEST(SharedCloneTest, CloneWithoutDelegateIsAPlainCopy) {
    shared_ptr<Sheep const> dolly = boost::make_shared<Sheep>(3);
    shared_ptr<Sheep> copy = sharedClone(dolly);
    EXPECT_NE(dolly.get(), copy.get());
    EXPECT_EQ(3, copy->wool);
}

TEST(SharedCloneTest, DelegateFinishesTheSharedCloneAndTravelsWithCopies) {
    RecordingDelegate delegate;
    shared_ptr<Sheep> dolly = boost::make_shared<Sheep>(3);
    dolly->setCloneDelegate(&delegate);

    shared_ptr<Sheep> copy = sharedClone(dolly);
    ASSERT_EQ(1u, delegate.finished.size());
    EXPECT_EQ(copy.get(), delegate.finished[0]);
    EXPECT_EQ(4, copy->wool);
    EXPECT_EQ(&delegate, copy->cloneDelegate());
}

}  // namespace
}  // namespace ZelmarMediaLib
