#pragma once
// The inner face of a project: the primitive edits that commands call, and their only path to the model.

namespace ZelmarMediaLib {

// Its operations grow with the model: each arrives with the part of the model it edits.
class CommandHandler {
public:
    virtual ~CommandHandler() = default;
};

}  // namespace ZelmarMediaLib
