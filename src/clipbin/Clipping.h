#pragma once
// A copied piece of a timeline: clones that start at time 0, and how their tracks stood to each other.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Range.h>
#include <ZelmarMediaLib/datatypes/SubProject.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>

#include <map>
#include <set>
#include <string>
#include <vector>

namespace ZelmarMediaLib {

template <class T>
class Attribute;
class Media;
class Timeline;
class Track;

// A clipping doesn't change once it is made, so its questions take no lock. Making one runs
// inside a command, under the lock that the command path holds.
class ZML_EXPORT Clipping : public SubProject, public XMLable {
public:
    typedef std::set<shared_ptr<Track const> > TrackSet;
    // A track of the clipping's own timeline to its place in the piece, 0 being the lowest.
    typedef std::map<shared_ptr<Track const>, int> TrackPositionMap;

    // What the range covers on the tracks, and on the tracks that their medias are linked
    // into, trimmed to the range. Raises ZelmarMediaLibException "trying to make a clipping
    // with no medias" when that is nothing; the timeline is left as it was in every case.
    Clipping(shared_ptr<Timeline const> timeline, Range<long long> range, TrackSet const& tracks,
             std::string const& name);
    // Whole clones of the named medias, with the same refusal of an empty result.
    Clipping(shared_ptr<Timeline const> timeline, std::vector<shared_ptr<Media const> > const& medias,
             std::string const& name);
    // For copying a clipping: the timeline and the positions are taken as they are, so the
    // positions must name tracks of that timeline.
    Clipping(std::string const& name, shared_ptr<Timeline> timeline, TrackPositionMap const& positions,
             weak_ptr<ThreadSafe const> project);
    // A clipping is copied through its parts, which the caller clones and rekeys itself.
    Clipping(Clipping const&) = delete;
    // Leaves the left side as it was, as every object of a project does.
    Clipping& operator=(Clipping const&);
    ~Clipping() override;

    // "Clipping", then "track positions:", then one tab-led line per track: its address and
    // its position.
    std::string description() const override;
    void xmlName(XMLable::Options& options) const override;
    // A clipping's element holds its id only: neither the timeline nor the name is written,
    // since the commands refer to a clipping by its id alone.
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

    // The position as an unsigned number; a track that is not in the piece gives all bits set.
    unsigned int trackPosition(shared_ptr<Track const> track) const;
    TrackPositionMap const& trackPositions() const { return trackPositions_; }

    // The clones, starting at 0. The writable form is for putting the piece back on a
    // timeline and for copying the clipping.
    shared_ptr<Timeline> timeline() { return timeline_; }
    shared_ptr<Timeline const> timeline() const { return timeline_; }
    // The name that the application gave; an attribute, so that a rename can be undone.
    shared_ptr<Attribute<std::string> > name() { return name_; }
    shared_ptr<Attribute<std::string> const> name() const { return name_; }

private:
    typedef std::map<shared_ptr<Media const>, shared_ptr<Media> > CloneMap;

    // The steps that both ways of making a clipping share once the copy is made.
    void make(Timeline const& source, shared_ptr<Timeline> const& copy, CloneMap const& clones);

    shared_ptr<Timeline> timeline_;
    shared_ptr<Attribute<std::string> > name_;
    TrackPositionMap trackPositions_;
};

}  // namespace ZelmarMediaLib
