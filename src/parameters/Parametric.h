#pragma once
// What an owner of parameters is: a list of them, lookup by name, and its parameter time.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/MTVector.h>
#include <ZelmarMediaLib/datatypes/XMLIdentified.h>

#include <string>

namespace ZelmarMediaLib {

class ParameterInterface;
class VectorParam;
template <class T>
class InterpolatingParam;

// Parameters in a fixed order, read-locked while the list lives.
typedef MTVector<shared_ptr<ParameterInterface const> > ParameterVector;

class ZML_EXPORT Parametric : public virtual XMLIdentified {
public:
    ~Parametric() override;

    // Post-processes a double value; media apply their edge modifications here.
    virtual double doubleParametricTransform(shared_ptr<ParameterInterface const> parameter, double value,
                                             double time) const;
    // From the owner's local time (0 at a media's start) to the time of its keyframes.
    virtual double toParameterTime(double time) const = 0;
    virtual double fromParameterTime(double time) const = 0;
    // From timeline time to the owner's local time.
    virtual long long fromGlobalToParametricTime(long long time) const = 0;
    virtual int numParameters() const = 0;
    // A new list for each call, which the caller owns and deletes.
    virtual ParameterVector* parameterVector() const = 0;
    // The first parameter whose ident is exactly the name; empty if none.
    virtual shared_ptr<ParameterInterface const> paramWithName(std::string const& name) const;

    // Keyframes are looked up in parameter time; the transform sees the time as it came in.
    double transformedDoubleParameterValueAtTime(shared_ptr<InterpolatingParam<double> const> parameter,
                                                 double time) const;

    // Appends the components in index order; the vector itself is not a parameter.
    static void addVectorParamToParameters(shared_ptr<VectorParam const> vector, ParameterVector* list);
};

}  // namespace ZelmarMediaLib
