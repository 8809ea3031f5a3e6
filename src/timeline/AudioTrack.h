#pragma once
// The track for sound: takes audio files and audio transitions, and places its sound in space.
#include <ZelmarMediaLib/datatypes/ConstIterator.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/timeline/Track.h>
#include <ZelmarMediaLib/timeline/TypedMediaMap.h>

#include <type_traits>

namespace ZelmarMediaLib {

class AudioMedia;
class AudioPosition;
template <class T>
class InterpolatingParam;

class ZML_EXPORT AudioTrack : public Track {
public:
    typedef AudioMedia MediaType;
    typedef TypedMediaMap<AudioMedia> AudioMediaMap;
    // Takes a media through its dispatch for one addMedia call; refuses the kinds that an
    // audio track doesn't take with TypeException.
    class MediaAdder;

    explicit AudioTrack(weak_ptr<ThreadSafe const> project);
    // A new position as a clone of the other's; no medias (see Track::setupSharedClone).
    AudioTrack(AudioTrack const& other);
    ~AudioTrack() override;

    AudioTrack* clone() const override;
    void receiveDispatcher(ConstTrackDispatcher* dispatcher) const override;
    void receiveDispatcher(TrackDispatcher* dispatcher) override;
    void addMedia(shared_ptr<Media> media, long long start) override;
    MediaMap& medias() override;
    MediaMap const& medias() const override;
    int numParameters() const override;
    ParameterVector* parameterVector() const override;
    void xmlOfParameters(XMLable::Options& options, int indent) const override;
    // The ident attribute.
    void xmlOfAttributes(XMLable::Options& options, int indent) const override;
    void xmlName(XMLable::Options& options) const override;

    // The typed way in, for medias whose kind is known where they are made: an audio media
    // goes straight in; a Media is cast at run time and, if it isn't an audio media, raises
    // TypeException with the run-time name of shared_ptr<Media>; any other kind goes through
    // the dispatch, as with addMedia.
    template <class M>
    void addMedia(shared_ptr<M> media, long long start) {
        if constexpr (std::is_same<M, Media>::value)
            addUntypedMedia(media, start);
        else if constexpr (std::is_base_of<AudioMedia, M>::value)
            addMediaSansTypeCheck(media, start);
        else
            addMedia(shared_ptr<Media>(media), start);
    }

    // Where the track's sound stands; one keyframe at 0 holding AudioPosition() on a new track.
    shared_ptr<InterpolatingParam<AudioPosition> > positionParam();
    shared_ptr<InterpolatingParam<AudioPosition> const> positionParam() const;

    AudioMediaMap audioMedias() const;
    ConstIterator<AudioMediaMap> audioMediaBegin() const;
    ConstIterator<AudioMediaMap> audioMediaEnd() const;
    AudioMediaMap::const_iterator audioMediaBegin();
    AudioMediaMap::const_iterator audioMediaEnd();
    ConstIterator<AudioMediaMap> typeSafeMediaBegin() const;
    ConstIterator<AudioMediaMap> typeSafeMediaEnd() const;

    shared_ptr<TrackSubSection<AudioMedia> > subSection(Range<long long> const& range) const;

    // A check of the store for tests and diagnostics: every media is an audio media.
    bool allMediasAreValid() const;

private:
    void addUntypedMedia(shared_ptr<Media> media, long long start);

    MediaMap medias_;
    shared_ptr<InterpolatingParam<AudioPosition> > position_;
};

}  // namespace ZelmarMediaLib
