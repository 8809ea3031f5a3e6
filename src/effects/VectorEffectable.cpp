#include <ZelmarMediaLib/effects/VectorEffectable.h>

#include <ZelmarMediaLib/effects/Effect.h>
#include <ZelmarMediaLib/exceptions/IndexException.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>

#include <string>
#include <utility>

namespace ZelmarMediaLib {

namespace {

// A null effect in the chain would only fail later, when the chain is printed or cloned.
void refuseNull(shared_ptr<Effect> const& effect, char const* message) {
    if (!effect)
        throw ValueException<shared_ptr<Effect const> >(message, effect);
}

void checkIndex(int index, int limit) {
    if (index < 0 || index >= limit)
        throw IndexException(index);
}

}  // namespace

VectorEffectable::VectorEffectable() = default;

VectorEffectable::VectorEffectable(VectorEffectable const& other)
    : ZelmarObject(other), Cloneable(other), Effectable(other) {
    effects_.reserve(other.effects_.size());
    for (shared_ptr<Effect> const& effect : other.effects_)
        effects_.push_back(shared_ptr<Effect>(effect->clone()));
}

VectorEffectable::~VectorEffectable() = default;

VectorEffectable* VectorEffectable::clone() const {
    return new VectorEffectable(*this);
}

int VectorEffectable::addEffect(shared_ptr<Effect> effect) {
    refuseNull(effect, "trying to add a null effect");
    effects_.push_back(effect);
    return numEffects() - 1;
}

void VectorEffectable::insertEffect(shared_ptr<Effect> effect, int index) {
    checkIndex(index, numEffects() + 1);
    refuseNull(effect, "trying to insert a null effect");
    effects_.insert(effects_.begin() + index, effect);
}

void VectorEffectable::swapEffectOrder(int first, int second) {
    checkIndex(first, numEffects());
    checkIndex(second, numEffects());
    std::swap(effects_[static_cast<std::size_t>(first)], effects_[static_cast<std::size_t>(second)]);
}

EffectRemoval VectorEffectable::removeEffect(shared_ptr<Effect const> effect) {
    if (!effect)
        throw ValueException<shared_ptr<Effect const> >("trying to remove a null effect", effect);
    for (std::size_t i = 0; i < effects_.size(); ++i) {
        if (effects_[i] == effect) {
            EffectRemoval removal{effects_[i], static_cast<int>(i)};
            effects_.erase(effects_.begin() + static_cast<std::ptrdiff_t>(i));
            return removal;
        }
    }
    throw ValueException<shared_ptr<Effect const> >("effect to remove isn't found", effect);
}

EffectRemoval VectorEffectable::removeEffect(int index) {
    checkIndex(index, numEffects());
    effects_.erase(effects_.begin() + index);
    // Filled after the erase, so the record holds the effect that moved up into the slot, not
    // the removed one; callers that need that one read it first or remove by pointer.
    shared_ptr<Effect> const successor =
        index < numEffects() ? effects_[static_cast<std::size_t>(index)] : shared_ptr<Effect>();
    return EffectRemoval{successor, index};
}

shared_ptr<Effect> VectorEffectable::effectAtIndex(int index) {
    checkIndex(index, numEffects());
    return effects_[static_cast<std::size_t>(index)];
}

shared_ptr<Effect const> VectorEffectable::effectAtIndex(int index) const {
    checkIndex(index, numEffects());
    return effects_[static_cast<std::size_t>(index)];
}

int VectorEffectable::numEffects() const {
    return static_cast<int>(effects_.size());
}

}  // namespace ZelmarMediaLib
