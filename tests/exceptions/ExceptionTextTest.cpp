// The exception family: exact what() texts, which applications show, and the values they carry.
#include <ZelmarMediaLib/exceptions/AddRemoveException.h>
#include <ZelmarMediaLib/exceptions/CollisionException.h>
#include <ZelmarMediaLib/exceptions/DanglingWeakPtrException.h>
#include <ZelmarMediaLib/exceptions/DefaultMediaDispatcherException.h>
#include <ZelmarMediaLib/exceptions/IOException.h>
#include <ZelmarMediaLib/exceptions/IndexException.h>
#include <ZelmarMediaLib/exceptions/KeyFrameException.h>
#include <ZelmarMediaLib/exceptions/LinkException.h>
#include <ZelmarMediaLib/exceptions/ParserException.h>
#include <ZelmarMediaLib/exceptions/ThreadLockingException.h>
#include <ZelmarMediaLib/exceptions/TypeException.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>

#include <gtest/gtest.h>

#include <list>

namespace ZelmarMediaLib {
namespace {

TEST(ExceptionTextTest, PrefixedAndComposedTexts) {
    EXPECT_STREQ("Invalid index:-1", IndexException(-1).what());
    EXPECT_STREQ("Invalid KeyFrame operation at time 75", KeyFrameException(75).what());
    EXPECT_STREQ("IOException: gone", IOException("gone").what());
    EXPECT_STREQ("ThreadLockingException: late", ThreadLockingException("late").what());
    EXPECT_STREQ("DefaultMediaDispatcherException: Media not handled",
                 DefaultMediaDispatcherException("Media not handled").what());
    EXPECT_STREQ("Collision exception.", CollisionException(shared_ptr<Media const>()).what());
    EXPECT_STREQ("", LinkException(Range<long long>(0, 5), Range<long long>(1, 5)).what());
    EXPECT_STREQ("no tracks", AddRemoveException("no tracks").what());
    EXPECT_STREQ("VisualTrack", TypeException("VisualTrack").what());
}

// Regression: what() rebuilt its text on each call, so the pointer from an earlier call dangled.
TEST(ExceptionTextTest, ParserTextIsComposedOnceAndEarlierPointersStayValid) {
    ParserException error("bad tag", 3, 7);
    char const* first = error.what();
    char const* second = error.what();
    EXPECT_EQ(first, second);
    EXPECT_STREQ("bad tag line:3 col:7", first);
    ParserException const copy(error);
    EXPECT_STREQ("bad tag line:3 col:7", copy.what());
    EXPECT_EQ(3, copy.line());
    EXPECT_EQ(7, copy.column());
}

TEST(ExceptionTextTest, EveryMemberDerivesDirectlyFromTheRoot) {
    try {
        throw ValueException<long long>("too long", 42);
    } catch (ZelmarMediaLibException const& error) {
        EXPECT_STREQ("too long", error.what());
        auto const* valued = dynamic_cast<ValueException<long long> const*>(&error);
        ASSERT_NE(nullptr, valued);
        EXPECT_EQ(42, valued->value());
    }
}

TEST(ExceptionTextTest, CarriedValuesCanBeRecovered) {
    // Medias stand in as empty handles: the list is what is under test.
    CollisionException single((shared_ptr<Media>()));
    ASSERT_EQ(1u, single.medias()->size());

    auto medias = boost::make_shared<std::list<shared_ptr<Media> > >(2);
    EXPECT_EQ(2u, CollisionException(medias).medias()->size());

    LinkException link(Range<long long>(0, 5), Range<long long>(1, 4));
    EXPECT_EQ(Range<long long>(1, 4), link.secondRange());

    weak_ptr<Media const> dead;
    DanglingWeakPtrException<Media const> dangling("", dead);
    EXPECT_TRUE(dangling.reference().expired());
    EXPECT_STREQ("", dangling.what());
}

}  // namespace
}  // namespace ZelmarMediaLib
