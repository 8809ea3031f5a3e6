#pragma once
// Two linked medias whose track ranges should be equal and are not; its text is empty.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Range.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

namespace ZelmarMediaLib {

class ZML_EXPORT LinkException : public ZelmarMediaLibException {
public:
    LinkException(Range<long long> const& first, Range<long long> const& second);

    Range<long long> const& firstRange() const { return first_; }
    Range<long long> const& secondRange() const { return second_; }

private:
    Range<long long> first_;
    Range<long long> second_;
};

}  // namespace ZelmarMediaLib
