#pragma once
// A lock taken in a way that would deadlock.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

namespace ZelmarMediaLib {

class ZML_EXPORT ThreadLockingException : public ZelmarMediaLibException {
public:
    explicit ThreadLockingException(std::string const& message);
};

}  // namespace ZelmarMediaLib
