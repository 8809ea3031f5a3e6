#include <ZelmarMediaLib/clipbin/MediaFileStatsPosix.h>

#include <ZelmarMediaLib/exceptions/IOException.h>

#include <cstdlib>
#include <memory>

#include <stdlib.h>

namespace ZelmarMediaLib {

MediaFileStatsPosix::MediaFileStatsPosix() = default;

MediaFileStatsPosix::MediaFileStatsPosix(std::string const& path) : MediaFileStats(path) {}

std::string MediaFileStatsPosix::toAbsolutePath(std::string const& path) {
    // With a null buffer realpath allocates one of the right size, to be released by free.
    std::unique_ptr<char, void (*)(void*)> const resolved(::realpath(path.c_str(), nullptr), &std::free);
    if (!resolved)
        throw IOException("Unable to resolve path: " + path);
    return std::string(resolved.get());
}

}  // namespace ZelmarMediaLib
