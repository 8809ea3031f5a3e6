#pragma once
// The screen meta data of one VMFile: four file names, and the values loaded from them so far.
#include <ZelmarMediaLib/clipbin/ScreenMetaData.h>
#include <ZelmarMediaLib/datatypes/Export.h>

#include <mutex>
#include <string>

namespace ZelmarMediaLib {

// Exported for the unit tests only: applications never name this class.
class ZML_EXPORT ScreenMetaDataImpl : public ScreenMetaData {
public:
    ScreenMetaDataImpl(weak_ptr<ThreadSafe const> project, weak_ptr<FileRepresentation const> parent,
                       weak_ptr<ProjectEditRate const> editRate);
    ScreenMetaDataImpl(ScreenMetaDataImpl const&) = delete;
    ScreenMetaDataImpl& operator=(ScreenMetaDataImpl const&) = delete;
    ~ScreenMetaDataImpl() override;

    // Raises boost::bad_weak_ptr once the project is gone.
    ReadWriteMutex& mutex() const override;
    void setParent(weak_ptr<FileRepresentation const> parent) override;
    void setTopmostWindowCoordinates(std::string const& fileName) override;
    void setCursorLocation(std::string const& fileName) override;
    void setCursorAction(std::string const& fileName) override;
    void setDirtyRects(std::string const& fileName) override;
    std::string topmostWindowCoordinatesFilename() const override;
    std::string cursorLocationFilename() const override;
    std::string cursorActionFilename() const override;
    std::string dirtyRectsFilename() const override;
    shared_ptr<ParameterInterface> topmostWindowCoordinates() const override;
    shared_ptr<ParameterInterface> cursorLocation() const override;
    shared_ptr<ParameterInterface> cursorAction() const override;
    shared_ptr<ParameterInterface> dirtyRects() const override;
    bool isValid() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    // One ParameterFile line for each of the four files, also for a name not set.
    void xmlBody(XMLable::Options& options, int indent) const override;

    // An absolute path stands as it is. A relative one is looked for directly inside the
    // parent's container, the bundle of the recording: its folders are dropped and only its
    // leaf is kept. A dead parent raises DanglingWeakPtrException<FileRepresentation const>.
    static std::string convertToAbsolute(weak_ptr<FileRepresentation const> const& parent, std::string const& path);

private:
    // One side file: the name as it was set and the value once loaded.
    struct SideFile {
        explicit SideFile(char const* paramName) : paramName(paramName) {}

        char const* paramName;
        std::string fileName;
        shared_ptr<ParameterInterface> value;
    };

    shared_ptr<ParameterInterface> lazyLoad(SideFile& file) const;
    static void printParameterFile(XMLable::Options& options, std::string const& fileName, char const* paramName);

    weak_ptr<ThreadSafe const> lock_;
    weak_ptr<FileRepresentation const> parent_;
    // Loads run from const readers that share the project's read lock, so two of them may load
    // the same file at once; the second result stands. This lock only keeps each read and
    // store of a slot whole, and is never held while the loader runs.
    mutable std::mutex cacheMutex_;
    mutable SideFile topmostWindowCoordinates_;
    mutable SideFile cursorLocation_;
    mutable SideFile cursorAction_;
    mutable SideFile dirtyRects_;
    weak_ptr<ProjectEditRate const> editRate_;
};

}  // namespace ZelmarMediaLib
