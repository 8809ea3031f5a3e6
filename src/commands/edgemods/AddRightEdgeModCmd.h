#pragma once
// Adds an edge modification to the right edge of a media.
#include <ZelmarMediaLib/commands/edgemods/AddEdgeModCmd.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class ZML_EXPORT AddRightEdgeModCmd : public AddEdgeModCmd {
public:
    static shared_ptr<AddRightEdgeModCmd> create(shared_ptr<Media const> media, EdgeModification const& modification);

    AddRightEdgeModCmd* clone() const override;
    void xmlName(XMLable::Options& options) const override;

protected:
    AddRightEdgeModCmd(shared_ptr<Media const> media, EdgeModification const& modification);
    AddRightEdgeModCmd(AddRightEdgeModCmd const& other) = default;
};

}  // namespace ZelmarMediaLib
