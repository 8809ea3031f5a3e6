#pragma once
// The track for still pictures and annotations only.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/timeline/AbstractVisualTrack.h>

namespace ZelmarMediaLib {

class ImageMedia;

class ZML_EXPORT ImageTrack : public AbstractVisualTrack {
public:
    typedef ImageMedia MediaType;
    typedef TypedMediaMap<ImageMedia> ImageMediaMap;
    // Takes a media through its dispatch for one addMedia call; refuses video, audio and
    // audio transitions with TypeException.
    class MediaAdder;

    explicit ImageTrack(weak_ptr<ThreadSafe const> project);
    ImageTrack(ImageTrack const& other);
    ~ImageTrack() override;

    ImageTrack* clone() const override;
    void receiveDispatcher(ConstTrackDispatcher* dispatcher) const override;
    void receiveDispatcher(TrackDispatcher* dispatcher) override;
    void addMedia(shared_ptr<Media> media, long long start) override;
    MediaMap& medias() override;
    MediaMap const& medias() const override;
    int numParameters() const override;
    // An image track writes no attributes, not even its ident.
    int numAttributes() const override;
    void xmlOfAttributes(XMLable::Options& options, int indent) const override;
    void xmlName(XMLable::Options& options) const override;

    ImageMediaMap imageMedias() const;
    ConstIterator<ImageMediaMap> imageMediaBegin() const;
    ConstIterator<ImageMediaMap> imageMediaEnd() const;
    ImageMediaMap::const_iterator imageMediaBegin();
    ImageMediaMap::const_iterator imageMediaEnd();
    ConstIterator<ImageMediaMap> typeSafeMediaBegin() const;
    ConstIterator<ImageMediaMap> typeSafeMediaEnd() const;

    shared_ptr<TrackSubSection<ImageMedia> > subSection(Range<long long> const& range) const;

    // A check of the store for tests and diagnostics: every media is an image media.
    bool allMediasAreImageMedias() const;

private:
    MediaMap medias_;
};

}  // namespace ZelmarMediaLib
