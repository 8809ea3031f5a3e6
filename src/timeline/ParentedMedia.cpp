#include <ZelmarMediaLib/timeline/ParentedMedia.h>

#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/timeline/Media.h>

namespace ZelmarMediaLib {

ParentedMedia::ParentedMedia(shared_ptr<Media> media) : media_(media) {}

void ParentedMedia::assertParented() const {
    if (media_->parentTrack().expired())
        throw ValueException<shared_ptr<Media> >("trying to edit a parentless media like a parented media", media_);
}

}  // namespace ZelmarMediaLib
