#pragma once
// Takes the edge modification of one parameter off the right edge of a media.
#include <ZelmarMediaLib/commands/edgemods/RemoveEdgeModCmd.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

template <class T>
class Parameter;

class ZML_EXPORT RemoveRightEdgeModCmd : public RemoveEdgeModCmd {
public:
    static shared_ptr<RemoveRightEdgeModCmd> create(shared_ptr<EdgeModifiable const> target,
        shared_ptr<Parameter<double> const> parameter);

    RemoveRightEdgeModCmd* clone() const override;
    void xmlName(XMLable::Options& options) const override;

protected:
    RemoveRightEdgeModCmd(shared_ptr<EdgeModifiable const> target,
        shared_ptr<Parameter<double> const> parameter);
    RemoveRightEdgeModCmd(RemoveRightEdgeModCmd const& other) = default;
};

}  // namespace ZelmarMediaLib
