#pragma once
// One loaded media file: its statistics, and a private timeline with one media for each of its tracks.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Range.h>
#include <ZelmarMediaLib/datatypes/Rect.h>
#include <ZelmarMediaLib/datatypes/SubProject.h>
#include <ZelmarMediaLib/datatypes/Subject.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>

#include <map>
#include <string>
#include <vector>

namespace ZelmarMediaLib {

class AudioMedia;
class Media;
class MediaFileStats;
class ProjectEditRate;
class ScreenMetaData;
class Timeline;
class VMFile;
class VisualMedia;

// The project's medias are clones of the medias of a source's private timeline and keep a
// reference to the source. Held only by shared_ptr, made through create.
class ZML_EXPORT Source : public SubProject, public XMLable, public Subject, public enable_shared_from_this<Source> {
public:
    // A place in the walk over the source's medias, numbered by track index from 0.
    class MediaIterator {
    public:
        MediaIterator(Source const* source, int trackIndex, weak_ptr<ThreadSafe const> project);

        MediaIterator& operator++();
        MediaIterator& operator--();
        bool operator==(MediaIterator const& other) const;
        bool operator!=(MediaIterator const& other) const;

        int trackIndex() const;
        // Under a read lock. Each raises IndexException with the index when no track of its
        // walk stands there; the Media walk has the audio tracks first, then the visual ones.
        shared_ptr<Media const> currentMedia() const;
        shared_ptr<AudioMedia const> currentAudioMedia() const;
        shared_ptr<VisualMedia const> currentVisualMedia() const;

    protected:
        shared_ptr<Media const> current(Media const*) const { return currentMedia(); }
        shared_ptr<VisualMedia const> current(VisualMedia const*) const { return currentVisualMedia(); }
        shared_ptr<AudioMedia const> current(AudioMedia const*) const { return currentAudioMedia(); }

    private:
        Source const* source_;
        int trackIndex_;
        weak_ptr<ThreadSafe const> project_;
    };

    // T is Media const, VisualMedia const or AudioMedia const.
    template <class T>
    class Iterator : public MediaIterator {
    public:
        Iterator(Source const* source, int trackIndex, weak_ptr<ThreadSafe const> project)
            : MediaIterator(source, trackIndex, project) {}

        Iterator& operator++() {
            MediaIterator::operator++();
            return *this;
        }
        Iterator& operator--() {
            MediaIterator::operator--();
            return *this;
        }
        shared_ptr<T> operator*() const { return current(static_cast<T*>(nullptr)); }
        shared_ptr<T> operator->() const { return current(static_cast<T*>(nullptr)); }
    };

    // Reads the file; IOException from the statistics passes through and no source is made.
    static shared_ptr<Source> create(shared_ptr<ProjectEditRate const> editRate, weak_ptr<ThreadSafe const> project,
                                     std::string const& path);
    // For statistics at hand, such as those an application builds by hand.
    static shared_ptr<Source> create(shared_ptr<ProjectEditRate const> editRate, weak_ptr<ThreadSafe const> project,
                                     shared_ptr<MediaFileStats> stats);

    // A blank source on the same project: only online is taken over; the timeline has no
    // mixers and the statistics no file and no tracks.
    Source(Source const& other);
    Source& operator=(Source const&);
    ~Source() override;

    // "Source at ", the address, then the private timeline's XML.
    std::string description() const override;
    void xmlName(XMLable::Options& options) const override;
    // src, lastMod and rect. The modification time is looked up on the disk at each writing.
    void xmlAttributes(XMLable::Options& options) const override;
    // One SourceTrack line for each file track, one level deeper than received; the private
    // timeline is not written here.
    void xmlBody(XMLable::Options& options, int indent) const override;

    // Made with the source and never replaced, so read without a lock.
    shared_ptr<Timeline> timeline();
    shared_ptr<Timeline const> timeline() const;
    shared_ptr<MediaFileStats const> mediaFileStats() const;
    // In project edit units: the span common to all tracks, or (0,1) for a still.
    Range<long long> timeRange() const;
    bool isOnline() const;
    // The file track's rectangle; raises IndexException for a track the file lacks.
    Rect<float> trackRect(unsigned int track) const;

    // Points the source at another file of the same track count whose first track has the same
    // type and length. Only the file names change; the other figures stay as they were.
    // Raises "attempting to replace source's file with an incompatable file", and what
    // reading the new file raises, with nothing changed. Takes no lock.
    void changeFile(std::string const& newPath);

    template <class T>
    Iterator<T> mediaBegin() const {
        return Iterator<T>(this, 0, projectMutex());
    }
    template <class T>
    Iterator<T> mediaEnd() const {
        return Iterator<T>(this, endIndex(static_cast<T*>(nullptr)), projectMutex());
    }

    // From a file's rate to the project's, multiplying first and dividing after, truncated
    // toward zero, exact for every 64-bit range and rate. A file rate of zero raises rather
    // than divide by zero; so does a result with a start or end beyond 2^62 units either way,
    // which leaves the sums and differences of ranges room in 64 bits.
    static Range<long long> convertEditRate(Range<long long> const& range, rational<unsigned long> const& fileRate,
                                            rational<unsigned long> const& projectRate);
    // Replaces the first occurrence of oldPath inside *path; an empty path stays empty.
    static void replacePath(std::string const& oldPath, std::string const& newPath, std::string* path);

    // The medias of a source's own timeline refer to it without owning it, since it owns them:
    // an owning reference would be a cycle that keeps both alive. A copy of such a media takes
    // an owning reference through this, while the source still lives.
    static shared_ptr<Source const> owningReference(shared_ptr<Source const> const& source);

protected:
    Source(weak_ptr<ThreadSafe const> project, shared_ptr<MediaFileStats> stats);

private:
    // The bin compares the file names of all its sources under the one read lock of its walk.
    friend class SourceBin;

    // Needs the source to live in a shared_ptr already.
    void init(rational<unsigned long> const& editRate);
    Range<long long> calcIntersection(rational<unsigned long> const& editRate) const;
    void createAndAddMedias();
    void addMediaToTimeline(shared_ptr<VisualMedia> const& media);
    void addMediaToTimeline(shared_ptr<AudioMedia> const& media);
    // Every VMFile of a source gets screen meta data, made from the side files that its track
    // has; it is not valid when one of the four is missing.
    void addMetaData(shared_ptr<VMFile> const& media, std::vector<std::string> const& paths);
    // The side files of a recording lie in its bundle, so their paths begin with the file's
    // own path and follow it to the new place. Values already loaded stay.
    void updateScreenMetaData(std::string const& oldPath, std::string const& newPath);
    bool filesAreCompatableForChange(MediaFileStats const& candidate) const;
    void updateTrackFilenames(std::string const& oldPath, std::string const& newPath);
    shared_ptr<Source const> unownedReference() const;

    int endIndex(Media const*) const;
    int endIndex(VisualMedia const*) const;
    int endIndex(AudioMedia const*) const;

    shared_ptr<Timeline> timeline_;
    shared_ptr<MediaFileStats> mediaFileStats_;
    bool online_;
    Range<long long> timeRange_;
    std::map<shared_ptr<VMFile>, shared_ptr<ScreenMetaData> > screenMetaData_;
    // Handed to the screen meta data, whose loader may need it.
    weak_ptr<ProjectEditRate const> editRate_;
};

}  // namespace ZelmarMediaLib
