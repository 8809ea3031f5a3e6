// Deferred notification: closing a delay that holds many subjects.
#include <ZelmarMediaLib/datatypes/NotifyDelay.h>
#include <ZelmarMediaLib/datatypes/Subject.h>

#include <benchmark/benchmark.h>

#include <vector>

namespace {

namespace zml = ZelmarMediaLib;

class Counter : public zml::Observer {
public:
    void observerUpdate() override { ++calls; }
    long calls = 0;
};

// Each iteration notifies every subject once under a delay and then closes it, which
// delivers all the held calls.
void BM_NotifyUnderDelayWithPendingSubjects(benchmark::State& state) {
    std::vector<zml::Subject> subjects(static_cast<std::size_t>(state.range(0)));
    Counter counter;
    for (zml::Subject& subject : subjects)
        subject.attach(&counter);
    for (auto _ : state) {
        zml::NotifyDelay delay;
        for (zml::Subject const& subject : subjects)
            subject.notify();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_NotifyUnderDelayWithPendingSubjects)->Arg(10000);

// The cost of one notify while 10,000 subjects are already pending.
void BM_SingleNotifyWith10000Pending(benchmark::State& state) {
    std::vector<zml::Subject> subjects(10000);
    zml::Subject extra;
    zml::NotifyDelay delay;
    for (zml::Subject const& subject : subjects)
        subject.notify();
    long long count = 0;
    for (auto _ : state) {
        extra.notify();
        if (++count % 10000 == 0) {
            state.PauseTiming();
            zml::NotifyDelay::removeObservable(&extra);
            state.ResumeTiming();
        }
    }
}
BENCHMARK(BM_SingleNotifyWith10000Pending);

}  // namespace
