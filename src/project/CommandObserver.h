#pragma once
// Told just before every execute, undo, redo and restore of a project's history.
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

// Implemented by the application; the project holds a plain pointer and does not own it.
class ZML_EXPORT CommandObserver {
public:
    virtual ~CommandObserver() = default;
    virtual void preCommand() = 0;
};

}  // namespace ZelmarMediaLib
