#include <ZelmarMediaLib/effects/Effect.h>

#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/effects/EffectTimeConverter.h>
#include <ZelmarMediaLib/parameters/ParameterInterface.h>

#include <ostream>

namespace ZelmarMediaLib {

Effect::Effect(weak_ptr<ThreadSafe const> project) : SubProject(project) {}

Effect::Effect(std::string const& name, weak_ptr<ThreadSafe const> project) : SubProject(project), name_(name) {}

Effect::Effect(Effect const& other)
    : XMLIdentified(other), SubProject(other), XMLable(other), Parametric(other), Subject(other),
      name_(other.name_) {}

Effect::~Effect() = default;

std::string Effect::description() const {
    return name();
}

ReadWriteMutex& Effect::mutex() const {
    return SubProject::mutex();
}

double Effect::toParameterTime(double time) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return time;
}

double Effect::fromParameterTime(double time) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return time;
}

long long Effect::fromGlobalToParametricTime(long long time) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return timeConverter_ ? timeConverter_->globalTimeToEffectTime(time) : time;
}

int Effect::numParameters() const {
    return 0;
}

void Effect::xmlName(XMLable::Options& options) const {
    *options.stream << "Effect";
}

void Effect::xmlAttributes(XMLable::Options&) const {}

void Effect::xmlBody(XMLable::Options& options, int indent) const {
    std::string const blanks = XMLable::genIndent(indent);
    *options.stream << blanks << "<Parameters>\n";
    for (ParameterInterface const* parameter : parameters())
        parameter->toXML(options, indent + 1, "");
    *options.stream << blanks << "</Parameters>\n";
}

std::string Effect::name() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return name_;
}

void Effect::setParentEffectable(weak_ptr<Effectable> parent) {
    parent_ = parent;
}

weak_ptr<Effectable> Effect::parentEffectable() const {
    return parent_;
}

void Effect::setEffectTimeConverter(EffectTimeConverter* converter) {
    timeConverter_ = converter;
}

}  // namespace ZelmarMediaLib
