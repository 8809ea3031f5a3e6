#include <ZelmarMediaLib/timeline/LinkCloneUtil.h>

#include <ZelmarMediaLib/exceptions/DanglingWeakPtrException.h>
#include <ZelmarMediaLib/timeline/Media.h>

namespace ZelmarMediaLib {
namespace LinkCloneUtil {

namespace {

void performClonedMediaLink(shared_ptr<Media> const& clone, shared_ptr<Media> const& other) {
    if (!clone->isLinkedWith(other))
        clone->link(other);
}

void linkClone(shared_ptr<Media const> const& source, shared_ptr<Media> const& clone, CloneMap const& clones) {
    for (ConstIterator<Media::LinkList> link = source->linkBegin(), end = source->linkEnd(); link != end; ++link) {
        shared_ptr<Media const> const linked = link->lock();
        if (!linked)
            throw DanglingWeakPtrException<Media const>("", weak_ptr<Media const>(*link));
        CloneMap::const_iterator const linkedClone = clones.find(linked);
        if (linkedClone != clones.end())
            performClonedMediaLink(clone, linkedClone->second);
    }
}

}  // namespace

void linkClones(CloneMap const& clones) {
    for (CloneMap::value_type const& entry : clones)
        linkClone(entry.first, entry.second, clones);
}

shared_ptr<ReverseCloneMap> reverseCloneMap(CloneMap const& clones) {
    shared_ptr<ReverseCloneMap> reversed = boost::make_shared<ReverseCloneMap>();
    for (CloneMap::value_type const& entry : clones)
        (*reversed)[entry.second] = entry.first;
    return reversed;
}

}  // namespace LinkCloneUtil
}  // namespace ZelmarMediaLib
