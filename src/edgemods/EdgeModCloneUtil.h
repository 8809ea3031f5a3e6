#pragma once
// Rebuilds a copied media's edge modifications on the copy's own parameters.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>

#include <memory>
#include <string>

namespace ZelmarMediaLib {

class Media;
class Parametric;
template <class T>
class Parameter;

// A modification names its parameter by object, so a copy that kept the original's would
// animate the original. Every media's clone() runs both setups on the copy it makes.
namespace EdgeModCloneUtil {

// The first double parameter of the object with exactly that ident; empty if none.
ZML_EXPORT shared_ptr<Parameter<double> const> findDoubleParamWithName(Parametric const* parametric,
                                                                       std::string const& name);
// Each modification of that edge of source, on the parameter of copy with the same name,
// added to copy directly, not through a command.
ZML_EXPORT void setupLeftMods(Media* copy, Media const& source);
ZML_EXPORT void setupRightMods(Media* copy, Media const& source);

// What a concrete media's clone() returns: its copy with both edges set up.
template <class T>
T* withEdgeMods(std::unique_ptr<T> copy, Media const& source) {
    setupLeftMods(copy.get(), source);
    setupRightMods(copy.get(), source);
    return copy.release();
}

}  // namespace EdgeModCloneUtil
}  // namespace ZelmarMediaLib
