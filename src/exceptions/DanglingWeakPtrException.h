#pragma once
// A weak reference that had to be locked but whose object is gone.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

namespace ZelmarMediaLib {

template <class T>
class DanglingWeakPtrException : public ZelmarMediaLibException {
public:
    DanglingWeakPtrException(std::string const& message, weak_ptr<T> const& reference)
        : ZelmarMediaLibException(message), reference_(reference) {}
    ~DanglingWeakPtrException() noexcept override = default;

    weak_ptr<T> const& reference() const { return reference_; }

private:
    weak_ptr<T> reference_;
};

}  // namespace ZelmarMediaLib
