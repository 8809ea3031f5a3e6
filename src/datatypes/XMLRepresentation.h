#pragma once
// How values become attribute text: numbers in the stream's default format, strings escaped.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>

#include <sstream>
#include <string>

namespace ZelmarMediaLib {

// Each value is formed in a stream of its own, so that no flag or precision of the
// document's stream can leak into it: six significant digits for floating point.
template <class T>
std::string xml_representation(T const& value) {
    std::ostringstream out;
    out << value;
    return out.str();
}

// Floats go out as doubles.
ZML_EXPORT std::string xml_representation(float value);
// An edit rate: numerator/denominator.
ZML_EXPORT std::string xml_representation(rational<unsigned long> const& rate);

// Escaped through the text codec: & " ' < > line feed and carriage return, in that order.
ZML_EXPORT std::string xml_representation(std::string& text);
ZML_EXPORT std::string xml_representation(std::string const& text);
ZML_EXPORT std::string xml_representation(char const* text);

// The path made relative to options.baseDirectory when that is set and the path is
// absolute; otherwise the path as it stands. Not escaped: that is the caller's next step.
ZML_EXPORT std::string convertToRelativeIfNecessary(XMLable::Options const& options, std::string const& path);

}  // namespace ZelmarMediaLib
