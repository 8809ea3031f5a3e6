#pragma once
// Statistics of a file built by hand, with no file and no loader behind them.
#include <ZelmarMediaLib/clipbin/MediaFileStats.h>

#include <initializer_list>
#include <string>

namespace ZelmarMediaLib {
namespace test {

inline MediaFileStats::TrackStats videoTrack(Range<long long> const& range, unsigned long rate, int width = 640,
                                             int height = 480) {
    MediaFileStats::TrackStats track;
    track.type = MediaFileStats::Video;
    track.range = range;
    track.rangeEditRate = rate;
    track.rect = Rect<int>(0, 0, width, height);
    return track;
}

inline MediaFileStats::TrackStats audioTrack(Range<long long> const& range, unsigned long rate,
                                             unsigned int numChannels, unsigned int bitDepth = 16) {
    MediaFileStats::TrackStats track;
    track.type = MediaFileStats::Audio;
    track.range = range;
    track.rangeEditRate = rate;
    track.sampleRate = rate;
    track.bitDepth = bitDepth;
    track.numChannels = numChannels;
    return track;
}

inline MediaFileStats::TrackStats imageTrack(unsigned long rate, int width = 40, int height = 30) {
    MediaFileStats::TrackStats track = videoTrack(Range<long long>(0, 1), rate, width, height);
    track.type = MediaFileStats::Image;
    return track;
}

inline shared_ptr<MediaFileStats> stats(std::string const& filename, Rect<int> const& rect,
                                        std::initializer_list<MediaFileStats::TrackStats> tracks) {
    shared_ptr<MediaFileStats> result = MediaFileStats::create();
    result->setFilename(filename);
    result->setRect(rect);
    for (MediaFileStats::TrackStats const& track : tracks)
        result->addTrackStats(track);
    return result;
}

// Ten seconds of 640 by 480 video at 600 units a second, and of 16-bit stereo at 44100.
inline shared_ptr<MediaFileStats> talkStats(std::string const& filename = "/media/talk.mov") {
    return stats(filename, Rect<int>(0, 0, 640, 480),
                 {videoTrack(Range<long long>(0, 6000), 600), audioTrack(Range<long long>(0, 441000), 44100, 2)});
}

}  // namespace test
}  // namespace ZelmarMediaLib
