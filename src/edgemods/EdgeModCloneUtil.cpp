#include <ZelmarMediaLib/edgemods/EdgeModCloneUtil.h>

#include <ZelmarMediaLib/parameters/Parameter.h>
#include <ZelmarMediaLib/parameters/Parametric.h>
#include <ZelmarMediaLib/timeline/Media.h>

#include <memory>

namespace ZelmarMediaLib {
namespace EdgeModCloneUtil {

shared_ptr<Parameter<double> const> findDoubleParamWithName(Parametric const* parametric, std::string const& name) {
    std::unique_ptr<ParameterVector> const parameters(parametric->parameterVector());
    for (shared_ptr<ParameterInterface const> const& parameter : *parameters) {
        if (parameter->ident() == name)
            return dynamic_pointer_cast<Parameter<double> const>(parameter);
    }
    return shared_ptr<Parameter<double> const>();
}

// The copy is not yet in a shared_ptr and nobody observes it: it has nothing to announce.
void setupLeftMods(Media* copy, Media const& source) {
    Subject::NotifyDisabler const quiet = copy->disableNotifies();
    for (EdgeModification const& modification : source.leftEdgeModifications())
        copy->addLeftEdgeModification(
            EdgeModification(findDoubleParamWithName(copy, modification.parameter()->ident()), modification.func()));
}

void setupRightMods(Media* copy, Media const& source) {
    Subject::NotifyDisabler const quiet = copy->disableNotifies();
    for (EdgeModification const& modification : source.rightEdgeModifications())
        copy->addRightEdgeModification(
            EdgeModification(findDoubleParamWithName(copy, modification.parameter()->ident()), modification.func()));
}

}  // namespace EdgeModCloneUtil
}  // namespace ZelmarMediaLib
