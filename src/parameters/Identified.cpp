#include <ZelmarMediaLib/parameters/Identified.h>

#include <ZelmarMediaLib/parameters/Attribute.h>

namespace ZelmarMediaLib {

namespace {

shared_ptr<Attribute<std::string> > copyOf(Attribute<std::string> const& attribute) {
    ReadWriteMutex::ScopedReadLock lock(&attribute.mutex());
    return boost::make_shared<Attribute<std::string> >(attribute);
}

}  // namespace

Identified::Identified(weak_ptr<ThreadSafe const> project)
    : ident_(boost::make_shared<Attribute<std::string> >(std::string(), project)) {}

// The same copy as the attribute's clone(), made in one block with its count.
Identified::Identified(Identified const& other) : ident_(copyOf(*other.ident_)) {}

Identified::~Identified() = default;

shared_ptr<Attribute<std::string> > Identified::identAttribute() {
    return ident_;
}

shared_ptr<Attribute<std::string> const> Identified::identAttribute() const {
    return ident_;
}

}  // namespace ZelmarMediaLib
