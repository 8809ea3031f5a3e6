#include <ZelmarMediaLib/timeline/VisualFileMedia.h>

#include <ZelmarMediaLib/clipbin/MediaFileStats.h>
#include <ZelmarMediaLib/clipbin/Source.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/datatypes/ThreadSafe.h>

namespace ZelmarMediaLib {

VisualFileMedia::VisualFileMedia(weak_ptr<ThreadSafe const> project, shared_ptr<Source const> source,
                                 unsigned int track)
    : project_(project), trackNumber_(track), source_(source) {}

VisualFileMedia::VisualFileMedia(weak_ptr<ThreadSafe const> project, std::string const& file, Rect<float> const&,
                                 unsigned int track)
    : project_(project), fileName_(file), trackNumber_(track) {}

VisualFileMedia::VisualFileMedia(VisualFileMedia const& other)
    : ZelmarObject(other),
      FileRepresentation(other),
      project_(other.project_),
      fileName_(other.fileName_),
      trackNumber_(other.trackNumber_),
      source_(Source::owningReference(other.source_)) {}

VisualFileMedia::~VisualFileMedia() = default;

std::string VisualFileMedia::description() const {
    return "visualfilemedia";
}

VisualFileMedia* VisualFileMedia::clone() const {
    return new VisualFileMedia(*this);
}

std::string VisualFileMedia::fileName() const {
    // A dead project raises bad_weak_ptr here rather than leaving the read unlocked.
    ReadWriteMutex::ScopedReadLock lock(&shared_ptr<ThreadSafe const>(project_)->mutex());
    return source_ ? trackFileName(*source_, trackNumber_) : fileName_;
}

std::string VisualFileMedia::containerFileName() const {
    ReadWriteMutex::ScopedReadLock lock(&shared_ptr<ThreadSafe const>(project_)->mutex());
    return source_ ? containerFileName(*source_) : fileName_;
}

unsigned int VisualFileMedia::trackNumber() const {
    ReadWriteMutex::ScopedReadLock lock(&shared_ptr<ThreadSafe const>(project_)->mutex());
    return trackNumber_;
}

shared_ptr<Source const> VisualFileMedia::source() const {
    ReadWriteMutex::ScopedReadLock lock(&shared_ptr<ThreadSafe const>(project_)->mutex());
    return source_;
}

std::string VisualFileMedia::trackFileName(Source const& source, unsigned int track) {
    shared_ptr<MediaFileStats const> const stats = source.mediaFileStats();
    std::string const own = stats->filename(track);
    return own.empty() ? stats->filename() : own;
}

std::string VisualFileMedia::containerFileName(Source const& source) {
    return source.mediaFileStats()->filename();
}

}  // namespace ZelmarMediaLib
