#include <ZelmarMediaLib/parameters/VectorParam.h>

#include <ZelmarMediaLib/parameters/InterpolatingParam.h>

namespace ZelmarMediaLib {

VectorParam::VectorParam(weak_ptr<ThreadSafe const> project, int dimensions, std::string const& name)
    : SubProject(project), Identified(project) {
    for (int i = 0; i < dimensions; ++i)
        components_.push_back(boost::make_shared<InterpolatingParam<double> >(project, name + std::to_string(i)));
    identAttribute()->setValue(name);
}

VectorParam::VectorParam(VectorParam const& other)
    : XMLIdentified(other), SubProject(other), XMLable(other), Identified(other) {
    for (shared_ptr<InterpolatingParam<double> > const& component : other.components_)
        components_.push_back(shared_ptr<InterpolatingParam<double> >(component->clone()));
}

VectorParam::~VectorParam() = default;

VectorParam* VectorParam::clone() const {
    return new VectorParam(*this);
}

int VectorParam::numDimensions() const {
    return static_cast<int>(components_.size());
}

shared_ptr<InterpolatingParam<double> > VectorParam::at(int index) {
    return components_[static_cast<std::size_t>(index)];
}

shared_ptr<InterpolatingParam<double> const> VectorParam::at(int index) const {
    return components_[static_cast<std::size_t>(index)];
}

void VectorParam::xmlName(XMLable::Options& options) const {
    *options.stream << "VectorParam";
}

void VectorParam::xmlAttributes(XMLable::Options&) const {}

void VectorParam::xmlBody(XMLable::Options& options, int indent) const {
    for (shared_ptr<InterpolatingParam<double> > const& component : components_)
        component->toXML(options, indent, "");
}

}  // namespace ZelmarMediaLib
