#pragma once
// What the library knows of a media file: its name, its picture size and the figures of each track.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Range.h>
#include <ZelmarMediaLib/datatypes/Rect.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

#include <map>
#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace ZelmarMediaLib {

class StatsLoader;

// Read once by a StatsLoader, plain data afterwards; or filled in by hand through create(),
// setRect and addTrackStats, which needs no loader and no file at all.
class ZML_EXPORT MediaFileStats : public virtual ZelmarObject {
public:
    // The numbers are written to XML as they stand.
    enum TrackType { Video = 0, Image = 1, Audio = 2 };

    struct TrackStats {
        // In the track's own time scale, rangeEditRate units per second.
        Range<long long> range;
        rational<unsigned long> rangeEditRate;
        TrackType type = Video;
        Rect<int> rect;
        rational<unsigned long> sampleRate;
        unsigned int bitDepth = 0;
        unsigned int numChannels = 0;
        // For a track of a bundle, the component file that holds it; empty otherwise.
        std::string filename;
        // Paths of the track's side files.
        std::vector<std::string> metaData;
    };

    // Both ensure that the default loader is registered. The second reads the file through the
    // loader chosen for it, and raises IOException when there is none or it fails.
    static shared_ptr<MediaFileStats> create();
    static shared_ptr<MediaFileStats> create(std::string const& path);

    ~MediaFileStats() override;
    std::string description() const override;

    std::string const& filename() const;
    void setFilename(std::string const& filename);
    Rect<int> rect() const;
    void setRect(Rect<int> const& rect);

    unsigned int numTracks() const;
    // Every access by track number raises IndexException unless the number is below numTracks().
    TrackStats& trackStats(unsigned int track);
    TrackStats const& trackStats(unsigned int track) const;
    Range<long long> trackRange(unsigned int track) const;
    rational<unsigned long> rangeEditRate(unsigned int track) const;
    TrackType trackType(unsigned int track) const;
    Rect<int> trackRect(unsigned int track) const;
    rational<unsigned long> sampleRate(unsigned int track) const;
    unsigned int bitDepth(unsigned int track) const;
    unsigned int numChannels(unsigned int track) const;
    std::string filename(unsigned int track) const;
    std::vector<std::string> metaData(unsigned int track) const;

    void addTrackStats(TrackStats const& stats);

    // The number of the track inside its component file, when this is a bundle (track 0 names a
    // file); the number itself otherwise. Each component file is read once, on the first call
    // that needs it; safe to call from several threads. A track that its component file lacks
    // gives that file's track count.
    unsigned int fileTrackNumberForTrackNumber(unsigned int track) const;

    // Whether some loader says it can open the path; nothing beyond that is read.
    static bool isFileOpenable(std::string const& path);
    // The loader is not owned and must outlive every later load.
    static void addStatsLoader(StatsLoader* loader);

protected:
    MediaFileStats();
    explicit MediaFileStats(std::string const& path);

private:
    static void ensureDefaultStatsLoader();
    // Every loader is asked, in the order of the set; the last that says yes wins, so among
    // several able loaders the one with the highest address is used.
    static StatsLoader* findAppropriateStatsLoader(std::string const& path);
    // "No appropriate stats loader for file: " and the path, which applications may look for,
    // then in brackets why, when the file system or a loader can tell: missing, unreadable, not
    // a regular file, a playlist, a folder with two movies.
    static std::string noLoaderMessage(std::string const& path);
    TrackStats const& checkedTrackStats(unsigned int track) const;
    std::vector<TrackType> componentTrackTypes(std::string const& file) const;

    // What the track numbers of a bundle need of its component files: the type of each of their
    // tracks, by file name. A copy starts empty rather than share the lock.
    struct ComponentCache {
        ComponentCache() = default;
        ComponentCache(ComponentCache const&) {}
        ComponentCache& operator=(ComponentCache const&) { return *this; }
        std::mutex mutex;
        std::map<std::string, std::vector<TrackType> > trackTypes;
    };

    std::string filename_;
    std::vector<TrackStats> tracks_;
    Rect<int> rect_;
    mutable ComponentCache componentCache_;

    // Process-wide and without a lock: an application registers its loaders before it loads
    // files from more than one thread, and the first loads must not race either, since they
    // register the default loader.
    static std::set<StatsLoader*> s_statsLoaders;
    static bool s_defaultStatsLoaderAdded;
};

}  // namespace ZelmarMediaLib
