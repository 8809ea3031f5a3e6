// File statistics: the cost of reading each fixture through the default loader, and of the
// probe that chooses a loader, which opens the file as well and runs for every load; and the
// source bin's look-up of a file that is loaded already.
#include <ZelmarMediaLib/clipbin/MediaFileStats.h>
#include <ZelmarMediaLib/clipbin/Source.h>
#include <ZelmarMediaLib/clipbin/SourceBin.h>
#include <ZelmarMediaLib/project/Project.h>

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

// A second load of a path finds the source by file name, one source after the other; the path
// is the last of the bin's, so the whole bin is walked. The sources are built from statistics
// by hand, so that no file is read while the bin fills.
void BM_LoadFileAlreadyLoaded(benchmark::State& state) {
    zml::shared_ptr<zml::Project> const project = zml::Project::create(30, 1);
    zml::shared_ptr<zml::SourceBin> const bin = project->sourceBin();
    std::string path;
    for (int i = 0; i < state.range(0); ++i) {
        path = "/Users/someone/Movies/Recordings/lecture-" + std::to_string(i) + ".mov";
        zml::shared_ptr<zml::MediaFileStats> const stats = zml::MediaFileStats::create();
        stats->setFilename(path);
        stats->setRect(zml::Rect<int>(0, 0, 1280, 720));
        zml::MediaFileStats::TrackStats video;
        video.range = zml::Range<long long>(0, 36000);
        video.rangeEditRate = 600;
        video.rect = stats->rect();
        stats->addTrackStats(video);
        bin->addSource(zml::Source::create(project, project, stats));
    }
    for (auto _ : state)
        benchmark::DoNotOptimize(bin->loadFile(path));
}
BENCHMARK(BM_LoadFileAlreadyLoaded)->Arg(1000)->Unit(benchmark::kMicrosecond);

}  // namespace
