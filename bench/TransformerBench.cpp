// The transform of one visual object at a frame, as a renderer or the hit tester asks for it
// once per media and frame: fourteen keyframed lookups, each under the project's read lock.
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/parameters/Transformer.h>
#include <ZelmarMediaLib/parameters/VectorParam.h>
#include <ZelmarMediaLib/project/Project.h>

#include <benchmark/benchmark.h>

using namespace ZelmarMediaLib;

namespace {

// Keyframes every 30 units, so that a query falls between two of them and interpolates.
void addKeyframes(VectorParam& vector, int count, double step) {
    for (int i = 0; i < vector.numDimensions(); ++i) {
        for (int k = 1; k < count; ++k)
            vector.at(i)->addKeyFrame(30LL * k, step * k);
    }
}

void BM_TransformerCalcTransformAtTime(benchmark::State& state) {
    shared_ptr<Project> project = Project::create(30, 1);
    InterpolatingParam<double> owner(project, "owner");
    Transformer transformer(project);
    int const keyframes = static_cast<int>(state.range(0));
    addKeyframes(*transformer.translation(), keyframes, 10);
    addKeyframes(*transformer.rotation(), keyframes, 0.1);
    addKeyframes(*transformer.shear(), keyframes, 0.01);
    addKeyframes(*transformer.scale(), keyframes, 0.5);
    addKeyframes(*transformer.anchor(), keyframes, 2);
    long long time = 0;
    long long const span = 30LL * keyframes;
    for (auto _ : state) {
        benchmark::DoNotOptimize(transformer.calcTransformAtTime(&owner, time));
        time = (time + 7) % span;
    }
}
BENCHMARK(BM_TransformerCalcTransformAtTime)->Arg(1)->Arg(4)->Arg(16);

}  // namespace
