#include <ZelmarMediaLib/timeline/SubTimeline.h>

#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/effects/Effect.h>
#include <ZelmarMediaLib/effects/VectorEffectable.h>

#include <ostream>

namespace ZelmarMediaLib {

SubTimeline::SubTimeline(weak_ptr<ThreadSafe const> project) : SubProject(project), Identified(project) {}

SubTimeline::SubTimeline(SubTimeline const& other)
    : XMLIdentified(other), SubProject(other), Subject(other), Parametric(other), Effectable(other),
      Attributable(other), XMLable(other), Temporal(other), Identified(other) {}

int SubTimeline::addEffect(shared_ptr<Effect> effect) {
    int const index = effectChain().addEffect(effect);
    notify();
    return index;
}

void SubTimeline::insertEffect(shared_ptr<Effect> effect, int index) {
    effectChain().insertEffect(effect, index);
    notify();
}

void SubTimeline::swapEffectOrder(int first, int second) {
    effectChain().swapEffectOrder(first, second);
    notify();
}

EffectRemoval SubTimeline::removeEffect(shared_ptr<Effect const> effect) {
    EffectRemoval const removal = effectChain().removeEffect(effect);
    notify();
    return removal;
}

EffectRemoval SubTimeline::removeEffect(int index) {
    EffectRemoval const removal = effectChain().removeEffect(index);
    notify();
    return removal;
}

shared_ptr<Effect> SubTimeline::effectAtIndex(int index) {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return effectChain().effectAtIndex(index);
}

shared_ptr<Effect const> SubTimeline::effectAtIndex(int index) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return effectChain().effectAtIndex(index);
}

int SubTimeline::numEffects() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return effectChain().numEffects();
}

int SubTimeline::numAttributes() const {
    return 1;
}

void SubTimeline::xmlOfParametersEffectsAttributes(XMLable::Options& options, int indent) const {
    std::ostream& out = *options.stream;
    std::string const blanks = genIndent(indent);
    if (numParameters() > 0) {
        out << blanks << "<Parameters>\n";
        xmlOfParameters(options, indent + 1);
        out << blanks << "</Parameters>\n";
    }
    int const effects = numEffects();
    if (effects >= 1) {
        out << blanks << "<Effects>\n";
        for (int i = 0; i < effects; ++i)
            effectAtIndex(i)->toXML(options, indent + 1, "");
        out << blanks << "</Effects>\n";
    }
    if (numAttributes() >= 1) {
        out << blanks << "<Attributes>\n";
        xmlOfAttributes(options, indent + 1);
        out << blanks << "</Attributes>\n";
    }
}

}  // namespace ZelmarMediaLib
