#pragma once
// The default loader: reads media files, and screen recording folders, through FFmpeg's libavformat.
#include <ZelmarMediaLib/clipbin/StatsLoader.h>
#include <ZelmarMediaLib/datatypes/Export.h>

#include <string>

namespace ZelmarMediaLib {

// A recording folder holds exactly one movie beside its side files ("dirtyrect.dat",
// "frontmost.dat", "cursoraction.dat", "cursorlocation.dat"). It loads as a bundle: every
// track names the movie as its file, and the video tracks list the side files present.
// A media file is one regular file, read by content under its literal name: nothing else is
// opened on its behalf, so playlists, file lists, image sequences, URLs, pipes and devices are
// refused, and reading a file gives up after a few seconds rather than hanging.
class ZML_EXPORT AVFormatStatsLoader : public StatsLoader {
public:
    bool canOpenFile(std::string const& path) override;
    void loadStats(std::string const& path, MediaFileStats* stats) override;
    std::string refusalReason(std::string const& path) override;
};

}  // namespace ZelmarMediaLib
