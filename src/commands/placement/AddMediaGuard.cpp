#include <ZelmarMediaLib/commands/placement/AddMediaGuard.h>

#include <ZelmarMediaLib/clipbin/SourceBin.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/timeline/AMFile.h>
#include <ZelmarMediaLib/timeline/AbstractIMFile.h>
#include <ZelmarMediaLib/timeline/MediaDispatcher.h>
#include <ZelmarMediaLib/timeline/VMFile.h>

#include <memory>

namespace ZelmarMediaLib {

namespace {

bool s_isTestRunner = false;
std::unique_ptr<AddMediaGuard> s_instance;

template <class T>
void performSourceCheck(shared_ptr<SourceBin> const& sourceBin, shared_ptr<T const> const& media) {
    if (!sourceBin->containsSource(media->source()))
        throw ZelmarMediaLibException("attempting to add a media whose source doesn't belong to the project");
}

// Only the file kinds have a source to check.
class GuardDispatcher : public ConstMediaDispatcher {
public:
    explicit GuardDispatcher(shared_ptr<SourceBin> sourceBin) : sourceBin_(sourceBin) {}

    void dispatchMedia(shared_ptr<VMFile const> media) override { performSourceCheck(sourceBin_, media); }
    void dispatchMedia(shared_ptr<AMFile const> media) override { performSourceCheck(sourceBin_, media); }
    void dispatchMedia(shared_ptr<IMFile const> media) override { performSourceCheck(sourceBin_, media); }
    void dispatchMedia(shared_ptr<ImageTransition const>) override {}
    void dispatchMedia(shared_ptr<AudioTransition const>) override {}
    void dispatchMedia(shared_ptr<TextBox const>) override {}
    void dispatchMedia(shared_ptr<Callout const>) override {}

private:
    shared_ptr<SourceBin> sourceBin_;
};

class RealGuard : public AddMediaGuard {
public:
    void performGuard(shared_ptr<SourceBin> sourceBin, shared_ptr<Media const> media) override {
        if (!sourceBin)
            throw ZelmarMediaLibException("attempting to add a media to a project without a source bin");
        if (!media)
            throw ZelmarMediaLibException("attempting to add a null media");
        GuardDispatcher dispatcher(sourceBin);
        media->receiveDispatcher(&dispatcher);
    }
};

class FalseGuard : public AddMediaGuard {
public:
    void performGuard(shared_ptr<SourceBin>, shared_ptr<Media const>) override {}
};

}  // namespace

AddMediaGuard::~AddMediaGuard() = default;

AddMediaGuard* AddMediaGuard::instance() {
    if (!s_instance) {
        if (s_isTestRunner)
            s_instance.reset(new FalseGuard);
        else
            s_instance.reset(new RealGuard);
    }
    return s_instance.get();
}

void AddMediaGuard::setIsTestRunner(bool isTestRunner) {
    s_isTestRunner = isTestRunner;
}

}  // namespace ZelmarMediaLib
