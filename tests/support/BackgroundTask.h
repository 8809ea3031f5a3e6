#pragma once
// Runs a function on its own thread, so that a test can see whether it blocks, with every wait bounded.
#include <chrono>
#include <functional>
#include <future>
#include <thread>

namespace ZelmarMediaLib {
namespace test {

class BackgroundTask {
public:
    explicit BackgroundTask(std::function<void()> work) : done_(finished_.get_future()) {
        thread_ = std::thread([this, work] {
            work();
            finished_.set_value();
        });
    }

    // A task that never finishes is left behind rather than hanging the test run.
    ~BackgroundTask() {
        if (finishedWithin(std::chrono::milliseconds(2000)))
            thread_.join();
        else
            thread_.detach();
    }

    BackgroundTask(BackgroundTask const&) = delete;
    BackgroundTask& operator=(BackgroundTask const&) = delete;

    bool finishedWithin(std::chrono::milliseconds timeout) {
        return done_.wait_for(timeout) == std::future_status::ready;
    }

private:
    std::promise<void> finished_;
    std::shared_future<void> done_;
    std::thread thread_;
};

// Long enough for a thread that is not blocked to get through its work.
inline std::chrono::milliseconds const blockedGrace(150);
inline std::chrono::milliseconds const finishLimit(5000);

}  // namespace test
}  // namespace ZelmarMediaLib
