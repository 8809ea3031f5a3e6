#pragma once
// A guard for the track's edits: the media must be on a track.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class Media;

class ZML_EXPORT ParentedMedia {
public:
    explicit ParentedMedia(shared_ptr<Media> media);
    // Raises ValueException<shared_ptr<Media> > when the media has no live parent track.
    void assertParented() const;

private:
    shared_ptr<Media> media_;
};

}  // namespace ZelmarMediaLib
