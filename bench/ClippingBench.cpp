// Making a clipping: the portion copy, the track positions and the shift of every clone to time 0,
// which runs one checked move per clone, must stay proportional to the medias of the piece.
#include <ZelmarMediaLib/clipbin/Clipping.h>
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/AMFile.h>
#include <ZelmarMediaLib/timeline/AudioMixer.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>
#include <ZelmarMediaLib/timeline/Timeline.h>
#include <ZelmarMediaLib/timeline/VMFile.h>
#include <ZelmarMediaLib/timeline/VisualMixer.h>
#include <ZelmarMediaLib/timeline/VisualTrack.h>

#include <benchmark/benchmark.h>

namespace {

namespace zml = ZelmarMediaLib;

long long const mediasPerTrack = 1000;
long long const clippedPerTrack = 250;
long long const duration = 10;
long long const spacing = 20;

// Medias of 10 units every 20 units.
void fill(zml::shared_ptr<zml::Track> const& track, zml::shared_ptr<zml::Project> const& project, bool visual) {
    for (long long i = 0; i < mediasPerTrack; ++i) {
        zml::Range<long long> const range(0, duration);
        zml::shared_ptr<zml::Media> media;
        if (visual)
            media = boost::make_shared<zml::VMFile>(range, zml::Rect<float>(0, 0, 640, 480), project, "/v.mov", 0.0,
                                                    1000.0, 0u);
        else
            media = boost::make_shared<zml::AMFile>(range, 48000u, 16u, project, "/a.wav", 0.0, 1000.0, 0u, 0u);
        track->addMedia(media, i * spacing);
    }
}

// Two visual and two audio tracks of 1,000 medias each; the range takes 250 whole medias from
// the middle of each track, 1,000 in all, so that every clone is moved back. The clipping's
// destruction is part of each iteration.
void BM_RangeClippingOf1000MediasInAllOver4Tracks(benchmark::State& state) {
    zml::shared_ptr<zml::Project> project = zml::Project::create(30, 1);
    zml::shared_ptr<zml::Timeline> timeline = boost::make_shared<zml::Timeline>(project);
    zml::shared_ptr<zml::VisualMixer> visual = timeline->newVisualMixer(640, 480);
    zml::shared_ptr<zml::AudioMixer> sound = timeline->newAudioMixer(48000, 16, 2);
    zml::Clipping::TrackSet tracks;
    for (int i = 0; i < 2; ++i) {
        zml::shared_ptr<zml::Track> picture = timeline->newTrack<zml::VisualTrack>(visual, -1);
        zml::shared_ptr<zml::Track> voice = timeline->newTrack<zml::AudioTrack>(sound, -1);
        fill(picture, project, true);
        fill(voice, project, false);
        tracks.insert(picture);
        tracks.insert(voice);
    }
    zml::Range<long long> const range(mediasPerTrack / 2 * spacing, clippedPerTrack * spacing);
    for (auto _ : state) {
        zml::Clipping clipping(timeline, range, tracks, "piece");
        benchmark::DoNotOptimize(clipping.trackPositions().size());
    }
    state.SetItemsProcessed(state.iterations() * clippedPerTrack * 4);
}
BENCHMARK(BM_RangeClippingOf1000MediasInAllOver4Tracks)->Unit(benchmark::kMicrosecond);

}  // namespace
