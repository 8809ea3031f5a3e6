#pragma once
// What the application gives the library to turn a screen recording's side file into a value.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>

#include <string>

namespace ZelmarMediaLib {

class ParameterInterface;
class ProjectEditRate;
class ThreadSafe;

// The library opens no side file itself and ships no loader: the format of the files is a
// matter between the application and its loader. The value is only stored and handed back.
class ZML_EXPORT ScreenMetaDataLoader {
public:
    virtual ~ScreenMetaDataLoader() = default;
    // path is absolute. name says which of the four values is wanted: "topmostWindowCoordinates",
    // "cursorLocation", "cursorAction" or "dirtyRects". What the loader throws reaches the
    // caller, and nothing is cached.
    virtual shared_ptr<ParameterInterface> loadParameter(std::string const& path,
                                                         weak_ptr<ProjectEditRate const> editRate,
                                                         weak_ptr<ThreadSafe const> project,
                                                         std::string const& name) = 0;
};

}  // namespace ZelmarMediaLib
