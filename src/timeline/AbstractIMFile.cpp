#include <ZelmarMediaLib/timeline/AbstractIMFile.h>

#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/timeline/MediaDispatcher.h>

#include <ostream>

namespace ZelmarMediaLib {

AbstractIMFile::AbstractIMFile(long long start, long long duration, weak_ptr<ThreadSafe const> project,
                               shared_ptr<Source const> source, unsigned int track)
    : ImageMedia(start, duration, 0.0, 1.0, project), source_(source), trackNumber_(track) {}

AbstractIMFile::AbstractIMFile(AbstractIMFile const& other)
    : XMLIdentified(other), ImageMedia(other), FileRepresentation(other), source_(other.source_),
      trackNumber_(other.trackNumber_) {}

bool AbstractIMFile::isInstanceOf(shared_ptr<Source const> source) const {
    return source_ && source_ == source;
}

void AbstractIMFile::xmlOfAttributes(XMLable::Options& options, int indent) const {
    identAttribute()->toXML(options, indent, "name=\"ident\"");
}

void AbstractIMFile::xmlAttributes(XMLable::Options& options) const {
    MediaImpl::xmlAttributes(options);
    *options.stream << " trackNumber=\"" << trackNumber_ << "\" trimStartSum=\"" << trimStartSum() << '"';
}

float AbstractIMFile::width() const {
    return 0.0f;
}

float AbstractIMFile::height() const {
    return 0.0f;
}

std::string AbstractIMFile::fileName() const {
    return std::string();
}

std::string AbstractIMFile::containerFileName() const {
    return std::string();
}

unsigned int AbstractIMFile::trackNumber() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return trackNumber_;
}

shared_ptr<Source const> AbstractIMFile::source() const {
    return source_;
}

IMFile::IMFile(long long start, long long duration, weak_ptr<ThreadSafe const> project, shared_ptr<Source const> source,
               unsigned int track)
    : AbstractIMFile(start, duration, project, source, track) {}

IMFile::IMFile(IMFile const& other) : XMLIdentified(other), AbstractIMFile(other) {}

std::string IMFile::description() const {
    return "imfile";
}

IMFile* IMFile::clone() const {
    return new IMFile(*this);
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
