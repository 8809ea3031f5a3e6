#pragma once
// Test helpers: a real XML parser's verdict on written text.
#include <string>

namespace ZelmarMediaLib {
namespace test {

// True when libxml2 parses the text as a well-formed document; the parser's first
// complaint goes to *error.
bool isWellFormedXml(std::string const& text, std::string* error = nullptr);

}  // namespace test
}  // namespace ZelmarMediaLib
