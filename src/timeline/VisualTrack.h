#pragma once
// The track for everything that is seen: video, stills, picture transitions and annotations.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/timeline/AbstractVisualTrack.h>

namespace ZelmarMediaLib {

class ZML_EXPORT VisualTrack : public AbstractVisualTrack {
public:
    // Takes a media through its dispatch for one addMedia call; refuses both audio kinds
    // with TypeException.
    class MediaAdder;

    explicit VisualTrack(weak_ptr<ThreadSafe const> project);
    VisualTrack(VisualTrack const& other);
    ~VisualTrack() override;

    VisualTrack* clone() const override;
    void receiveDispatcher(ConstTrackDispatcher* dispatcher) const override;
    void receiveDispatcher(TrackDispatcher* dispatcher) override;
    void addMedia(shared_ptr<Media> media, long long start) override;
    MediaMap& medias() override;
    MediaMap const& medias() const override;
    // The ident attribute.
    void xmlOfAttributes(XMLable::Options& options, int indent) const override;
    void xmlName(XMLable::Options& options) const override;

    shared_ptr<TrackSubSection<VisualMedia> > subSection(Range<long long> const& range) const;

private:
    MediaMap medias_;
};

}  // namespace ZelmarMediaLib
