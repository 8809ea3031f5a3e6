#pragma once
// Adds an edge modification to one edge of a media; the two edges are its two subclasses.
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/edgemods/EdgeModification.h>

namespace ZelmarMediaLib {

class Media;
namespace detail {
struct EdgeSide;
}

// Each execute, redo included, adds a fresh copy of the function that knows the project's
// visual mixer and, for a visual media, the media: a slide needs both to find the stage.
// A second modification of one parameter on one edge is refused by the media.
class ZML_EXPORT AddEdgeModCmd : public Command {
public:
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

    shared_ptr<Media const> const& media() const { return media_; }
    EdgeModification const& modification() const { return modification_; }

protected:
    AddEdgeModCmd(detail::EdgeSide const& side, shared_ptr<Media const> media, EdgeModification const& modification);
    AddEdgeModCmd(AddEdgeModCmd const& other) = default;


private:
    detail::EdgeSide const* side_;
    shared_ptr<Media const> media_;
    EdgeModification modification_;
};

}  // namespace ZelmarMediaLib
