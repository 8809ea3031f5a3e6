#pragma once
// The effect chain that medias, tracks and mixers own: a vector of effects, the first applied first.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Cloneable.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>
#include <ZelmarMediaLib/effects/Effectable.h>

#include <vector>

namespace ZelmarMediaLib {

// Has no lock: every edit runs under the project's write lock taken by the command, and the
// owner reads under its own read lock.
class ZML_EXPORT VectorEffectable : public virtual ZelmarObject, public Effectable, public virtual Cloneable {
public:
    VectorEffectable();
    // Every effect is cloned, so that two chains never share one. The clones have no time
    // converter until their new owner sets one.
    VectorEffectable(VectorEffectable const& other);
    VectorEffectable& operator=(VectorEffectable const&) = delete;
    ~VectorEffectable() override;

    VectorEffectable* clone() const override;

    int addEffect(shared_ptr<Effect> effect) override;
    void insertEffect(shared_ptr<Effect> effect, int index) override;
    void swapEffectOrder(int first, int second) override;
    EffectRemoval removeEffect(shared_ptr<Effect const> effect) override;
    EffectRemoval removeEffect(int index) override;
    shared_ptr<Effect> effectAtIndex(int index) override;
    shared_ptr<Effect const> effectAtIndex(int index) const override;
    int numEffects() const override;

private:
    std::vector<shared_ptr<Effect> > effects_;
};

}  // namespace ZelmarMediaLib
