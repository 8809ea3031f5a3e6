#pragma once
// A scope during which notifications are held back; they go out, in order, when the outermost closes.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

namespace ZelmarMediaLib {

class Observable;
class Observer;

// Its state belongs to the calling thread and has no lock: a delay holds back only what its
// own thread notifies, and is closed on that thread. Commands open theirs under the project's
// write lock, so the model's notifications go out on the writer's thread, before it unlocks.
class ZML_EXPORT NotifyDelay : public ZelmarObject {
public:
    NotifyDelay();
    NotifyDelay(NotifyDelay const&);
    NotifyDelay& operator=(NotifyDelay const&) = delete;
    // Never throws: an exception from an observer ends that subject's walk and nothing else.
    ~NotifyDelay() override;

    static bool isActive();
    // A subject that changes five times stands here five times, and is notified five times.
    static void addObservable(Observable const* observable);
    static void removeObservable(Observable const* observable);
    static void removeObserver(Observer* observer);
};

}  // namespace ZelmarMediaLib
