#pragma once
// Lengthens or shortens the right edge zone of a media by a delta.
#include <ZelmarMediaLib/commands/edgemods/MoveEdgeModCmd.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class ZML_EXPORT MoveRightEdgeModCmd : public MoveEdgeModCmd {
public:
    static shared_ptr<MoveRightEdgeModCmd> create(shared_ptr<EdgeModifiable const> target, long long delta);

    MoveRightEdgeModCmd* clone() const override;
    void xmlName(XMLable::Options& options) const override;

protected:
    MoveRightEdgeModCmd(shared_ptr<EdgeModifiable const> target, long long delta);
    MoveRightEdgeModCmd(MoveRightEdgeModCmd const& other) = default;
};

}  // namespace ZelmarMediaLib
