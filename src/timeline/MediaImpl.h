#pragma once
// The storage and behaviour that every concrete media kind shares: ranges, speed, links, effects, edge zones.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/effects/EffectTimeConverter.h>
#include <ZelmarMediaLib/timeline/Media.h>

#include <list>
#include <memory>

namespace ZelmarMediaLib {

class VectorEffectable;

// Invariant, up to rounding on the track side: trackRange.duration = mediaRange.duration * scalar.
class ZML_EXPORT MediaImpl : public Media, public EffectTimeConverter {
public:
    ~MediaImpl() override;

    std::string description() const override;

    void xmlOfParameters(XMLable::Options& options, int indent) const override;
    void setParentTrack(weak_ptr<Track> track) override;
    weak_ptr<Track> parentTrack() override;
    weak_ptr<Track const> parentTrack() const override;
    void link(shared_ptr<Media> other) override;
    // Raises ValueException<shared_ptr<Media const> > "unable to link media".
    void addLink(shared_ptr<Media> other) override;
    // Raises ValueException<shared_ptr<Media> > for the media itself, for a media not linked,
    // and for one whose track range has drifted from this one's: a link is undone before
    // the ranges part.
    void removeLink(shared_ptr<Media> other) override;
    // The plain removal from the list, with no test of ranges; raises "unable to remove
    // linked media list" when the media isn't in it.
    void removeFromLinkedMediaList(shared_ptr<Media> other);
    bool isLinkedWith(shared_ptr<Media const> other) const override;
    ConstIterator<LinkList> linkBegin() const override;
    LinkList::iterator linkBegin() override;
    ConstIterator<LinkList> linkEnd() const override;
    LinkList::iterator linkEnd() override;
    // Another media, not yet linked, with the same track range and exactly the same media range.
    bool isLinkableWith(shared_ptr<Media const> other) override;
    Range<long long> trackRangeWithStretch(double wanted) const override;
    Range<double> mediaRange() const override;
    Range<long long> trackRange() const override;
    double scalar() const override;
    long long trimEndLimit() const override;
    long long trimStartLimit() const override;
    bool isInstanceOf(shared_ptr<Source const> source) const override;
    void move(long long offset) override;
    void trimStart(long long offset) override;
    bool validTrimStart(long long offset) override;
    void trimEnd(long long offset) override;
    bool validTrimEnd(long long offset) override;
    // Sets the track start alone, leaving the material where it is.
    void setTrackStart(long long start) override;
    double stretch(double wanted) override;

    // Read without a lock: they must stay cheap.
    long long endTime() const override;
    long long startTime() const override;
    long long duration() const override;

    // Effects on a media follow the media's time through this media as their converter; a
    // removal clears the converter and, unlike on tracks and mixers, does not notify.
    int addEffect(shared_ptr<Effect> effect) override;
    void insertEffect(shared_ptr<Effect> effect, int index) override;
    EffectRemoval removeEffect(shared_ptr<Effect const> effect) override;
    EffectRemoval removeEffect(int index) override;

    // Parameters are keyed in material time: t / scalar + mediaRange.start.
    double toParameterTime(double time) const override;
    double fromParameterTime(double time) const override;
    int numParameters() const override;
    ParameterVector* parameterVector() const override;
    long long fromGlobalToParametricTime(long long time) const override;
    // Applies the edge modifications of the zone that the media-local time falls in.
    double doubleParametricTransform(shared_ptr<ParameterInterface const> parameter, double value,
                                     double time) const override;
    // Dropped while disabled; collected while an UpdateCollector runs; otherwise at once.
    void notify() const override;

    void setLeftEdgeModificationLength(long long length) override;
    void setRightEdgeModificationLength(long long length) override;
    long long leftEdgeModificationLength() const override;
    long long rightEdgeModificationLength() const override;
    std::list<EdgeModification> leftEdgeModifications() const override;
    std::list<EdgeModification> rightEdgeModifications() const override;
    void addLeftEdgeModification(EdgeModification const& modification) override;
    void addRightEdgeModification(EdgeModification const& modification) override;
    EdgeModification removeLeftEdgeModification(shared_ptr<Parameter<double> const> parameter) override;
    EdgeModification removeRightEdgeModification(shared_ptr<Parameter<double> const> parameter) override;

    // The global time goes into toParameterTime as it stands; the track start comes off after.
    long long globalTimeToEffectTime(long long time) const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

    // The limits of the material, which trims and stretches must respect.
    double mediaStartLimit() const;
    double mediaDurationLimit() const;
    // The stored edge lengths, before the zones are kept from overlapping.
    long long storedLeftEdgeModificationLength() const;
    long long storedRightEdgeModificationLength() const;

    // The shorter zone keeps its length while it fits in half the media; the longer takes
    // what is left; if both pass the half, each gets half.
    static long long calcEdgeLength(long long own, long long other, long long duration);

protected:
    // range is in the material: the media starts at track time 0 until it is placed.
    MediaImpl(Range<long long> const& range, double startLimit, double durationLimit,
              weak_ptr<ThreadSafe const> project);
    // The copy has no parent, no links and no edge modifications, which are rebuilt by
    // whoever copies, since each points at a parameter of its own media.
    MediaImpl(MediaImpl const& other);

    void printEdgeModsXML(XMLable::Options& options, int indent) const;

    VectorEffectable& effectChain() override;
    VectorEffectable const& effectChain() const override;

private:
    void addEdgeModification(std::list<EdgeModification>& list, EdgeModification const& modification);
    EdgeModification removeEdgeModification(std::list<EdgeModification>& list,
                                            shared_ptr<Parameter<double> const> const& parameter,
                                            char const* missingText);
    void printEdgeBlock(XMLable::Options& options, int indent, char const* name, long long length,
                        std::list<EdgeModification> const& modifications) const;

    double mediaStartLimit_;
    double mediaDurationLimit_;
    weak_ptr<Track> parentTrack_;
    Range<long long> trackRange_;
    Range<double> mediaRange_;
    double scalar_;
    LinkList linkedMedias_;
    std::unique_ptr<VectorEffectable> effects_;
    long long leftEdgeModificationLength_;
    long long rightEdgeModificationLength_;
    std::list<EdgeModification> leftEdgeModifications_;
    std::list<EdgeModification> rightEdgeModifications_;
};

}  // namespace ZelmarMediaLib
