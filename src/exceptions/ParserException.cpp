#include <ZelmarMediaLib/exceptions/ParserException.h>

namespace ZelmarMediaLib {

ParserException::ParserException(std::string const& message, int line, int column)
    : ZelmarMediaLibException(message), line_(line), column_(column) {}

ParserException::~ParserException() noexcept = default;

char const* ParserException::what() const noexcept {
    try {
        composed_ = message() + " line:" + std::to_string(line_) + " col:" + std::to_string(column_);
    } catch (...) {
        return message().c_str();
    }
    return composed_.c_str();
}

}  // namespace ZelmarMediaLib
