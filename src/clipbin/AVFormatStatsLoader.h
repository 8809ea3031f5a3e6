#pragma once
// The default loader: reads media files, and screen recording folders, through FFmpeg's libavformat.
#include <ZelmarMediaLib/clipbin/StatsLoader.h>

#include <string>

namespace ZelmarMediaLib {

// A recording folder holds exactly one movie beside its side files ("dirtyrect.dat",
// "frontmost.dat", "cursoraction.dat", "cursorlocation.dat"). It loads as a bundle: every
// track names the movie as its file, and the video tracks list the side files present.
// Only local regular files and folders are read; URLs and other protocols are refused.
class AVFormatStatsLoader : public StatsLoader {
public:
    bool canOpenFile(std::string const& path) override;
    void loadStats(std::string const& path, MediaFileStats* stats) override;
};

}  // namespace ZelmarMediaLib
