#include <ZelmarMediaLib/datatypes/PathUtil.h>

#include <gtest/gtest.h>

using namespace ZelmarMediaLib::PathUtil;

TEST(PathUtilTest, AbsoluteMeansHavingARootDirectory) {
    EXPECT_TRUE(isAbsolutePath("/a/b"));
    EXPECT_FALSE(isAbsolutePath("a/b"));
    EXPECT_FALSE(isAbsolutePath(""));
}

TEST(PathUtilTest, RelativePathGivesEmptyString) {
    EXPECT_EQ("", absolutePathToRelative("a/b/c", "a/b"));
}

TEST(PathUtilTest, BaseIsCutOutAndRestJoinedToDot) {
    EXPECT_EQ("./c", absolutePathToRelative("/a/b/c", "/a/b"));
    EXPECT_EQ("./c", absolutePathToRelative("/a/b/c", "/a/b/"));
}

// The base is plain text, not a path: it matches anywhere, once, and inside a component.
TEST(PathUtilTest, BaseIsMatchedAsTextNotAsPath) {
    EXPECT_EQ("./x/c", absolutePathToRelative("/x/c", "/a/b"));
    EXPECT_EQ("./home/c", absolutePathToRelative("/home/a/b/c", "/a/b"));
    EXPECT_EQ("./a/b/c", absolutePathToRelative("/a/b/a/b/c", "/a/b"));
    EXPECT_EQ("./c", absolutePathToRelative("/a/bc", "/a/b"));
}
