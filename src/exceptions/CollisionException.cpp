#include <ZelmarMediaLib/exceptions/CollisionException.h>

namespace ZelmarMediaLib {

namespace {
char const* const collisionText = "Collision exception.";
}

CollisionException::CollisionException(shared_ptr<Media const> const& media)
    : ZelmarMediaLibException(collisionText), medias_(boost::make_shared<MediaList>(1, media)) {}

CollisionException::CollisionException(shared_ptr<Media> const& media)
    : CollisionException(shared_ptr<Media const>(media)) {}

CollisionException::CollisionException(shared_ptr<MediaList> const& medias)
    : ZelmarMediaLibException(collisionText), medias_(medias) {}

CollisionException::CollisionException(shared_ptr<std::list<shared_ptr<Media> > > const& medias)
    : ZelmarMediaLibException(collisionText), medias_(boost::make_shared<MediaList>()) {
    if (medias)
        medias_->assign(medias->begin(), medias->end());
}

CollisionException::~CollisionException() noexcept = default;

}  // namespace ZelmarMediaLib
