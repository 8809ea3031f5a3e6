#pragma once
// How values become attribute text: numbers in the stream's default format, strings escaped.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>

#include <charconv>
#include <cstdio>
#include <locale>
#include <sstream>
#include <string>
#include <type_traits>

namespace ZelmarMediaLib {

namespace detail {

// Integers and doubles under the classic global locale are formatted without a stream: a
// stream's construction costs more than the number, and documents hold many numbers. The
// text is the same as a fresh stream's: decimal, and "%g" with six significant digits.
template <class T>
struct FormatsWithoutStream
    : std::integral_constant<bool, std::is_same<T, short>::value || std::is_same<T, unsigned short>::value ||
                                       std::is_same<T, int>::value || std::is_same<T, unsigned int>::value ||
                                       std::is_same<T, long>::value || std::is_same<T, unsigned long>::value ||
                                       std::is_same<T, long long>::value ||
                                       std::is_same<T, unsigned long long>::value ||
                                       std::is_same<T, double>::value> {};

inline bool hasClassicGlobalLocale() {
    return std::locale() == std::locale::classic();
}

inline std::string formatWithoutStream(double value) {
    char text[32];
    int const length = std::snprintf(text, sizeof text, "%g", value);
    return std::string(text, static_cast<std::size_t>(length));
}

template <class T>
std::string formatWithoutStream(T value) {
    char text[24];
    char* const end = std::to_chars(text, text + sizeof text, value).ptr;
    return std::string(text, end);
}

}  // namespace detail

// Each value is formed in a stream of its own, so that no flag or precision of the
// document's stream can leak into it: six significant digits for floating point.
template <class T>
std::string xml_representation(T const& value) {
    if constexpr (detail::FormatsWithoutStream<T>::value) {
        if (detail::hasClassicGlobalLocale())
            return detail::formatWithoutStream(value);
    }
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
