#pragma once
// Takes the edge modification of one parameter off the right edge of a media.
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/edgemods/EdgeModification.h>

#include <optional>

namespace ZelmarMediaLib {

class EdgeModifiable;
template <class T>
class Parameter;

// Undo appends the removed modification again, at the end of the list. A parameter without
// a modification on that edge is refused by the media.
class ZML_EXPORT RemoveRightEdgeModCmd : public Command {
public:
    static shared_ptr<RemoveRightEdgeModCmd> create(shared_ptr<EdgeModifiable const> target,
                                                   shared_ptr<Parameter<double> const> parameter);

    RemoveRightEdgeModCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    RemoveRightEdgeModCmd(shared_ptr<EdgeModifiable const> target, shared_ptr<Parameter<double> const> parameter);
    RemoveRightEdgeModCmd(RemoveRightEdgeModCmd const& other) = default;

private:
    shared_ptr<EdgeModifiable const> target_;
    shared_ptr<Parameter<double> const> parameter_;
    // Held only while the modification is off the media.
    std::optional<EdgeModification> removed_;
};

}  // namespace ZelmarMediaLib
