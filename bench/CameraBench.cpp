// The camera: what a renderer asks the visual mixer once per frame, with the eye keyframed.
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/parameters/VectorParam.h>
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/Timeline.h>
#include <ZelmarMediaLib/timeline/VisualMixer.h>

#include <benchmark/benchmark.h>

namespace {

namespace zml = ZelmarMediaLib;

// Both matrices of one frame, with the eye moving over keyframes per component.
void BM_CameraAndProjectionPerFrame(benchmark::State& state) {
    zml::shared_ptr<zml::Project> const project = zml::Project::create(30, 1);
    zml::shared_ptr<zml::Timeline> const timeline = project->timeline();
    zml::shared_ptr<zml::VisualMixer> const mixer = timeline->newVisualMixer(1920, 1080);
    long long const keyframes = state.range(0);
    for (long long key = 1; key < keyframes; ++key)
        mixer->eyePositionParam()->at(2)->addKeyFrame(key * 30, 3000.0 - static_cast<double>(key));
    zml::Rect<int> const viewport(0, 0, 1920, 1080);
    long long time = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(mixer->cameraTransformAtTime(time));
        benchmark::DoNotOptimize(mixer->projectionTransformAtTime(time, viewport));
        time = (time + 7) % (keyframes * 30);
    }
}
BENCHMARK(BM_CameraAndProjectionPerFrame)->Arg(1)->Arg(100);

}  // namespace
