#pragma once
// Moves a media along its track, its linked medias with it; a drag of many moves undoes as one step.
#include <ZelmarMediaLib/commands/placement/AtomicEditCmd.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class ZML_EXPORT MoveCmd : public AtomicEditCmd {
public:
    static shared_ptr<MoveCmd> create(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset);

    MoveCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    // Another MoveCmd of the same media on the same track folds into this one.
    shared_ptr<Command> combine(shared_ptr<Command> next) override;

    void xmlName(XMLable::Options& options) const override;

protected:
    MoveCmd(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset);
    MoveCmd(MoveCmd const& other) = default;
};

}  // namespace ZelmarMediaLib
