#pragma once
// Rebuilds among clones the links that their originals had with one another.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>

#include <map>

namespace ZelmarMediaLib {

class Media;

namespace LinkCloneUtil {

typedef std::map<shared_ptr<Media const>, shared_ptr<Media> > CloneMap;
typedef std::map<shared_ptr<Media>, shared_ptr<Media const> > ReverseCloneMap;

// Links each clone with the clones of the medias that its original is linked with. A link
// to a media that was not cloned is dropped. The clones are linked without a test of their
// ranges. A dead link of an original raises DanglingWeakPtrException<Media const>.
ZML_EXPORT void linkClones(CloneMap const& clones);

// From each clone back to its original.
ZML_EXPORT shared_ptr<ReverseCloneMap> reverseCloneMap(CloneMap const& clones);

}  // namespace LinkCloneUtil
}  // namespace ZelmarMediaLib
