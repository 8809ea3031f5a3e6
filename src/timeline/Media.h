#pragma once
// One item on a track: where it sits, which stretch of its material it shows, and at what speed.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Cloneable.h>
#include <ZelmarMediaLib/datatypes/ConstIterator.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Range.h>
#include <ZelmarMediaLib/edgemods/EdgeModifiable.h>
#include <ZelmarMediaLib/timeline/SubTimeline.h>

#include <list>

namespace ZelmarMediaLib {

class ConstMediaDispatcher;
class MediaDispatcher;
class MediaEditor;
class Source;
class Track;

class ZML_EXPORT Media : public SubTimeline,
              public DecoratedCloneable<Media>,
              public enable_shared_from_this<Media>,
              public EdgeModifiable {
public:
    // Weak, so that a link never keeps a media alive; a dead link is a fault where met.
    typedef std::list<weak_ptr<Media> > LinkList;

    // Questions the track asks before an edit; they change nothing.
    Range<long long> trackRangeWithMove(long long offset) const;
    Range<long long> trackRangeWithTrimStart(long long offset) const;
    Range<long long> trackRangeWithTrimEnd(long long offset) const;

    virtual void receiveDispatcher(ConstMediaDispatcher* dispatcher) const = 0;
    virtual void receiveDispatcher(MediaDispatcher* dispatcher) = 0;
    // Only the holding track sets and clears it.
    virtual void setParentTrack(weak_ptr<Track> track) = 0;
    virtual weak_ptr<Track> parentTrack() = 0;
    virtual weak_ptr<Track const> parentTrack() const = 0;
    // Makes the whole linked group at once, with no test of ranges and no notification.
    virtual void link(shared_ptr<Media> other) = 0;
    // One direction, refused unless the two could be linked.
    virtual void addLink(shared_ptr<Media> other) = 0;
    // One direction, with the tests of a link that may be undone.
    virtual void removeLink(shared_ptr<Media> other) = 0;
    virtual bool isLinkedWith(shared_ptr<Media const> other) const = 0;
    virtual ConstIterator<LinkList> linkBegin() const = 0;
    virtual LinkList::iterator linkBegin() = 0;
    virtual ConstIterator<LinkList> linkEnd() const = 0;
    virtual LinkList::iterator linkEnd() = 0;
    virtual bool isLinkableWith(shared_ptr<Media const> other) = 0;
    // A forecast of the range a stretch to that speed gives, which leaves the current scalar
    // out and so is exact only at real time; the track's checks use the editor's
    // stretchedDuration, which is what the stretch itself computes.
    virtual Range<long long> trackRangeWithStretch(double wanted) const = 0;
    virtual Range<double> mediaRange() const = 0;
    virtual Range<long long> trackRange() const = 0;
    virtual double scalar() const = 0;
    // The most negative offsets that trimEnd and trimStart accept.
    virtual long long trimEndLimit() const = 0;
    virtual long long trimStartLimit() const = 0;
    virtual bool isInstanceOf(shared_ptr<Source const> source) const = 0;
    Media* clone() const override = 0;
    virtual void move(long long offset) = 0;
    virtual void trimStart(long long offset) = 0;
    virtual bool validTrimStart(long long offset) = 0;
    virtual void trimEnd(long long offset) = 0;
    virtual bool validTrimEnd(long long offset) = 0;
    virtual void setTrackStart(long long start) = 0;
    // Returns the scalar reached.
    virtual double stretch(double wanted) = 0;
    virtual MediaEditor* mediaEditor() = 0;
    virtual MediaEditor const* mediaEditor() const = 0;

protected:
    explicit Media(weak_ptr<ThreadSafe const> project);
    Media(Media const& other);
    Media& operator=(Media const&) = delete;
};

}  // namespace ZelmarMediaLib
