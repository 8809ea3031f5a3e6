#include <ZelmarMediaLib/exceptions/ParserException.h>

namespace ZelmarMediaLib {

ParserException::ParserException(std::string const& message, int line, int column)
    : ZelmarMediaLibException(message),
      line_(line),
      column_(column),
      composed_(message + " line:" + std::to_string(line) + " col:" + std::to_string(column)) {}

ParserException::~ParserException() noexcept = default;

char const* ParserException::what() const noexcept {
    return composed_.c_str();
}

}  // namespace ZelmarMediaLib
