#include <ZelmarMediaLib/commands/NullCmd.h>

#include <ostream>

namespace ZelmarMediaLib {

shared_ptr<NullCmd> NullCmd::create() {
    return shared_ptr<NullCmd>(new NullCmd);
}

NullCmd* NullCmd::clone() const {
    return new NullCmd(*this);
}

bool NullCmd::execute(CommandHandler*) {
    return true;
}

bool NullCmd::unexecute(CommandHandler*) {
    return true;
}

bool NullCmd::reexecute(CommandHandler*) {
    return true;
}

void NullCmd::xmlName(XMLable::Options& options) const {
    *options.stream << "NullCmd";
}

void NullCmd::xmlAttributes(XMLable::Options&) const {}

void NullCmd::xmlBody(XMLable::Options&, int) const {}

}  // namespace ZelmarMediaLib
