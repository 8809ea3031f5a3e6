#pragma once
// A veto on the files that a project's source bin loads, implemented by the application.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

#include <string>

namespace ZelmarMediaLib {

class MediaFileStats;

// Asked about every new file, after its statistics are read and before its source enters the
// bin; a file loaded already is not asked about again.
class ZML_EXPORT SourceBinSentry : public virtual ZelmarObject {
public:
    ~SourceBinSentry() override = default;
    // The sentry's name, printed when it refuses a file.
    std::string description() const override = 0;
    virtual bool acceptsFile(MediaFileStats const& stats) = 0;
};

}  // namespace ZelmarMediaLib
