#include <ZelmarMediaLib/timeline/VMFile.h>

#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/timeline/MediaDispatcher.h>

#include <ostream>

namespace ZelmarMediaLib {

VMFile::VMFile(Range<long long> const& range, Rect<float> const& rect, weak_ptr<ThreadSafe const> project,
               std::string const& file, double mediaStart, double mediaDuration, unsigned int track)
    : VideoMedia(range, mediaStart, mediaDuration, project), fileName_(file), rect_(rect), trackNumber_(track) {}

VMFile::VMFile(VMFile const& other)
    : XMLIdentified(other), VideoMedia(other), FileRepresentation(other), fileName_(other.fileName_),
      rect_(other.rect_), trackNumber_(other.trackNumber_) {}

std::string VMFile::description() const {
    return "vmfile";
}

VMFile* VMFile::clone() const {
    return new VMFile(*this);
}

void VMFile::receiveDispatcher(ConstMediaDispatcher* dispatcher) const {
    dispatcher->dispatchMedia(dynamic_pointer_cast<VMFile const>(shared_from_this()));
}

void VMFile::receiveDispatcher(MediaDispatcher* dispatcher) {
    dispatcher->dispatchMedia(dynamic_pointer_cast<VMFile>(shared_from_this()));
}

bool VMFile::isInstanceOf(shared_ptr<Source const>) const {
    return false;
}

void VMFile::xmlOfAttributes(XMLable::Options& options, int indent) const {
    identAttribute()->toXML(options, indent, "name=\"ident\"");
}

void VMFile::xmlName(XMLable::Options& options) const {
    *options.stream << "VMFile";
}

void VMFile::xmlAttributes(XMLable::Options& options) const {
    MediaImpl::xmlAttributes(options);
    *options.stream << " trackNumber=\"" << trackNumber_ << '"';
}

float VMFile::width() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return rect_.width;
}

float VMFile::height() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return rect_.height;
}

std::string VMFile::fileName() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return fileName_;
}

std::string VMFile::containerFileName() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return fileName_;
}

unsigned int VMFile::trackNumber() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return trackNumber_;
}

}  // namespace ZelmarMediaLib
