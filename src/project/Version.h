#pragma once
// The version of the library a program runs with, which can be newer than the headers it was built with.
#include <ZelmarMediaLib/datatypes/Export.h>

#include <string>

namespace ZelmarMediaLib {

// "major.minor.patch", the same text as the version of the library's CMake and pkg-config packages.
ZML_EXPORT std::string version();

}  // namespace ZelmarMediaLib
