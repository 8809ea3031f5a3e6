#pragma once
// A failure that carries the value it concerns, so that a catcher can recover the object.
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

namespace ZelmarMediaLib {

template <class T>
class ValueException : public ZelmarMediaLibException {
public:
    ValueException(std::string const& message, T const& value) : ZelmarMediaLibException(message), value_(value) {}
    ~ValueException() noexcept override = default;

    T const& value() const { return value_; }

private:
    T value_;
};

}  // namespace ZelmarMediaLib
