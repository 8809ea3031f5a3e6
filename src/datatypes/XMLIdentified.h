#pragma once
// The identity number by which a printed object is referred to inside one document.
#include <ZelmarMediaLib/datatypes/Export.h>
namespace ZelmarMediaLib {

class ZML_EXPORT XMLIdentified {
public:
    XMLIdentified();
    // A copy draws a number of its own; it never shares its origin's.
    XMLIdentified(XMLIdentified const&);
    // Leaves the number of the left side alone.
    XMLIdentified& operator=(XMLIdentified const&);
    virtual ~XMLIdentified();

    unsigned int xmlIdent() const { return ident_; }

private:
    unsigned int ident_;
};

}  // namespace ZelmarMediaLib
