#pragma once
// Hands out the small identity numbers that printed objects carry; retired numbers come back first.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

#include <mutex>
#include <vector>

namespace ZelmarMediaLib {

// A process-wide singleton with a lock of its own: objects with identity are made and
// destroyed on any thread, by clones and copies under read locks among others.
class ZML_EXPORT IdentManager : public ZelmarObject {
public:
    static IdentManager* instance();

    unsigned int newIdent();
    // Nothing checks for a double retirement or a number never given.
    void retireIdent(unsigned int ident);

private:
    IdentManager() = default;

    std::mutex mutex_;
    unsigned int nextIdent_ = 0;
    std::vector<unsigned int> retiredIdents_;
};

}  // namespace ZelmarMediaLib
