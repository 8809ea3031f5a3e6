#pragma once
// A refused addition or removal of a mixer or track.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

namespace ZelmarMediaLib {

class ZML_EXPORT AddRemoveException : public ZelmarMediaLibException {
public:
    explicit AddRemoveException(std::string const& message);
};

}  // namespace ZelmarMediaLib
