#pragma once
// Trims a media at its end, its linked medias with it; the start stays.
#include <ZelmarMediaLib/commands/placement/AtomicEditCmd.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class ZML_EXPORT TrimEndCmd : public AtomicEditCmd {
public:
    static shared_ptr<TrimEndCmd> create(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset);

    TrimEndCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    // Another TrimEndCmd of the same media on the same track folds into this one.
    shared_ptr<Command> combine(shared_ptr<Command> next) override;

    void xmlName(XMLable::Options& options) const override;

protected:
    TrimEndCmd(shared_ptr<Track const> track, shared_ptr<Media const> media, long long offset);
    TrimEndCmd(TrimEndCmd const& other) = default;
};

}  // namespace ZelmarMediaLib
