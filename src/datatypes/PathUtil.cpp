#include <ZelmarMediaLib/datatypes/PathUtil.h>

#include <boost/filesystem/path.hpp>

namespace ZelmarMediaLib {
namespace PathUtil {

bool isAbsolutePath(std::string const& path) {
    return boost::filesystem::path(path).has_root_directory();
}

std::string absolutePathToRelative(std::string const& path, std::string const& base) {
    if (!isAbsolutePath(path))
        return std::string();
    std::string remainder = path;
    std::string::size_type const position = remainder.find(base);
    if (position != std::string::npos)
        remainder.erase(position, base.size());
    // The join puts in a separator only when the remainder doesn't start with one.
    return (boost::filesystem::path(".") / remainder).string();
}

}  // namespace PathUtil
}  // namespace ZelmarMediaLib
