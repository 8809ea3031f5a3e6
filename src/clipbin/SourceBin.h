#pragma once
// The project's loaded sources: each file at most once, each new one past the application's sentries.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/ConstIterator.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/SubProject.h>
#include <ZelmarMediaLib/datatypes/Subject.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>

#include <list>
#include <string>

namespace ZelmarMediaLib {

class ProjectEditRate;
class Source;
class SourceBinSentry;

// Reads take the project's read lock; changes take none, since they run on the command path
// under the write lock.
class ZML_EXPORT SourceBin : public SubProject, public XMLable, public Subject {
public:
    typedef std::list<shared_ptr<Source> > SourceList;
    typedef std::list<shared_ptr<SourceBinSentry> > SentryList;

    SourceBin(weak_ptr<ThreadSafe const> project, weak_ptr<ProjectEditRate> editRate);
    // A new, empty bin on the same project: neither sources nor sentries come along.
    SourceBin(SourceBin const& other);
    SourceBin& operator=(SourceBin const&) = delete;
    ~SourceBin() override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    // The sources in bin order, one level deeper than received.
    void xmlBody(XMLable::Options& options, int indent) const override;

    // The source already loaded from exactly that path, as it is, with no sentry asked and no
    // notification. Otherwise a new source, which each sentry in turn may refuse: the first
    // refusal prints a line naming the sentry and the file to the standard output and raises
    // "attempting to load a media not accepted by sentries.", and the bin stays as it was.
    // A dead edit rate raises DanglingWeakPtrException<ProjectEditRate>.
    shared_ptr<Source> loadFile(std::string const& path);
    // Appends and notifies; a null source is refused.
    void addSource(shared_ptr<Source> source);
    // The first entry of that very source goes, and observers hear of it. Raises
    // ValueException<shared_ptr<Source const> > "unable to remove clip" if it isn't here.
    void removeSource(shared_ptr<Source const> source);
    // Appends, in the order in which sentries are asked; no notification.
    void addSentry(shared_ptr<SourceBinSentry> sentry);

    // By the statistics' file name, byte for byte; the first match or null.
    shared_ptr<Source> sourceForFile(std::string const& path) const;
    bool isFileLoaded(std::string const& path) const;
    // By pointer.
    bool containsSource(shared_ptr<Source const> source) const;

    // The const forms hold the read lock for as long as the iterator or a copy lives.
    ConstIterator<SourceList> begin() const;
    ConstIterator<SourceList> end() const;
    SourceList::iterator begin();
    SourceList::iterator end();

private:
    // The caller holds a lock.
    shared_ptr<Source> findAssociatedSource(std::string const& path) const;
    shared_ptr<Source> createAndAddSource(std::string const& path);

    SourceList sources_;
    weak_ptr<ProjectEditRate> editRate_;
    SentryList sentries_;
};

}  // namespace ZelmarMediaLib
