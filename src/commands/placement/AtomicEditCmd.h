#pragma once
// What a move or a trim of one media holds: the track, the media, and the offset of the edit.
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class Media;
class Track;

// The edit goes through the track with the media's links, and undo is the same edit by the
// negated offset. Collisions, here and on the linked tracks, and edits that the material
// doesn't allow are refused by the track before anything changes.
class ZML_EXPORT AtomicEditCmd : public Command {
public:
    shared_ptr<Track const> const& track() const { return track_; }
    shared_ptr<Media const> const& media() const { return media_; }
    long long offset() const { return offset_; }

    // The track, the media and the offset.
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    AtomicEditCmd(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset);
    AtomicEditCmd(AtomicEditCmd const& other) = default;

    // A later edit of the same kind on the same media and track folds into one edit by the sum
    // of the offsets, so that a drag of many small steps undoes as one; anything else is paired.
    //   move +10, then move -3   gives   move +7, undone by one move of -7
    template <class T>
    shared_ptr<Command> combineAtomicEdit(shared_ptr<Command> const& next) {
        shared_ptr<T> const later = dynamic_pointer_cast<T>(next);
        if (later && later->track_ == track_ && later->media_ == media_)
            return T::create(track_, media_, offset_ + later->offset_);
        return groupCommands(shared_from_this(), next);
    }

private:
    shared_ptr<Track const> track_;
    shared_ptr<Media const> media_;
    long long offset_;
};

}  // namespace ZelmarMediaLib
