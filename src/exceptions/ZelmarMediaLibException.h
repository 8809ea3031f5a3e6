#pragma once
// The root of every failure that the library reports on its own.
#include <ZelmarMediaLib/datatypes/Export.h>

#include <exception>
#include <string>

namespace ZelmarMediaLib {

class ZML_EXPORT ZelmarMediaLibException : public std::exception {
public:
    explicit ZelmarMediaLibException(std::string const& message);
    ~ZelmarMediaLibException() noexcept override;

    char const* what() const noexcept override;
    std::string const& message() const { return message_; }

private:
    std::string message_;
};

}  // namespace ZelmarMediaLib
