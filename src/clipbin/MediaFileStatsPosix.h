#pragma once
// The statistics object that MediaFileStats::create makes on POSIX systems.
#include <ZelmarMediaLib/clipbin/MediaFileStats.h>
#include <ZelmarMediaLib/datatypes/Export.h>

#include <string>

namespace ZelmarMediaLib {

class ZML_EXPORT MediaFileStatsPosix : public MediaFileStats {
public:
    MediaFileStatsPosix();
    // Reads the file; raises IOException when no loader can, and then no object exists.
    explicit MediaFileStatsPosix(std::string const& path);

    // The path with symbolic links, "." and ".." resolved by realpath, so the file must exist;
    // raises IOException when it can't be resolved. Nothing in the library calls it.
    static std::string toAbsolutePath(std::string const& path);
};

}  // namespace ZelmarMediaLib
