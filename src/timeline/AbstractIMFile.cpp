#include <ZelmarMediaLib/timeline/AbstractIMFile.h>

#include <ZelmarMediaLib/clipbin/MediaFileStats.h>
#include <ZelmarMediaLib/clipbin/Source.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/edgemods/EdgeModCloneUtil.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/timeline/MediaDispatcher.h>
#include <ZelmarMediaLib/timeline/VisualFileMedia.h>

#include <ostream>

namespace ZelmarMediaLib {

namespace {

// The source's time range once its track is known to be a picture; one unit without a source.
Range<long long> checkedLimits(shared_ptr<Source const> const& source, unsigned int track) {
    if (!source)
        return Range<long long>(0, 1);
    shared_ptr<MediaFileStats const> const stats = source->mediaFileStats();
    if (track >= stats->numTracks() ||
        (stats->trackType(track) != MediaFileStats::Video && stats->trackType(track) != MediaFileStats::Image))
        throw ZelmarMediaLibException("trying to make an AbstractIMFile with an invalid source track");
    return source->timeRange();
}

}  // namespace

AbstractIMFile::AbstractIMFile(long long start, long long duration, weak_ptr<ThreadSafe const> project,
                               shared_ptr<Source const> source, unsigned int track)
    : AbstractIMFile(start, duration, checkedLimits(source, track), project, source, track) {}

AbstractIMFile::AbstractIMFile(long long start, long long duration, Range<long long> const& limits,
                               weak_ptr<ThreadSafe const> project, shared_ptr<Source const> const& source,
                               unsigned int track)
    : ImageMedia(start, duration, static_cast<double>(limits.start), static_cast<double>(limits.duration), project),
      file_(new VisualFileMedia(project, source, track)) {}

AbstractIMFile::AbstractIMFile(AbstractIMFile const& other)
    : XMLIdentified(other), ImageMedia(other), FileRepresentation(other), file_(other.file_->clone()) {}

AbstractIMFile::~AbstractIMFile() = default;

bool AbstractIMFile::isInstanceOf(shared_ptr<Source const> source) const {
    shared_ptr<Source const> const own = file_->source();
    return own && own == source;
}

void AbstractIMFile::xmlOfAttributes(XMLable::Options& options, int indent) const {
    identAttribute()->toXML(options, indent, "name=\"ident\"");
}

void AbstractIMFile::xmlAttributes(XMLable::Options& options) const {
    MediaImpl::xmlAttributes(options);
    std::ostream& out = *options.stream;
    out << " trackNumber=\"" << file_->trackNumber() << '"';
    if (shared_ptr<Source const> const source = file_->source())
        out << " src=\"" << source->xmlIdent() << '"';
    out << " trimStartSum=\"" << trimStartSum() << '"';
}

float AbstractIMFile::width() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    shared_ptr<Source const> const source = file_->source();
    return source ? source->trackRect(file_->trackNumber()).width : 0.0f;
}

float AbstractIMFile::height() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    shared_ptr<Source const> const source = file_->source();
    return source ? source->trackRect(file_->trackNumber()).height : 0.0f;
}

std::string AbstractIMFile::fileName() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return file_->fileName();
}

std::string AbstractIMFile::containerFileName() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return file_->containerFileName();
}

unsigned int AbstractIMFile::trackNumber() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return file_->trackNumber();
}

shared_ptr<Source const> AbstractIMFile::source() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return file_->source();
}

IMFile::IMFile(long long start, long long duration, weak_ptr<ThreadSafe const> project, shared_ptr<Source const> source,
               unsigned int track)
    : AbstractIMFile(start, duration, project, source, track) {}

IMFile::IMFile(IMFile const& other) : XMLIdentified(other), AbstractIMFile(other) {}

std::string IMFile::description() const {
    return "imfile";
}

IMFile* IMFile::clone() const {
    return EdgeModCloneUtil::withEdgeMods(std::unique_ptr<IMFile>(new IMFile(*this)), *this);
}

void IMFile::receiveDispatcher(ConstMediaDispatcher* dispatcher) const {
    dispatcher->dispatchMedia(dynamic_pointer_cast<IMFile const>(shared_from_this()));
}

void IMFile::receiveDispatcher(MediaDispatcher* dispatcher) {
    dispatcher->dispatchMedia(dynamic_pointer_cast<IMFile>(shared_from_this()));
}

void IMFile::xmlName(XMLable::Options& options) const {
    *options.stream << "IMFile";
}

}  // namespace ZelmarMediaLib
