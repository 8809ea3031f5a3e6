#pragma once
// Changes the speed of a media, its linked medias with it: the start stays and the duration follows.
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class Media;
class Track;

// The media's editor may not reach the scalar asked for: actualScalar is what it reached.
// Undo stretches back to the scalar that the media had before the last run.
class ZML_EXPORT StretchCmd : public Command {
public:
    static shared_ptr<StretchCmd> create(shared_ptr<Track const> track, shared_ptr<Media const> media, double scalar);

    StretchCmd* clone() const override;
    // Reads the scalar to return to afresh at each run, redo included.
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    // A later stretch of the same media on the same track replaces this one: the result is
    // that later command itself, whose undo returns to the scalar between the two. The scalar
    // before the first is lost, unlike with moves and trims, which fold into one.
    //   1.0 -> 2.0, then 2.0 -> 3.0   gives   2.0 -> 3.0
    shared_ptr<Command> combine(shared_ptr<Command> next) override;

    shared_ptr<Track const> const& track() const { return track_; }
    shared_ptr<Media const> const& media() const { return media_; }
    double requestedScalar() const { return requestedScalar_; }
    double oldScalar() const { return oldScalar_; }
    double actualScalar() const { return actualScalar_; }

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    StretchCmd(shared_ptr<Track const> track, shared_ptr<Media const> media, double scalar);
    StretchCmd(StretchCmd const& other) = default;

private:
    shared_ptr<Track const> track_;
    shared_ptr<Media const> media_;
    double requestedScalar_;
    double oldScalar_;
    double actualScalar_;
};

}  // namespace ZelmarMediaLib
