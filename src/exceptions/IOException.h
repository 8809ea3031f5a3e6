#pragma once
// A file that could not be read.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

namespace ZelmarMediaLib {

class ZML_EXPORT IOException : public ZelmarMediaLibException {
public:
    explicit IOException(std::string const& message);
};

}  // namespace ZelmarMediaLib
