#pragma once
// Adds an edge modification to the left edge of a media.
#include <ZelmarMediaLib/commands/edgemods/AddEdgeModCmd.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class ZML_EXPORT AddLeftEdgeModCmd : public AddEdgeModCmd {
public:
    static shared_ptr<AddLeftEdgeModCmd> create(shared_ptr<Media const> media, EdgeModification const& modification);

    AddLeftEdgeModCmd* clone() const override;
    void xmlName(XMLable::Options& options) const override;

protected:
    AddLeftEdgeModCmd(shared_ptr<Media const> media, EdgeModification const& modification);
    AddLeftEdgeModCmd(AddLeftEdgeModCmd const& other) = default;
};

}  // namespace ZelmarMediaLib
