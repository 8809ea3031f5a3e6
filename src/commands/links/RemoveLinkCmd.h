#pragma once
// Removes the link of one media to another, one direction only; undo links it again.
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class Media;

// The other direction is the caller's business: LinkCmd and UnlinkCmd run these in pairs.
class ZML_EXPORT RemoveLinkCmd : public Command {
public:
    static shared_ptr<RemoveLinkCmd> create(shared_ptr<Media const> media, shared_ptr<Media const> mediaToRemove);

    RemoveLinkCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    shared_ptr<Media const> const& media() const { return media_; }
    shared_ptr<Media const> const& mediaToRemove() const { return mediaToRemove_; }

    void xmlName(XMLable::Options& options) const override;
    // Both medias by their identity numbers in the document.
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    RemoveLinkCmd(shared_ptr<Media const> media, shared_ptr<Media const> mediaToRemove);
    RemoveLinkCmd(RemoveLinkCmd const& other) = default;

private:
    shared_ptr<Media const> media_;
    shared_ptr<Media const> mediaToRemove_;
};

}  // namespace ZelmarMediaLib
