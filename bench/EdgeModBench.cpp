// What an edge modification costs a renderer: a faded opacity read inside and outside the
// fade, and one step of a horizontal slide.
#include <ZelmarMediaLib/edgemods/AuxEdgeModInfo.h>
#include <ZelmarMediaLib/edgemods/FadeInFunc.h>
#include <ZelmarMediaLib/edgemods/MixerXSlideInFunc.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/Timeline.h>
#include <ZelmarMediaLib/timeline/VMFile.h>
#include <ZelmarMediaLib/timeline/VisualMixer.h>

#include <benchmark/benchmark.h>

namespace ZelmarMediaLib {
namespace {

struct FadedMedia {
    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<VisualMixer> mixer = project->timeline()->newVisualMixer(640, 480);
    shared_ptr<VMFile> media = boost::make_shared<VMFile>(Range<long long>(0, 1000), Rect<float>(0, 0, 200, 100),
                                                          project, "/a.mov", 0.0, 1000.0, 0u);

    FadedMedia() {
        media->setLeftEdgeModificationLength(100);
        media->addLeftEdgeModification(EdgeModification(media->opacity(), FadeInFunc()));
    }
};

void readOpacityAt(benchmark::State& state, double time) {
    FadedMedia faded;
    shared_ptr<InterpolatingParam<double> const> const opacity = faded.media->opacity();
    for (auto _ : state)
        benchmark::DoNotOptimize(faded.media->transformedDoubleParameterValueAtTime(opacity, time));
}

void BM_FadedOpacityInsideFade(benchmark::State& state) {
    readOpacityAt(state, 50.0);
}
BENCHMARK(BM_FadedOpacityInsideFade);

void BM_FadedOpacityOutsideFade(benchmark::State& state) {
    readOpacityAt(state, 500.0);
}
BENCHMARK(BM_FadedOpacityOutsideFade);

void BM_MixerXSlideInExecute(benchmark::State& state) {
    FadedMedia faded;
    MixerXSlideInFunc slide;
    AuxEdgeModInfo aux;
    aux.setVisualMedia(faded.media);
    aux.setVisualMixer(faded.mixer);
    slide.setAuxInfo(aux);
    for (auto _ : state)
        benchmark::DoNotOptimize(slide.execute(0.5, 10.0));
}
BENCHMARK(BM_MixerXSlideInExecute);

}  // namespace
}  // namespace ZelmarMediaLib
