#pragma once
// Lengthens or shortens one edge zone of a media by a delta; the two edges are its two subclasses.
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class EdgeModifiable;
namespace detail {
struct EdgeSide;
}

// The delta is added to the effective length, and the sum is stored: a stored length that
// was larger is not given back by undo, which restores the effective one. Nothing clamps a
// negative result.
class ZML_EXPORT MoveEdgeModCmd : public Command {
public:
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    // Stores the length of the first execute again, without reading the zone anew.
    bool reexecute(CommandHandler* handler) override;

    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    MoveEdgeModCmd(detail::EdgeSide const& side, shared_ptr<EdgeModifiable const> target, long long delta);
    MoveEdgeModCmd(MoveEdgeModCmd const& other) = default;

private:
    void setLength(CommandHandler* handler, long long length) const;

    detail::EdgeSide const* side_;
    shared_ptr<EdgeModifiable const> target_;
    long long delta_;
    long long formerLength_;
};

}  // namespace ZelmarMediaLib
