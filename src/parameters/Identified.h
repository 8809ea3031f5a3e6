#pragma once
// A user-visible ident string, held as an attribute that is copied with the object.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/ThreadSafe.h>

#include <string>

namespace ZelmarMediaLib {

template <class T>
class Attribute;

class ZML_EXPORT Identified {
public:
    explicit Identified(weak_ptr<ThreadSafe const> project);
    // The copy gets a clone of the attribute, so changing its ident leaves the source's alone.
    Identified(Identified const& other);
    Identified& operator=(Identified const&) { return *this; }
    virtual ~Identified();

    // The shared attribute itself, so that a holder can set the value.
    virtual shared_ptr<Attribute<std::string> > identAttribute();
    virtual shared_ptr<Attribute<std::string> const> identAttribute() const;

private:
    shared_ptr<Attribute<std::string> > ident_;
};

}  // namespace ZelmarMediaLib
