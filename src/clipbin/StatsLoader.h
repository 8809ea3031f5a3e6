#pragma once
// How the figures of a media file are read: the library's default loader, or an application's own.
#include <ZelmarMediaLib/datatypes/Export.h>

#include <string>

namespace ZelmarMediaLib {

class MediaFileStats;

// Not a ZelmarObject. Loaders are owned by the application (the default one by the process):
// the library keeps pointers to them for the life of the process and never deletes them.
class ZML_EXPORT StatsLoader {
public:
    virtual ~StatsLoader() = default;
    // Must not throw: every loader is asked about every file that is opened.
    virtual bool canOpenFile(std::string const& path) = 0;
    // Fills in stats, which is never null; raises IOException when the file can't be read.
    virtual void loadStats(std::string const& path, MediaFileStats* stats) = 0;
    // Why canOpenFile says no to a path that exists and can be read, in a few words for the
    // message of the failed load ("more than one movie in the folder: a.mov and b.mov"); empty
    // when the loader has nothing to add. Asked only after every loader said no; must not throw.
    virtual std::string refusalReason(std::string const&) { return std::string(); }
};

}  // namespace ZelmarMediaLib
