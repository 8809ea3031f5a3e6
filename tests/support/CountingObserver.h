#pragma once
// An observer that counts its calls, and can be told to fail.
#include <ZelmarMediaLib/datatypes/Observer.h>

#include <functional>
#include <stdexcept>

namespace ZelmarMediaLib {
namespace test {

class CountingObserver : public Observer {
public:
    void observerUpdate() override {
        ++calls;
        if (onUpdate)
            onUpdate();
        if (fail)
            throw std::runtime_error("observer failed");
    }

    int calls = 0;
    bool fail = false;
    std::function<void()> onUpdate;
};

}  // namespace test
}  // namespace ZelmarMediaLib
