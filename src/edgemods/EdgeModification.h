#pragma once
// One edge modification: a function applied to one double parameter of a media.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>

#include <memory>

namespace ZelmarMediaLib {

class EdgeModFunc;
template <class T>
class Parameter;

// A value: copies clone the function.
class ZML_EXPORT EdgeModification {
public:
    EdgeModification(shared_ptr<Parameter<double> const> parameter, EdgeModFunc const& func);
    EdgeModification(EdgeModification const& other);
    EdgeModification& operator=(EdgeModification const& other);
    // A move hands the function over, so it keeps its identity number in the document; the
    // moved-from modification may only be assigned to or destroyed.
    EdgeModification(EdgeModification&& other) noexcept;
    EdgeModification& operator=(EdgeModification&& other) noexcept;
    ~EdgeModification();

    shared_ptr<Parameter<double> const> const& parameter() const { return parameter_; }
    EdgeModFunc const& func() const { return *func_; }
    EdgeModFunc& func() { return *func_; }

    // The function at that fraction, of the parameter's value at that time.
    double execute(double fraction, long long time) const;

private:
    shared_ptr<Parameter<double> const> parameter_;
    std::unique_ptr<EdgeModFunc> func_;
};

}  // namespace ZelmarMediaLib
