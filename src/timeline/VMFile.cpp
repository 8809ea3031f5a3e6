#include <ZelmarMediaLib/timeline/VMFile.h>

#include <ZelmarMediaLib/clipbin/MediaFileStats.h>
#include <ZelmarMediaLib/clipbin/ScreenMetaData.h>
#include <ZelmarMediaLib/clipbin/Source.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/edgemods/EdgeModCloneUtil.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/timeline/AbstractIMFile.h>
#include <ZelmarMediaLib/timeline/MediaDispatcher.h>
#include <ZelmarMediaLib/timeline/VisualFileMedia.h>

#include <ostream>

namespace ZelmarMediaLib {

namespace {

// The source's time range, once the source is known to have a video track of that number.
Range<long long> checkedLimits(shared_ptr<Source const> const& source, unsigned int track) {
    if (!source || track >= source->mediaFileStats()->numTracks() ||
        source->mediaFileStats()->trackType(track) != MediaFileStats::Video)
        throw ZelmarMediaLibException("trying to make a vmfile with an invalid source track");
    return source->timeRange();
}

}  // namespace

VMFile::VMFile(Range<long long> const& range, weak_ptr<ThreadSafe const> project, shared_ptr<Source const> source,
               unsigned int track)
    : VMFile(range, checkedLimits(source, track), project, source, track) {}

VMFile::VMFile(Range<long long> const& range, Rect<float> const& rect, weak_ptr<ThreadSafe const> project,
               std::string const& file, double mediaStart, double mediaDuration, unsigned int track)
    : VideoMedia(range, mediaStart, mediaDuration, project),
      file_(new VisualFileMedia(project, file, rect, track)),
      screenMetaData_(boost::make_shared<Attribute<shared_ptr<ScreenMetaData const> > >(
          shared_ptr<ScreenMetaData const>(), project)),
      rect_(rect) {}

VMFile::VMFile(Range<long long> const& range, Range<long long> const& limits, weak_ptr<ThreadSafe const> project,
               shared_ptr<Source const> const& source, unsigned int track)
    : VideoMedia(range, static_cast<double>(limits.start), static_cast<double>(limits.duration), project),
      file_(new VisualFileMedia(project, source, track)),
      screenMetaData_(boost::make_shared<Attribute<shared_ptr<ScreenMetaData const> > >(
          shared_ptr<ScreenMetaData const>(), project)) {}

VMFile::VMFile(VMFile const& other)
    : XMLIdentified(other), VideoMedia(other), FileRepresentation(other), file_(other.file_->clone()),
      screenMetaData_(other.screenMetaData_->clone()), rect_(other.rect_) {}

VMFile::~VMFile() = default;

std::string VMFile::description() const {
    return "vmfile";
}

VMFile* VMFile::clone() const {
    return EdgeModCloneUtil::withEdgeMods(std::unique_ptr<VMFile>(new VMFile(*this)), *this);
}

void VMFile::receiveDispatcher(ConstMediaDispatcher* dispatcher) const {
    dispatcher->dispatchMedia(dynamic_pointer_cast<VMFile const>(shared_from_this()));
}

void VMFile::receiveDispatcher(MediaDispatcher* dispatcher) {
    dispatcher->dispatchMedia(dynamic_pointer_cast<VMFile>(shared_from_this()));
}

bool VMFile::isInstanceOf(shared_ptr<Source const> source) const {
    shared_ptr<Source const> const own = file_->source();
    return own && own == source;
}

void VMFile::xmlOfAttributes(XMLable::Options& options, int indent) const {
    identAttribute()->toXML(options, indent, "name=\"ident\"");
}

void VMFile::xmlName(XMLable::Options& options) const {
    *options.stream << "VMFile";
}

void VMFile::xmlAttributes(XMLable::Options& options) const {
    MediaImpl::xmlAttributes(options);
    *options.stream << " trackNumber=\"" << file_->trackNumber() << '"';
    if (shared_ptr<Source const> const source = file_->source())
        *options.stream << " src=\"" << source->xmlIdent() << '"';
}

void VMFile::xmlBody(XMLable::Options& options, int indent) const {
    VisualMedia::xmlBody(options, indent);
    if (shared_ptr<ScreenMetaData const> const metaData = screenMetaData_->value())
        metaData->toXML(options, indent, "");
}

float VMFile::width() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    shared_ptr<Source const> const source = file_->source();
    return source ? source->trackRect(file_->trackNumber()).width : rect_.width;
}

float VMFile::height() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    shared_ptr<Source const> const source = file_->source();
    return source ? source->trackRect(file_->trackNumber()).height : rect_.height;
}

shared_ptr<IMFile> VMFile::grabFrame(double time) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    long long const moment = static_cast<long long>(toParameterTime(time));
    return boost::make_shared<IMFile>(moment, 1, projectMutex(), Source::owningReference(file_->source()),
                                      file_->trackNumber());
}

std::string VMFile::fileName() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return file_->fileName();
}

std::string VMFile::containerFileName() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return file_->containerFileName();
}

unsigned int VMFile::trackNumber() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return file_->trackNumber();
}

shared_ptr<Source const> VMFile::source() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return file_->source();
}

shared_ptr<Attribute<shared_ptr<ScreenMetaData const> > > VMFile::screenMetaData() {
    return screenMetaData_;
}

shared_ptr<Attribute<shared_ptr<ScreenMetaData const> > const> VMFile::screenMetaData() const {
    return screenMetaData_;
}

}  // namespace ZelmarMediaLib
