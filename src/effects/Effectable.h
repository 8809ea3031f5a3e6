#pragma once
// An ordered chain of effects, and the record that a removal from it gives back.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class Effect;

// Kept by the remove command for its undo.
struct ZML_EXPORT EffectRemoval {
    shared_ptr<Effect> effect;
    int index = 0;
};

// Index 0 is the first effect of the chain. An index out of range raises IndexException and
// changes nothing.
class ZML_EXPORT Effectable {
public:
    virtual ~Effectable() = default;

    // Returns the index at which the effect now stands.
    virtual int addEffect(shared_ptr<Effect> effect) = 0;
    // Before the effect at index; an index equal to the size appends.
    virtual void insertEffect(shared_ptr<Effect> effect, int index) = 0;
    virtual void swapEffectOrder(int first, int second) = 0;
    // Raises ValueException<shared_ptr<Effect const> > for an empty effect or one not in the chain.
    virtual EffectRemoval removeEffect(shared_ptr<Effect const> effect) = 0;
    // The record holds what stands at index after the removal, not the removed effect.
    virtual EffectRemoval removeEffect(int index) = 0;
    virtual shared_ptr<Effect> effectAtIndex(int index) = 0;
    virtual shared_ptr<Effect const> effectAtIndex(int index) const = 0;
    virtual int numEffects() const = 0;
};

}  // namespace ZelmarMediaLib
