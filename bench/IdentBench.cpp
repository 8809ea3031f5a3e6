// Identity numbers: every object that can print itself draws one when made and returns it when it dies.
#include <ZelmarMediaLib/datatypes/IdentManager.h>

#include <benchmark/benchmark.h>

namespace {

using ZelmarMediaLib::IdentManager;

void BM_DrawAndRetireIdent(benchmark::State& state) {
    IdentManager* const manager = IdentManager::instance();
    for (auto _ : state) {
        unsigned int const ident = manager->newIdent();
        benchmark::DoNotOptimize(ident);
        manager->retireIdent(ident);
    }
}
BENCHMARK(BM_DrawAndRetireIdent);

}  // namespace
