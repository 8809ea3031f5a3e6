#pragma once
// Told just before every execute, undo, redo and restore of a project's history.

namespace ZelmarMediaLib {

// Implemented by the application; the project holds a plain pointer and does not own it.
class CommandObserver {
public:
    virtual ~CommandObserver() = default;
    virtual void preCommand() = 0;
};

}  // namespace ZelmarMediaLib
