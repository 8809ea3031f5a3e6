#pragma once
// Lengthens or shortens the right edge zone of a media by a delta.
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class EdgeModifiable;

// The delta is added to the effective length, and the sum is stored: a stored length that
// was larger is not given back by undo, which restores the effective one. Nothing clamps a
// negative result.
class ZML_EXPORT MoveRightEdgeModCmd : public Command {
public:
    static shared_ptr<MoveRightEdgeModCmd> create(shared_ptr<EdgeModifiable const> target, long long delta);

    MoveRightEdgeModCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    // Stores the length of the first execute again, without reading the zone anew.
    bool reexecute(CommandHandler* handler) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    MoveRightEdgeModCmd(shared_ptr<EdgeModifiable const> target, long long delta);
    MoveRightEdgeModCmd(MoveRightEdgeModCmd const& other) = default;

private:
    shared_ptr<EdgeModifiable const> target_;
    long long delta_;
    long long formerLength_;
};

}  // namespace ZelmarMediaLib
