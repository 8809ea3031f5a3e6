#pragma once
// Places a media on a track at a time; undo takes it off again and gives it back its former start.
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class Media;
class Track;

// The checks stand in the project and the track: a media whose source isn't in the project,
// a media of a kind that the track doesn't take, and a place that is taken are refused there
// before anything changes.
class ZML_EXPORT AddMediaCmd : public Command {
public:
    static shared_ptr<AddMediaCmd> create(shared_ptr<Track const> track, shared_ptr<Media const> media, long long time);

    AddMediaCmd* clone() const override;
    // Reads the media's start afresh at each run, redo included, so that undo returns the
    // media to wherever it stood off the track just before.
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    shared_ptr<Track const> const& track() const { return track_; }
    shared_ptr<Media const> const& media() const { return media_; }
    long long time() const { return time_; }

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    AddMediaCmd(shared_ptr<Track const> track, shared_ptr<Media const> media, long long time);
    AddMediaCmd(AddMediaCmd const& other) = default;

private:
    shared_ptr<Track const> track_;
    shared_ptr<Media const> media_;
    long long time_;
    long long priorStart_;
};

}  // namespace ZelmarMediaLib
