#pragma once
// A parse failure at a line and column; the library has no parser and keeps it for applications.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

namespace ZelmarMediaLib {

class ZML_EXPORT ParserException : public ZelmarMediaLibException {
public:
    ParserException(std::string const& message, int line, int column);
    ~ParserException() noexcept override;

    // The message with " line:" and " col:" behind it, composed once, so the text stays
    // valid for as long as the exception lives.
    char const* what() const noexcept override;

    int line() const { return line_; }
    int column() const { return column_; }

private:
    int line_;
    int column_;
    std::string composed_;
};

}  // namespace ZelmarMediaLib
