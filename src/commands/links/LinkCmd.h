#pragma once
// Joins the linked groups of two medias into one, in which each media knows each other; undo parts them again.
#include <ZelmarMediaLib/commands/MultiCommand.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class Media;

// Each member of the one group is linked with each member of the other, both directions,
// by AddLinkCmds. Two medias whose track ranges or media ranges differ, or that are linked
// already, are refused with "unable to link media", and the links already made are undone.
//   {A, C} + {B}   gives   A-B, B-A, C-B, B-C: the clique {A, B, C}
class ZML_EXPORT LinkCmd : public MultiCommand {
public:
    static shared_ptr<LinkCmd> create(shared_ptr<Media const> media1, shared_ptr<Media const> media2);

    LinkCmd* clone() const override;

    shared_ptr<Media const> const& media1() const { return media1_; }
    shared_ptr<Media const> const& media2() const { return media2_; }

    void xmlName(XMLable::Options& options) const override;
    // Both medias by their identity numbers in the document.
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    LinkCmd(shared_ptr<Media const> media1, shared_ptr<Media const> media2);
    LinkCmd(LinkCmd const& other) = default;

    // A dead link in either group raises DanglingWeakPtrException<Media const>.
    void executeCommands(CommandHandler const* handler) override;

private:
    shared_ptr<Media const> media1_;
    shared_ptr<Media const> media2_;
};

}  // namespace ZelmarMediaLib
