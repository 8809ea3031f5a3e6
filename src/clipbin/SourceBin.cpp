#include <ZelmarMediaLib/clipbin/SourceBin.h>

#include <ZelmarMediaLib/clipbin/MediaFileStats.h>
#include <ZelmarMediaLib/clipbin/Source.h>
#include <ZelmarMediaLib/clipbin/SourceBinSentry.h>
#include <ZelmarMediaLib/datatypes/ProjectEditRate.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/exceptions/DanglingWeakPtrException.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

#include <iostream>

namespace ZelmarMediaLib {

SourceBin::SourceBin(weak_ptr<ThreadSafe const> project, weak_ptr<ProjectEditRate> editRate)
    : SubProject(project), editRate_(editRate) {}

SourceBin::SourceBin(SourceBin const& other)
    : XMLIdentified(other), SubProject(other), XMLable(other), Subject(other), editRate_(other.editRate_) {}

SourceBin::~SourceBin() = default;

void SourceBin::xmlName(XMLable::Options& options) const {
    *options.stream << "SourceBin";
}

void SourceBin::xmlAttributes(XMLable::Options&) const {}

void SourceBin::xmlBody(XMLable::Options& options, int indent) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    for (shared_ptr<Source> const& source : sources_)
        source->toXML(options, indent + 1, "");
}

shared_ptr<Source> SourceBin::loadFile(std::string const& path) {
    if (shared_ptr<Source> const loaded = sourceForFile(path))
        return loaded;
    return createAndAddSource(path);
}

void SourceBin::addSource(shared_ptr<Source> source) {
    if (!source)
        throw ZelmarMediaLibException("attempting to add a null source");
    sources_.push_back(source);
    notify();
}

void SourceBin::removeSource(shared_ptr<Source const> source) {
    for (SourceList::iterator at = sources_.begin(); at != sources_.end(); ++at) {
        if (*at == source) {
            sources_.erase(at);
            notify();
            return;
        }
    }
    throw ValueException<shared_ptr<Source const> >("unable to remove clip", source);
}

void SourceBin::addSentry(shared_ptr<SourceBinSentry> sentry) {
    if (!sentry)
        throw ZelmarMediaLibException("attempting to add a null sentry");
    sentries_.push_back(sentry);
}

shared_ptr<Source> SourceBin::sourceForFile(std::string const& path) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return findAssociatedSource(path);
}

bool SourceBin::isFileLoaded(std::string const& path) const {
    return static_cast<bool>(sourceForFile(path));
}

bool SourceBin::containsSource(shared_ptr<Source const> source) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    for (shared_ptr<Source> const& held : sources_) {
        if (held == source)
            return true;
    }
    return false;
}

ConstIterator<SourceBin::SourceList> SourceBin::begin() const {
    return ConstIterator<SourceList>(sources_.begin(), mutex());
}

ConstIterator<SourceBin::SourceList> SourceBin::end() const {
    return ConstIterator<SourceList>(sources_.end(), mutex());
}

SourceBin::SourceList::iterator SourceBin::begin() {
    return sources_.begin();
}

SourceBin::SourceList::iterator SourceBin::end() {
    return sources_.end();
}

shared_ptr<Source> SourceBin::findAssociatedSource(std::string const& path) const {
    for (shared_ptr<Source> const& source : sources_) {
        if (source->mediaFileStats_->filename() == path)
            return source;
    }
    return shared_ptr<Source>();
}

shared_ptr<Source> SourceBin::createAndAddSource(std::string const& path) {
    shared_ptr<ProjectEditRate> const editRate = editRate_.lock();
    if (!editRate)
        throw DanglingWeakPtrException<ProjectEditRate>("", editRate_);
    shared_ptr<Source> const source = Source::create(editRate, projectMutex(), path);
    MediaFileStats const& stats = *source->mediaFileStats();
    for (shared_ptr<SourceBinSentry> const& sentry : sentries_) {
        if (!sentry->acceptsFile(stats)) {
            std::cout << "SourceBinSentry(" << sentry->description() << ") rejected file:" << stats.filename()
                      << std::endl;
            throw ZelmarMediaLibException("attempting to load a media not accepted by sentries.");
        }
    }
    sources_.push_back(source);
    notify();
    return source;
}

}  // namespace ZelmarMediaLib
