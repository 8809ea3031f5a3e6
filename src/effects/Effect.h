#pragma once
// A named, keyframed modification that a media, a track or a mixer applies to what it shows.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Cloneable.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/SubProject.h>
#include <ZelmarMediaLib/datatypes/Subject.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>
#include <ZelmarMediaLib/parameters/Parametric.h>

#include <list>
#include <string>

namespace ZelmarMediaLib {

class Effectable;
class EffectTimeConverter;
class ParameterInterface;

// The library stores effects and hands them to the application; it never renders them.
class ZML_EXPORT Effect : public SubProject, public virtual Cloneable, public XMLable, public Parametric, public Subject {
public:
    explicit Effect(weak_ptr<ThreadSafe const> project);
    Effect(std::string const& name, weak_ptr<ThreadSafe const> project);
    // The copy keeps the name and the project, but neither the parent nor the time converter:
    // it has none until its new owner sets one.
    Effect(Effect const& other);
    Effect& operator=(Effect const&) = delete;
    ~Effect() override;

    std::string description() const override;
    ReadWriteMutex& mutex() const override;
    Effect* clone() const override = 0;
    // An effect's keyframes are kept in its own time, so these two are the identity.
    double toParameterTime(double time) const override;
    double fromParameterTime(double time) const override;
    // Through the time converter where the owner set one: an effect on a media follows the
    // media, one on a track or a mixer lives in timeline time.
    long long fromGlobalToParametricTime(long long time) const override;
    int numParameters() const override;
    // In the effect's own order, which the XML follows.
    virtual std::list<ParameterInterface const*> parameters() const = 0;
    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    // The parameters, without name attributes, in a "Parameters" block at indent.
    void xmlBody(XMLable::Options& options, int indent) const override;

    std::string name() const;

    // An open hook: nothing in the library calls it, the owners connect effects through the
    // time converter.
    void setParentEffectable(weak_ptr<Effectable> parent);
    weak_ptr<Effectable> parentEffectable() const;
    // Not owned: the owner of the chain sets itself and clears it before the effect leaves.
    void setEffectTimeConverter(EffectTimeConverter* converter);

private:
    std::string name_;
    weak_ptr<Effectable> parent_;
    EffectTimeConverter* timeConverter_ = nullptr;
};

}  // namespace ZelmarMediaLib
