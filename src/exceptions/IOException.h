#pragma once
// A file that could not be read.
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

namespace ZelmarMediaLib {

class IOException : public ZelmarMediaLibException {
public:
    explicit IOException(std::string const& message);
};

}  // namespace ZelmarMediaLib
