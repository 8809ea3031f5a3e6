// Parameter lookups: valueAtTime must stay logarithmic in the number of keyframes.
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/project/Project.h>

#include <benchmark/benchmark.h>

#include <random>
#include <vector>

namespace {

namespace zml = ZelmarMediaLib;

// Keyframes every 10 units; queries at random times, half of them between keys.
void BM_ValueAtTime(benchmark::State& state) {
    long long const count = state.range(0);
    zml::shared_ptr<zml::Project> project = zml::Project::create(30, 1);
    zml::shared_ptr<zml::InterpolatingParam<double> > parameter =
        boost::make_shared<zml::InterpolatingParam<double> >(project, "bench");
    for (long long i = 0; i < count; ++i)
        parameter->addKeyFrame(i * 10, static_cast<double>(i % 7));
    std::mt19937_64 random(42);
    std::uniform_real_distribution<double> times(0.0, static_cast<double>(count * 10));
    std::vector<double> queries(4096);
    for (double& query : queries)
        query = times(random);
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(parameter->valueAtTime(queries[next]));
        next = (next + 1) & (queries.size() - 1);
    }
}
BENCHMARK(BM_ValueAtTime)->Arg(1000)->Arg(100000);

void BM_AddKeyFrameAndRemove(benchmark::State& state) {
    zml::shared_ptr<zml::Project> project = zml::Project::create(30, 1);
    zml::shared_ptr<zml::InterpolatingParam<double> > parameter =
        boost::make_shared<zml::InterpolatingParam<double> >(project, "bench");
    for (long long i = 0; i < 1000; ++i)
        parameter->addKeyFrame(i * 10, 1.0);
    for (auto _ : state) {
        parameter->addKeyFrame(5005, 2.0);
        parameter->removeKeyFrame(5005);
    }
}
BENCHMARK(BM_AddKeyFrameAndRemove);

}  // namespace
