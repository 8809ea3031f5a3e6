#include <ZelmarMediaLib/parameters/Identified.h>

#include <ZelmarMediaLib/parameters/Attribute.h>

namespace ZelmarMediaLib {

Identified::Identified(weak_ptr<ThreadSafe const> project)
    : ident_(boost::make_shared<Attribute<std::string> >(std::string(), project)) {}

Identified::Identified(Identified const& other) : ident_(other.ident_->clone()) {}

Identified::~Identified() = default;

shared_ptr<Attribute<std::string> > Identified::identAttribute() {
    return ident_;
}

shared_ptr<Attribute<std::string> const> Identified::identAttribute() const {
    return ident_;
}

}  // namespace ZelmarMediaLib
