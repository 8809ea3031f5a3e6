#include <ZelmarMediaLib/timeline/SubTimeline.h>

#include <ZelmarMediaLib/effects/Effect.h>

#include <ostream>

namespace ZelmarMediaLib {

SubTimeline::SubTimeline(weak_ptr<ThreadSafe const> project) : SubProject(project), Identified(project) {}

SubTimeline::SubTimeline(SubTimeline const& other)
    : XMLIdentified(other), SubProject(other), Subject(other), Parametric(other), Effectable(other),
      Attributable(other), XMLable(other), Temporal(other), Identified(other) {}

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
