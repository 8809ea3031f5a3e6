#include <ZelmarMediaLib/effects/CompositeEffect.h>

#include <ostream>

namespace ZelmarMediaLib {

CompositeEffect::CompositeEffect(std::string const& name, weak_ptr<ThreadSafe const> project)
    : Effect(name, project) {}

std::string CompositeEffect::description() const {
    return std::string();
}

int CompositeEffect::numParameters() const {
    return 0;
}

void CompositeEffect::xmlName(XMLable::Options& options) const {
    *options.stream << "CompositeEffect";
}

void CompositeEffect::xmlAttributes(XMLable::Options& options) const {
    *options.stream << "name=\"" << name() << '"';
}

void CompositeEffect::xmlBody(XMLable::Options&, int) const {}

}  // namespace ZelmarMediaLib
