#pragma once
// A parse failure at a line and column; the library has no parser and keeps it for applications.
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

namespace ZelmarMediaLib {

class ParserException : public ZelmarMediaLibException {
public:
    ParserException(std::string const& message, int line, int column);
    ~ParserException() noexcept override;

    // Composed afresh on each call; the text stays valid until the next call.
    char const* what() const noexcept override;

    int line() const { return line_; }
    int column() const { return column_; }

private:
    int line_;
    int column_;
    mutable std::string composed_;
};

}  // namespace ZelmarMediaLib
