#include <ZelmarMediaLib/datatypes/XMLRepresentation.h>

#include <ZelmarMediaLib/datatypes/EncodingConverter.h>
#include <ZelmarMediaLib/datatypes/PathUtil.h>

#include <vector>

namespace ZelmarMediaLib {

namespace {

void appendAscii(std::vector<unsigned int>& out, char const* text) {
    for (; *text; ++text)
        out.push_back(static_cast<unsigned char>(*text));
}

}  // namespace

std::string xml_representation(float value) {
    return xml_representation(static_cast<double>(value));
}

std::string xml_representation(rational<unsigned long> const& rate) {
    std::ostringstream out;
    out << rate.numerator() << '/' << rate.denominator();
    return out.str();
}

std::string xml_representation(std::string const& text) {
    EncodingConverter const* converter = EncodingConverter::instance();
    std::vector<unsigned int> const wide = converter->unicodeNarrowToWide(text);
    std::vector<unsigned int> escaped;
    escaped.reserve(wide.size() + wide.size() / 8);
    // One pass gives what the replacements in order give (ampersand first): no replacement
    // text holds a character that a later replacement looks for.
    for (unsigned int const c : wide) {
        switch (c) {
        case 38: appendAscii(escaped, "&amp;"); break;
        case 34: appendAscii(escaped, "&quot;"); break;
        case 39: appendAscii(escaped, "&apos;"); break;
        case 60: appendAscii(escaped, "&lt;"); break;
        case 62: appendAscii(escaped, "&gt;"); break;
        // Lower-case "a" for the line feed, upper-case "D" for the carriage return.
        case 10: appendAscii(escaped, "&#xa;"); break;
        case 13: appendAscii(escaped, "&#xD;"); break;
        default: escaped.push_back(c); break;
        }
    }
    return converter->unicodeWideToNarrow(escaped);
}

std::string xml_representation(std::string& text) {
    return xml_representation(static_cast<std::string const&>(text));
}

std::string xml_representation(char const* text) {
    return xml_representation(std::string(text));
}

std::string convertToRelativeIfNecessary(XMLable::Options const& options, std::string const& path) {
    if (!options.baseDirectory.empty() && !path.empty() && PathUtil::isAbsolutePath(path))
        return PathUtil::absolutePathToRelative(path, options.baseDirectory);
    return path;
}

}  // namespace ZelmarMediaLib
