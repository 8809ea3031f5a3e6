#pragma once
// Hands out the small identity numbers that printed objects carry; retired numbers come back first.
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

#include <vector>

namespace ZelmarMediaLib {

// A process-wide singleton without a lock: objects with identity are made and destroyed
// under the project's discipline.
class IdentManager : public ZelmarObject {
public:
    static IdentManager* instance();

    unsigned int newIdent();
    // Nothing checks for a double retirement or a number never given.
    void retireIdent(unsigned int ident);

private:
    IdentManager() = default;

    unsigned int nextIdent_ = 0;
    std::vector<unsigned int> retiredIdents_;
};

}  // namespace ZelmarMediaLib
