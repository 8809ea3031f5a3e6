#include <ZelmarMediaLib/parameters/Parametric.h>

#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/parameters/VectorParam.h>

#include <memory>

namespace ZelmarMediaLib {

Parametric::~Parametric() = default;

double Parametric::doubleParametricTransform(shared_ptr<ParameterInterface const>, double value, double) const {
    return value;
}

shared_ptr<ParameterInterface const> Parametric::paramWithName(std::string const& name) const {
    // The list holds the project's read lock for the whole walk.
    std::unique_ptr<ParameterVector> const parameters(parameterVector());
    for (shared_ptr<ParameterInterface const> const& parameter : *parameters) {
        if (parameter->ident() == name)
            return parameter;
    }
    return shared_ptr<ParameterInterface const>();
}

double Parametric::transformedDoubleParameterValueAtTime(shared_ptr<InterpolatingParam<double> const> parameter,
                                                         double time) const {
    double const value = parameter->valueAtTime(toParameterTime(time));
    return doubleParametricTransform(parameter, value, time);
}

void Parametric::addVectorParamToParameters(shared_ptr<VectorParam const> vector, ParameterVector* list) {
    for (int i = 0; i < vector->numDimensions(); ++i)
        list->push_back(vector->at(i));
}

}  // namespace ZelmarMediaLib
