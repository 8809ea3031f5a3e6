#pragma once
// Makes a copy of a media that takes over its right edge, leaving the media its left edge: the first step of a split.
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class EdgeModCommandHandler;
class Media;

// |<fade in ... fade out>|   ->   media |<fade in ...|    clone |... fade out>|
// The clone is not placed: that is the caller's business. Redo keeps the same clone; undo
// gives the media back its right zone, on its own parameters.
class ZML_EXPORT EdgeModCloneCmd : public Command {
public:
    static shared_ptr<EdgeModCloneCmd> create(shared_ptr<Media const> media);

    EdgeModCloneCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    bool reexecute(CommandHandler* handler) override;

    // Empty until the first execute.
    shared_ptr<Media> mediaClone() const { return clone_; }

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    explicit EdgeModCloneCmd(shared_ptr<Media const> media);
    EdgeModCloneCmd(EdgeModCloneCmd const& other) = default;

private:
    void splitEdges(EdgeModCommandHandler* edge);

    shared_ptr<Media const> media_;
    shared_ptr<Media> clone_;
    long long formerRightLength_;
};

}  // namespace ZelmarMediaLib
