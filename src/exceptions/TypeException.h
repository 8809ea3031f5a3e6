#pragma once
// A media or track of a kind that the receiver does not take.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

namespace ZelmarMediaLib {

class ZML_EXPORT TypeException : public ZelmarMediaLibException {
public:
    explicit TypeException(std::string const& message);
};

}  // namespace ZelmarMediaLib
