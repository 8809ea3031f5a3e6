#pragma once
// Takes the edge modification of one parameter off the left edge of a media.
#include <ZelmarMediaLib/commands/edgemods/RemoveEdgeModCmd.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

template <class T>
class Parameter;

class ZML_EXPORT RemoveLeftEdgeModCmd : public RemoveEdgeModCmd {
public:
    static shared_ptr<RemoveLeftEdgeModCmd> create(shared_ptr<EdgeModifiable const> target,
        shared_ptr<Parameter<double> const> parameter);

    RemoveLeftEdgeModCmd* clone() const override;
    void xmlName(XMLable::Options& options) const override;

protected:
    RemoveLeftEdgeModCmd(shared_ptr<EdgeModifiable const> target,
        shared_ptr<Parameter<double> const> parameter);
    RemoveLeftEdgeModCmd(RemoveLeftEdgeModCmd const& other) = default;
};

}  // namespace ZelmarMediaLib
