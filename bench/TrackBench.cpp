// Track placement: building, queries by time and range, a checked move and a range copy must
// stay logarithmic in the size of the track, or proportional to what they touch.
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/AMFile.h>
#include <ZelmarMediaLib/timeline/AudioMixer.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>
#include <ZelmarMediaLib/timeline/Timeline.h>

#include <benchmark/benchmark.h>

#include <random>
#include <vector>

namespace {

namespace zml = ZelmarMediaLib;

long long const duration = 10;
long long const spacing = 20;

zml::shared_ptr<zml::AMFile> newMedia(zml::shared_ptr<zml::Project> const& project) {
    return boost::make_shared<zml::AMFile>(zml::Range<long long>(0, duration), 48000u, 16u, project, "/a.wav", 0.0,
                                           1000.0, 0u, 0u);
}

// Medias of 10 units every 20 units, so that half of all times fall in a gap.
void fill(zml::shared_ptr<zml::Track> const& track, zml::shared_ptr<zml::Project> const& project, long long count) {
    for (long long i = 0; i < count; ++i)
        track->addMedia(newMedia(project), i * spacing);
}

std::vector<long long> randomTimes(long long count) {
    std::mt19937_64 random(42);
    std::uniform_int_distribution<long long> times(0, count * spacing);
    std::vector<long long> queries(4096);
    for (long long& query : queries)
        query = times(random);
    return queries;
}

void BM_AddMediaBuildingATrackOf100000(benchmark::State& state) {
    zml::shared_ptr<zml::Project> project = zml::Project::create(30, 1);
    long long const count = 100000;
    for (auto _ : state) {
        state.PauseTiming();
        zml::shared_ptr<zml::AudioTrack> track = boost::make_shared<zml::AudioTrack>(project);
        std::vector<zml::shared_ptr<zml::AMFile> > medias;
        medias.reserve(count);
        for (long long i = 0; i < count; ++i)
            medias.push_back(newMedia(project));
        state.ResumeTiming();
        for (long long i = 0; i < count; ++i)
            track->addMedia(medias[static_cast<std::size_t>(i)], i * spacing);
        state.PauseTiming();
        track.reset();
        medias.clear();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_AddMediaBuildingATrackOf100000)->Unit(benchmark::kMillisecond)->Iterations(3);

void BM_MediaAtTime(benchmark::State& state) {
    zml::shared_ptr<zml::Project> project = zml::Project::create(30, 1);
    zml::shared_ptr<zml::AudioTrack> track = boost::make_shared<zml::AudioTrack>(project);
    fill(track, project, state.range(0));
    zml::Track const& view = *track;
    std::vector<long long> const queries = randomTimes(state.range(0));
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(view.mediaAtTime(queries[next]));
        next = (next + 1) & (queries.size() - 1);
    }
}
BENCHMARK(BM_MediaAtTime)->Arg(1000)->Arg(100000);

// Ranges of 100 units: about five medias each.
void BM_MediasIntersectingRange(benchmark::State& state) {
    zml::shared_ptr<zml::Project> project = zml::Project::create(30, 1);
    zml::shared_ptr<zml::AudioTrack> track = boost::make_shared<zml::AudioTrack>(project);
    fill(track, project, state.range(0));
    zml::Track const& view = *track;
    std::vector<long long> const queries = randomTimes(state.range(0));
    zml::shared_ptr<zml::Media const> const none;
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(view.mediasIntersectingRange(zml::Range<long long>(queries[next], 100), none));
        next = (next + 1) & (queries.size() - 1);
    }
}
BENCHMARK(BM_MediasIntersectingRange)->Arg(1000)->Arg(100000);

// One media in the middle moves by one unit and back, within its gap; each iteration is one
// checked move with its collision test and rekeying.
void BM_CheckedMove(benchmark::State& state) {
    zml::shared_ptr<zml::Project> project = zml::Project::create(30, 1);
    zml::shared_ptr<zml::AudioTrack> track = boost::make_shared<zml::AudioTrack>(project);
    fill(track, project, state.range(0));
    zml::shared_ptr<zml::Media const> const media = track->medias().at(state.range(0) / 2 * spacing);
    long long offset = 1;
    for (auto _ : state) {
        track->move(media, offset, true);
        offset = -offset;
    }
}
BENCHMARK(BM_CheckedMove)->Arg(1000)->Arg(100000);

// A range over 1,000 medias of a track of the given size.
void BM_TimelineCopyPortionOf1000Medias(benchmark::State& state) {
    zml::shared_ptr<zml::Project> project = zml::Project::create(30, 1);
    zml::Timeline timeline(project);
    zml::shared_ptr<zml::AudioMixer> mixer = timeline.newAudioMixer(48000, 16, 2);
    zml::shared_ptr<zml::AudioTrack> track = timeline.newTrack<zml::AudioTrack>(mixer, -1);
    fill(track, project, state.range(0));
    zml::Range<long long> const range((state.range(0) - 1000) / 2 * spacing + 5, 1000 * spacing);
    zml::Timeline::TrackSet const tracks{track};
    for (auto _ : state)
        benchmark::DoNotOptimize(timeline.copyPortion(range, tracks, nullptr));
}
BENCHMARK(BM_TimelineCopyPortionOf1000Medias)->Arg(1000)->Arg(100000)->Unit(benchmark::kMicrosecond);

}  // namespace
