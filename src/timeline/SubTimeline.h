#pragma once
// The common base of medias, tracks and mixers: parameters, effects, attributes, XML and a span of time.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/SubProject.h>
#include <ZelmarMediaLib/datatypes/Subject.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>
#include <ZelmarMediaLib/effects/Effectable.h>
#include <ZelmarMediaLib/parameters/Attributable.h>
#include <ZelmarMediaLib/parameters/Identified.h>
#include <ZelmarMediaLib/parameters/Parametric.h>
#include <ZelmarMediaLib/timeline/Temporal.h>

namespace ZelmarMediaLib {

class VectorEffectable;

class ZML_EXPORT SubTimeline : public SubProject,
                    public Subject,
                    public Parametric,
                    public Effectable,
                    public Attributable,
                    public XMLable,
                    public Temporal,
                    public Identified {
public:
    // Each forwards to the owner's chain; the edits then notify, the questions take the read lock.
    int addEffect(shared_ptr<Effect> effect) override;
    void insertEffect(shared_ptr<Effect> effect, int index) override;
    void swapEffectOrder(int first, int second) override;
    EffectRemoval removeEffect(shared_ptr<Effect const> effect) override;
    EffectRemoval removeEffect(int index) override;
    shared_ptr<Effect> effectAtIndex(int index) override;
    shared_ptr<Effect const> effectAtIndex(int index) const override;
    int numEffects() const override;

    // How many attributes xmlOfAttributes writes; the block is left out at 0.
    virtual int numAttributes() const;
    virtual void xmlOfParameters(XMLable::Options& options, int indent) const = 0;

    // At the given level: a Parameters block if there are parameters, an Effects block if
    // there are effects, an Attributes block if there are attributes, each with its
    // contents one level deeper.
    void xmlOfParametersEffectsAttributes(XMLable::Options& options, int indent) const;

protected:
    explicit SubTimeline(weak_ptr<ThreadSafe const> project);
    SubTimeline(SubTimeline const& other);
    SubTimeline& operator=(SubTimeline const&) = delete;

    // The effect chain that each media, track and mixer owns.
    virtual VectorEffectable& effectChain() = 0;
    virtual VectorEffectable const& effectChain() const = 0;
};

}  // namespace ZelmarMediaLib
