#pragma once
// The system's own codec between narrow text and 32-bit characters, behind XML escaping.
#include <ZelmarMediaLib/datatypes/Export.h>

#include <string>
#include <vector>

namespace ZelmarMediaLib {

// The narrow form has the shape of UTF-8 but a bit layout of its own, and the two
// directions invert each other only in a narrow band. The bytes of every escaped string
// depend on it, so it must not be replaced by a standard codec.
class ZML_EXPORT EncodingConverter {
public:
    virtual ~EncodingConverter() = default;
    virtual std::vector<unsigned int> unicodeNarrowToWide(std::string const& narrow) const = 0;
    virtual std::string unicodeWideToNarrow(std::vector<unsigned int> const& wide) const = 0;

    // Made on first use, also when that comes on several threads at once, and kept for ever.
    // The converters hold no state, so any thread may use the instance.
    static EncodingConverter* instance();
};

// The platform's converter.
class ZML_EXPORT DefaultEncodingConverter : public EncodingConverter {
public:
    std::vector<unsigned int> unicodeNarrowToWide(std::string const& narrow) const override;
    std::string unicodeWideToNarrow(std::vector<unsigned int> const& wide) const override;
};

}  // namespace ZelmarMediaLib
