#pragma once
// An effect that is written to XML by its name alone; the concrete kinds supply parameters and times.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/effects/Effect.h>

#include <string>

namespace ZelmarMediaLib {

class ZML_EXPORT CompositeEffect : public Effect {
public:
    CompositeEffect(std::string const& name, weak_ptr<ThreadSafe const> project);

    std::string description() const override;
    CompositeEffect* clone() const override = 0;
    // Pure again, unlike in Effect: each composite kind says how its time relates to its parts'.
    double toParameterTime(double time) const override = 0;
    double fromParameterTime(double time) const override = 0;
    int numParameters() const override;
    void xmlName(XMLable::Options& options) const override;
    // name="..." with the name as it stands, not escaped.
    void xmlAttributes(XMLable::Options& options) const override;
    // Nothing: the element stands for the effect by its name.
    void xmlBody(XMLable::Options& options, int indent) const override;
};

}  // namespace ZelmarMediaLib
