#pragma once
// A moment of a command history, to which the history can later be brought back.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>

#include <list>

namespace ZelmarMediaLib {

class Command;

// A plain value: the commands themselves are shared, not copied.
struct ZML_EXPORT CommandHistoryState {
    // Null when the undo stack was empty.
    shared_ptr<Command const> undoTop;
    std::list<shared_ptr<Command> > redoStack;
};

}  // namespace ZelmarMediaLib
