#pragma once
// Takes the edge modification of one parameter off one edge of a media; the two edges are its two subclasses.
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/edgemods/EdgeModification.h>

#include <optional>

namespace ZelmarMediaLib {

class EdgeModifiable;
template <class T>
class Parameter;
namespace detail {
struct EdgeSide;
}

// Undo appends the removed modification again, at the end of the list. A parameter without
// a modification on that edge is refused by the media.
class ZML_EXPORT RemoveEdgeModCmd : public Command {
public:
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    RemoveEdgeModCmd(detail::EdgeSide const& side, shared_ptr<EdgeModifiable const> target,
                     shared_ptr<Parameter<double> const> parameter);
    RemoveEdgeModCmd(RemoveEdgeModCmd const& other) = default;

private:
    detail::EdgeSide const* side_;
    shared_ptr<EdgeModifiable const> target_;
    shared_ptr<Parameter<double> const> parameter_;
    // Held only while the modification is off the media.
    std::optional<EdgeModification> removed_;
};

}  // namespace ZelmarMediaLib
