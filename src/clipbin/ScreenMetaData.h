#pragma once
// The four side files of a screen recording's video track, whose values are loaded on demand.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/ThreadSafe.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>

#include <string>

namespace ZelmarMediaLib {

class FileRepresentation;
class ParameterInterface;
class ProjectEditRate;
class ScreenMetaDataLoader;

// The side files are the topmost window's coordinates, the cursor's location, the cursor's
// actions and the changed rectangles of the screen. File names may be relative: they are then
// looked for inside the container of the parent, the VMFile that the meta data belongs to.
class ZML_EXPORT ScreenMetaData : public virtual ThreadSafe, public XMLable {
public:
    static shared_ptr<ScreenMetaData> create(weak_ptr<ThreadSafe const> project,
                                             weak_ptr<FileRepresentation const> parent,
                                             weak_ptr<ProjectEditRate const> editRate);
    // Without a parent, to be given one by setParent.
    static shared_ptr<ScreenMetaData> create(weak_ptr<ThreadSafe const> project,
                                             weak_ptr<ProjectEditRate const> editRate);

    ~ScreenMetaData() override = default;

    ReadWriteMutex& mutex() const override = 0;
    virtual void setParent(weak_ptr<FileRepresentation const> parent) = 0;
    // The setters keep a value already loaded: a moved file is still the same file.
    virtual void setTopmostWindowCoordinates(std::string const& fileName) = 0;
    virtual void setCursorLocation(std::string const& fileName) = 0;
    virtual void setCursorAction(std::string const& fileName) = 0;
    virtual void setDirtyRects(std::string const& fileName) = 0;
    virtual std::string topmostWindowCoordinatesFilename() const = 0;
    virtual std::string cursorLocationFilename() const = 0;
    virtual std::string cursorActionFilename() const = 0;
    virtual std::string dirtyRectsFilename() const = 0;
    // Each asks the lazy loader the first time and then keeps its answer. Every call, cached or
    // not, raises ZelmarMediaLibException while no loader is set.
    virtual shared_ptr<ParameterInterface> topmostWindowCoordinates() const = 0;
    virtual shared_ptr<ParameterInterface> cursorLocation() const = 0;
    virtual shared_ptr<ParameterInterface> cursorAction() const = 0;
    virtual shared_ptr<ParameterInterface> dirtyRects() const = 0;
    // All four file names are known; the application asks this before it asks for values.
    virtual bool isValid() const = 0;

    // The loader is the application's and stays its own; null takes it away.
    static void setLazyLoader(ScreenMetaDataLoader* loader);
    static ScreenMetaDataLoader* lazyLoader();
};

}  // namespace ZelmarMediaLib
