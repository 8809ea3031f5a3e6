#pragma once
// The check that every add of a media passes: a file media must come from the project's own source bin.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class Media;
class SourceBin;

// One guard for the whole process, chosen on the first call of instance(): test programs,
// which place hand-made file medias without sources, ask for the guard that lets all pass.
class ZML_EXPORT AddMediaGuard {
public:
    virtual ~AddMediaGuard();

    // Raises ZelmarMediaLibException "attempting to add a media whose source doesn't belong
    // to the project" for a file media whose source isn't in the bin.
    virtual void performGuard(shared_ptr<SourceBin> sourceBin, shared_ptr<Media const> media) = 0;

    // Made on the first call and kept for ever.
    static AddMediaGuard* instance();
    // Only an instance not yet made follows the flag.
    static void setIsTestRunner(bool isTestRunner);

protected:
    AddMediaGuard() = default;
    AddMediaGuard(AddMediaGuard const&) = delete;
    AddMediaGuard& operator=(AddMediaGuard const&) = delete;
};

}  // namespace ZelmarMediaLib
