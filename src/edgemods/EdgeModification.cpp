#include <ZelmarMediaLib/edgemods/EdgeModification.h>

#include <ZelmarMediaLib/edgemods/EdgeModFunc.h>
#include <ZelmarMediaLib/parameters/Parameter.h>

namespace ZelmarMediaLib {

EdgeModification::EdgeModification(shared_ptr<Parameter<double> const> parameter, EdgeModFunc const& func)
    : parameter_(parameter), func_(func.clone()) {}

EdgeModification::EdgeModification(EdgeModification const& other)
    : parameter_(other.parameter_), func_(other.func_->clone()) {}

EdgeModification& EdgeModification::operator=(EdgeModification const& other) {
    if (this != &other) {
        func_.reset(other.func_->clone());
        parameter_ = other.parameter_;
    }
    return *this;
}

EdgeModification::EdgeModification(EdgeModification&& other) noexcept = default;

EdgeModification& EdgeModification::operator=(EdgeModification&& other) noexcept = default;

EdgeModification::~EdgeModification() = default;

double EdgeModification::execute(double fraction, long long time) const {
    return func_->execute(fraction, parameter_->valueAtTime(static_cast<double>(time)));
}

}  // namespace ZelmarMediaLib
