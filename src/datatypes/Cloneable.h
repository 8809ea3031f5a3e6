#pragma once
// Copying through a pointer, and the two-step copy of objects that live in shared_ptr.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

// Subclasses narrow the result type; the caller owns the copy.
class ZML_EXPORT Cloneable {
public:
    virtual ~Cloneable() = default;
    virtual Cloneable* clone() const = 0;
};

// A clone that code outside the class finishes once it lives in a shared_ptr.
template <class T>
class DecoratedCloneable : public virtual Cloneable {
public:
    // Finishes a clone on behalf of code that the cloned class doesn't know of.
    class CloneDelegate {
    public:
        virtual ~CloneDelegate() = default;
        virtual void finishClone(T const& original, shared_ptr<T> const& clone) const = 0;
    };

    virtual void setupSharedClone(shared_ptr<T> clone) const {
        if (delegate_)
            delegate_->finishClone(dynamic_cast<T const&>(*this), clone);
    }

    // The delegate is not owned: its installer keeps it alive while clones are made.
    void setCloneDelegate(CloneDelegate const* delegate) { delegate_ = delegate; }
    CloneDelegate const* cloneDelegate() const { return delegate_; }

protected:
    DecoratedCloneable() = default;
    DecoratedCloneable(DecoratedCloneable const& other) : Cloneable(other), delegate_(other.delegate_) {}
    DecoratedCloneable& operator=(DecoratedCloneable const&) { return *this; }

private:
    CloneDelegate const* delegate_ = nullptr;
};

// Only once the clone is owned by a shared_ptr can it be handed to others, which is
// why setupSharedClone cannot run inside the copy constructor.
template <class T>
shared_ptr<T> sharedClone(shared_ptr<T const> const& original) {
    shared_ptr<T> result(original->clone());
    original->setupSharedClone(result);
    return result;
}

template <class T>
shared_ptr<T> sharedClone(shared_ptr<T> const& original) {
    return sharedClone(shared_ptr<T const>(original));
}

}  // namespace ZelmarMediaLib
