#pragma once
// What the two kinds of picture track share: their own transform, and their medias seen as visual medias.
#include <ZelmarMediaLib/datatypes/ConstIterator.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/parameters/Transformer.h>
#include <ZelmarMediaLib/timeline/Track.h>
#include <ZelmarMediaLib/timeline/TypedMediaMap.h>

namespace ZelmarMediaLib {

class VisualMedia;

class ZML_EXPORT AbstractVisualTrack : public Track, public Transformer {
public:
    typedef VisualMedia MediaType;
    typedef TypedMediaMap<VisualMedia> VisualMediaMap;

    ~AbstractVisualTrack() override;

    // The transformer's parameters are keyed in global time, as every track parameter is.
    int numParameters() const override;
    ParameterVector* parameterVector() const override;
    void xmlName(XMLable::Options& options) const override;
    // The track's body, then the transformer.
    void xmlBody(XMLable::Options& options, int indent) const override;

    VisualMediaMap visualMedias() const;
    ConstIterator<VisualMediaMap> visualMediaBegin() const;
    ConstIterator<VisualMediaMap> visualMediaEnd() const;
    VisualMediaMap::const_iterator visualMediaBegin();
    VisualMediaMap::const_iterator visualMediaEnd();
    ConstIterator<VisualMediaMap> typeSafeMediaBegin() const;
    ConstIterator<VisualMediaMap> typeSafeMediaEnd() const;

protected:
    explicit AbstractVisualTrack(weak_ptr<ThreadSafe const> project);
    // The transformer's keyframes are copied; no medias.
    AbstractVisualTrack(AbstractVisualTrack const& other);
};

}  // namespace ZelmarMediaLib
