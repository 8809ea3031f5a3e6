#include <ZelmarMediaLib/project/Version.h>

namespace ZelmarMediaLib {

// ZML_VERSION comes from the build, from the one version number of project() in CMakeLists.txt.
std::string version() { return ZML_VERSION; }

}  // namespace ZelmarMediaLib
