#pragma once
// An index outside the bounds of a list of tracks, effects or file tracks.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

namespace ZelmarMediaLib {

class ZML_EXPORT IndexException : public ZelmarMediaLibException {
public:
    explicit IndexException(int index);

    int index() const { return index_; }

private:
    int index_;
};

}  // namespace ZelmarMediaLib
