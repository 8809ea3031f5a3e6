// The version the library reports at run time.
#include <ZelmarMediaLib/project/Version.h>

#include <gtest/gtest.h>

namespace ZelmarMediaLib {
namespace {

// Pins a version() that drifts from project(... VERSION) in CMakeLists.txt, which the packages
// carry: ZML_EXPECTED_VERSION is that number, handed to the test by the build.
TEST(Version, IsTheVersionOfTheBuildsProject) {
    EXPECT_EQ(ZML_EXPECTED_VERSION, version());
}

}  // namespace
}  // namespace ZelmarMediaLib
