#include <ZelmarMediaLib/clipbin/detail/ScreenMetaDataImpl.h>

#include <ZelmarMediaLib/clipbin/ScreenMetaDataLoader.h>
#include <ZelmarMediaLib/datatypes/PathUtil.h>
#include <ZelmarMediaLib/datatypes/XMLRepresentation.h>
#include <ZelmarMediaLib/exceptions/DanglingWeakPtrException.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/timeline/FileRepresentation.h>

#include <boost/filesystem/path.hpp>

#include <ostream>

namespace ZelmarMediaLib {

namespace {

void assertLazyLoader(ScreenMetaDataLoader const* loader) {
    if (!loader)
        throw ZelmarMediaLibException("attempting to lazy load screen meta data without a loader.");
}

}  // namespace

ScreenMetaDataImpl::ScreenMetaDataImpl(weak_ptr<ThreadSafe const> project, weak_ptr<FileRepresentation const> parent,
                                       weak_ptr<ProjectEditRate const> editRate)
    : lock_(project),
      parent_(parent),
      topmostWindowCoordinates_("topmostWindowCoordinates"),
      cursorLocation_("cursorLocation"),
      cursorAction_("cursorAction"),
      dirtyRects_("dirtyRects"),
      editRate_(editRate) {}

ScreenMetaDataImpl::~ScreenMetaDataImpl() = default;

ReadWriteMutex& ScreenMetaDataImpl::mutex() const {
    return shared_ptr<ThreadSafe const>(lock_)->mutex();
}

void ScreenMetaDataImpl::setParent(weak_ptr<FileRepresentation const> parent) {
    parent_ = parent;
}

void ScreenMetaDataImpl::setTopmostWindowCoordinates(std::string const& fileName) {
    topmostWindowCoordinates_.fileName = fileName;
}

void ScreenMetaDataImpl::setCursorLocation(std::string const& fileName) {
    cursorLocation_.fileName = fileName;
}

void ScreenMetaDataImpl::setCursorAction(std::string const& fileName) {
    cursorAction_.fileName = fileName;
}

void ScreenMetaDataImpl::setDirtyRects(std::string const& fileName) {
    dirtyRects_.fileName = fileName;
}

std::string ScreenMetaDataImpl::topmostWindowCoordinatesFilename() const {
    return topmostWindowCoordinates_.fileName;
}

std::string ScreenMetaDataImpl::cursorLocationFilename() const {
    return cursorLocation_.fileName;
}

std::string ScreenMetaDataImpl::cursorActionFilename() const {
    return cursorAction_.fileName;
}

std::string ScreenMetaDataImpl::dirtyRectsFilename() const {
    return dirtyRects_.fileName;
}

shared_ptr<ParameterInterface> ScreenMetaDataImpl::topmostWindowCoordinates() const {
    return lazyLoad(topmostWindowCoordinates_);
}

shared_ptr<ParameterInterface> ScreenMetaDataImpl::cursorLocation() const {
    return lazyLoad(cursorLocation_);
}

shared_ptr<ParameterInterface> ScreenMetaDataImpl::cursorAction() const {
    return lazyLoad(cursorAction_);
}

shared_ptr<ParameterInterface> ScreenMetaDataImpl::dirtyRects() const {
    return lazyLoad(dirtyRects_);
}

bool ScreenMetaDataImpl::isValid() const {
    return !topmostWindowCoordinates_.fileName.empty() && !cursorLocation_.fileName.empty() &&
           !cursorAction_.fileName.empty() && !dirtyRects_.fileName.empty();
}

shared_ptr<ParameterInterface> ScreenMetaDataImpl::lazyLoad(SideFile& file) const {
    ScreenMetaDataLoader* const loader = lazyLoader();
    // Asked before the cache, so that taking the loader away is noticed by every reader.
    assertLazyLoader(loader);
    {
        std::lock_guard<std::mutex> guard(cacheMutex_);
        if (file.value)
            return file.value;
    }
    shared_ptr<ParameterInterface> const value =
        loader->loadParameter(convertToAbsolute(parent_, file.fileName), editRate_, lock_, file.paramName);
    std::lock_guard<std::mutex> guard(cacheMutex_);
    file.value = value;
    return value;
}

std::string ScreenMetaDataImpl::convertToAbsolute(weak_ptr<FileRepresentation const> const& parent,
                                                  std::string const& path) {
    if (PathUtil::isAbsolutePath(path))
        return path;
    shared_ptr<FileRepresentation const> const owner = parent.lock();
    if (!owner)
        throw DanglingWeakPtrException<FileRepresentation const>("", parent);
    boost::filesystem::path const container(owner->containerFileName());
    return (container / boost::filesystem::path(path).filename()).string();
}

void ScreenMetaDataImpl::xmlName(XMLable::Options& options) const {
    *options.stream << "ScreenMetaData";
}

void ScreenMetaDataImpl::xmlAttributes(XMLable::Options&) const {}

void ScreenMetaDataImpl::xmlBody(XMLable::Options& options, int indent) const {
    for (SideFile const* file : {&topmostWindowCoordinates_, &cursorLocation_, &cursorAction_, &dirtyRects_}) {
        *options.stream << genIndent(indent);
        printParameterFile(options, file->fileName, file->paramName);
    }
}

void ScreenMetaDataImpl::printParameterFile(XMLable::Options& options, std::string const& fileName,
                                            char const* paramName) {
    *options.stream << "<ParameterFile filename=\""
                    << xml_representation(convertToRelativeIfNecessary(options, fileName)) << "\" paramName=\""
                    << paramName << "\"/>\n";
}

}  // namespace ZelmarMediaLib
