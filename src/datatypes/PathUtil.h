#pragma once
// The rewriting of absolute file references into references relative to a project's folder.
#include <ZelmarMediaLib/datatypes/Export.h>

#include <string>

namespace ZelmarMediaLib {

namespace PathUtil {

// True when the path has a root directory; the empty path has none.
ZML_EXPORT bool isAbsolutePath(std::string const& path);

// The empty string for a relative path. Otherwise the first occurrence of base, as plain text
// anywhere in path, is cut out and the rest is joined to ".". The base is not matched by
// components and no ".." is ever made, so a path outside the base comes back as "./" and the
// whole path: a wrong reference that callers accept.
ZML_EXPORT std::string absolutePathToRelative(std::string const& path, std::string const& base);

}  // namespace PathUtil

}  // namespace ZelmarMediaLib
