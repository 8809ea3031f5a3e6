// File statistics: the cost of reading each fixture through the default loader, and of the
// probe that chooses a loader, which opens the file as well and runs for every load.
#include <ZelmarMediaLib/clipbin/MediaFileStats.h>

#include <benchmark/benchmark.h>

#include <string>

namespace {

namespace zml = ZelmarMediaLib;

char const* const fixtures[] = {"video-audio.mp4", "video-only.mkv", "still.png", "mono24.wav",
                                "one-frame.mkv",   "extra-streams.mp4", "recording"};

std::string fixturePath(benchmark::State const& state) {
    return std::string(ZML_TEST_MEDIA_DIR) + "/" + fixtures[state.range(0)];
}

void BM_LoadStats(benchmark::State& state) {
    std::string const path = fixturePath(state);
    state.SetLabel(fixtures[state.range(0)]);
    for (auto _ : state) {
        zml::shared_ptr<zml::MediaFileStats> stats = zml::MediaFileStats::create(path);
        benchmark::DoNotOptimize(stats->numTracks());
    }
}
BENCHMARK(BM_LoadStats)->DenseRange(0, 6)->Unit(benchmark::kMicrosecond);

void BM_IsFileOpenable(benchmark::State& state) {
    std::string const path = fixturePath(state);
    state.SetLabel(fixtures[state.range(0)]);
    for (auto _ : state)
        benchmark::DoNotOptimize(zml::MediaFileStats::isFileOpenable(path));
}
BENCHMARK(BM_IsFileOpenable)->DenseRange(0, 6)->Unit(benchmark::kMicrosecond);

}  // namespace
