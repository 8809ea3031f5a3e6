#pragma once
// A media that stands for a file: the file's own name and the container it lives in.
#include <ZelmarMediaLib/datatypes/Export.h>

#include <string>

namespace ZelmarMediaLib {

class ZML_EXPORT FileRepresentation {
public:
    virtual ~FileRepresentation() = default;
    virtual std::string fileName() const = 0;
    virtual std::string containerFileName() const = 0;
};

}  // namespace ZelmarMediaLib
