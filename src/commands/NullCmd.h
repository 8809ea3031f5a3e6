#pragma once
// A command that does nothing, successfully.
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class ZML_EXPORT NullCmd : public Command {
public:
    static shared_ptr<NullCmd> create();

    NullCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    bool reexecute(CommandHandler* handler) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    NullCmd() = default;
    NullCmd(NullCmd const& other) = default;
};

}  // namespace ZelmarMediaLib
