#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

#include <ZelmarMediaLib/exceptions/AddRemoveException.h>
#include <ZelmarMediaLib/exceptions/DefaultMediaDispatcherException.h>
#include <ZelmarMediaLib/exceptions/IOException.h>
#include <ZelmarMediaLib/exceptions/IndexException.h>
#include <ZelmarMediaLib/exceptions/KeyFrameException.h>
#include <ZelmarMediaLib/exceptions/LinkException.h>
#include <ZelmarMediaLib/exceptions/ThreadLockingException.h>
#include <ZelmarMediaLib/exceptions/TypeException.h>

#include <sstream>

namespace ZelmarMediaLib {

namespace {

template <class T>
std::string streamed(T const& value) {
    std::ostringstream out;
    out << value;
    return out.str();
}

}  // namespace

ZelmarMediaLibException::ZelmarMediaLibException(std::string const& message) : message_(message) {}

ZelmarMediaLibException::~ZelmarMediaLibException() noexcept = default;

char const* ZelmarMediaLibException::what() const noexcept {
    return message_.c_str();
}

IndexException::IndexException(int index) : ZelmarMediaLibException("Invalid index:" + streamed(index)), index_(index) {}

KeyFrameException::KeyFrameException(long long time)
    : ZelmarMediaLibException("Invalid KeyFrame operation at time " + streamed(time)), time_(time) {}

LinkException::LinkException(Range<long long> const& first, Range<long long> const& second)
    : ZelmarMediaLibException(""), first_(first), second_(second) {}

AddRemoveException::AddRemoveException(std::string const& message) : ZelmarMediaLibException(message) {}

TypeException::TypeException(std::string const& message) : ZelmarMediaLibException(message) {}

IOException::IOException(std::string const& message) : ZelmarMediaLibException("IOException: " + message) {}

ThreadLockingException::ThreadLockingException(std::string const& message)
    : ZelmarMediaLibException("ThreadLockingException: " + message) {}

DefaultMediaDispatcherException::DefaultMediaDispatcherException(std::string const& message)
    : ZelmarMediaLibException("DefaultMediaDispatcherException: " + message) {}

}  // namespace ZelmarMediaLib
