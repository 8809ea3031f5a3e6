#pragma once
// A media kind that a dispatcher does not handle.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

namespace ZelmarMediaLib {

class ZML_EXPORT DefaultMediaDispatcherException : public ZelmarMediaLibException {
public:
    explicit DefaultMediaDispatcherException(std::string const& message);
};

}  // namespace ZelmarMediaLib
