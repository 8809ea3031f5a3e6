#pragma once
// An edit refused because medias lie in the way; it names every one of them.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

#include <list>

namespace ZelmarMediaLib {

class Media;

class ZML_EXPORT CollisionException : public ZelmarMediaLibException {
public:
    typedef std::list<shared_ptr<Media const> > MediaList;

    explicit CollisionException(shared_ptr<Media const> const& media);
    explicit CollisionException(shared_ptr<Media> const& media);
    explicit CollisionException(shared_ptr<MediaList> const& medias);
    explicit CollisionException(shared_ptr<std::list<shared_ptr<Media> > > const& medias);
    ~CollisionException() noexcept override;

    shared_ptr<MediaList> const& medias() const { return medias_; }

private:
    shared_ptr<MediaList> medias_;
};

}  // namespace ZelmarMediaLib
