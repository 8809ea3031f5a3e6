#pragma once
// Takes one media out of its linked group; the others stay linked among themselves.
#include <ZelmarMediaLib/commands/MultiCommand.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class Media;

// Removes both directions of each of the media's links by RemoveLinkCmds. A link between
// medias whose track ranges have drifted apart is refused, and the links already removed
// are restored.
//   {A, B, C}, unlink A   gives   {A}, {B, C}
class ZML_EXPORT UnlinkCmd : public MultiCommand {
public:
    static shared_ptr<UnlinkCmd> create(shared_ptr<Media const> media);

    UnlinkCmd* clone() const override;

    shared_ptr<Media const> const& media() const { return media_; }

    void xmlName(XMLable::Options& options) const override;
    // The media by its identity number in the document.
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    explicit UnlinkCmd(shared_ptr<Media const> media);
    UnlinkCmd(UnlinkCmd const& other) = default;

    // A dead link raises DanglingWeakPtrException<Media const>.
    void executeCommands(CommandHandler const* handler) override;

private:
    shared_ptr<Media const> media_;
};

}  // namespace ZelmarMediaLib
