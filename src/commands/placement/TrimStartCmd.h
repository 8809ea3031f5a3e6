#pragma once
// Trims a media at its start, its linked medias with it; the start moves and the end stays.
#include <ZelmarMediaLib/commands/placement/AtomicEditCmd.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class ZML_EXPORT TrimStartCmd : public AtomicEditCmd {
public:
    static shared_ptr<TrimStartCmd> create(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset);

    TrimStartCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    // Another TrimStartCmd of the same media on the same track folds into this one.
    shared_ptr<Command> combine(shared_ptr<Command> next) override;

    void xmlName(XMLable::Options& options) const override;

protected:
    TrimStartCmd(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset);
    TrimStartCmd(TrimStartCmd const& other) = default;
};

}  // namespace ZelmarMediaLib
