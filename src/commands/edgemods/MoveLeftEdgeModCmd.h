#pragma once
// Lengthens or shortens the left edge zone of a media by a delta.
#include <ZelmarMediaLib/commands/edgemods/MoveEdgeModCmd.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class ZML_EXPORT MoveLeftEdgeModCmd : public MoveEdgeModCmd {
public:
    static shared_ptr<MoveLeftEdgeModCmd> create(shared_ptr<EdgeModifiable const> target, long long delta);

    MoveLeftEdgeModCmd* clone() const override;
    void xmlName(XMLable::Options& options) const override;

protected:
    MoveLeftEdgeModCmd(shared_ptr<EdgeModifiable const> target, long long delta);
    MoveLeftEdgeModCmd(MoveLeftEdgeModCmd const& other) = default;
};

}  // namespace ZelmarMediaLib
