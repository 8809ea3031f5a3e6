#pragma once
// A fixed number of double parameters grouped as one vector: name0, name1, ...
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Cloneable.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/SubProject.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>
#include <ZelmarMediaLib/parameters/Identified.h>

#include <string>
#include <vector>

namespace ZelmarMediaLib {

template <class T>
class InterpolatingParam;

class ZML_EXPORT VectorParam : public SubProject, public XMLable, public virtual Cloneable, public Identified {
public:
    // The components start without keyframes: the owner gives each its first.
    VectorParam(weak_ptr<ThreadSafe const> project, int dimensions, std::string const& name);
    // The copy's components are clones.
    VectorParam(VectorParam const& other);
    VectorParam& operator=(VectorParam const&) = delete;
    ~VectorParam() override;

    VectorParam* clone() const override;

    int numDimensions() const;
    // No bounds check: callers stay below numDimensions().
    shared_ptr<InterpolatingParam<double> > at(int index);
    shared_ptr<InterpolatingParam<double> const> at(int index) const;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    // Each component at the body's own level, without extra attributes.
    void xmlBody(XMLable::Options& options, int indent) const override;

private:
    std::vector<shared_ptr<InterpolatingParam<double> > > components_;
};

}  // namespace ZelmarMediaLib
