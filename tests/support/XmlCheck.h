#pragma once
// Test helpers: an object's XML as text, and a real XML parser's verdict on written text.
#include <string>

namespace ZelmarMediaLib {

class XMLable;

namespace test {

// The object's element at indent 0 with no extra attributes; absolute paths are made relative
// to baseDirectory when it is given.
std::string xml(XMLable const& object, std::string const& baseDirectory = std::string());
// The object's id as it stands in the XML.
std::string id(XMLable const& object);

// True when libxml2 parses the text as a well-formed document; the parser's first
// complaint goes to *error.
bool isWellFormedXml(std::string const& text, std::string* error = nullptr);

}  // namespace test
}  // namespace ZelmarMediaLib
