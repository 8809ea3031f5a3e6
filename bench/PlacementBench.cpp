// Placement through the whole command path: one move must cost the same on a track of a
// thousand medias as on one of a hundred thousand; a drag folds into one step; a long timeline
// is built through commands, cloning included; and two linked groups are joined.
#include <ZelmarMediaLib/clipbin/Source.h>
#include <ZelmarMediaLib/clipbin/SourceBin.h>
#include <ZelmarMediaLib/commands/CommandHistory.h>
#include <ZelmarMediaLib/commands/links/LinkCmd.h>
#include <ZelmarMediaLib/commands/placement/AddMediaCmd.h>
#include <ZelmarMediaLib/commands/placement/MoveCmd.h>
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/AudioMedia.h>
#include <ZelmarMediaLib/timeline/AudioMixer.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>
#include <ZelmarMediaLib/timeline/Timeline.h>

#include <benchmark/benchmark.h>

#include <vector>

namespace {

namespace zml = ZelmarMediaLib;

// A project with an audio mixer and the bundled recording in its bin; audio medias are the
// lightest file medias to clone.
struct Setup {
    zml::shared_ptr<zml::Project> project = zml::Project::create(30, 1);
    zml::shared_ptr<zml::Source> source = project->sourceBin()->loadFile(ZML_TEST_MEDIA_DIR "/video-audio.mp4");
    zml::shared_ptr<zml::AudioMixer> mixer = project->timeline()->newAudioMixer(44100, 16, 2);

    zml::shared_ptr<zml::Media> clip() const {
        return zml::sharedClone(zml::shared_ptr<zml::Media const>(*source->mediaBegin<zml::AudioMedia const>()));
    }
    zml::shared_ptr<zml::AudioTrack> newTrack() const {
        return project->timeline()->newTrack<zml::AudioTrack>(mixer, -1);
    }
    // Twice the clip's length, so that every media has a gap as long as itself after it.
    long long spacing() const { return 2 * clip()->trackRange().duration; }
};

// The track is filled directly, without commands, to keep the setup short.
void BM_MoveCmdThroughProjectExecute(benchmark::State& state) {
    Setup setup;
    zml::shared_ptr<zml::AudioTrack> track = setup.newTrack();
    long long const count = state.range(0);
    long long const spacing = setup.spacing();
    for (long long i = 0; i < count; ++i)
        track->addMedia(setup.clip(), i * spacing);
    zml::shared_ptr<zml::Media const> middle = track->mediaAtTime(count / 2 * spacing).second;
    setup.project->commandHistory()->setUndoLimit(100);
    long long offset = 1;
    for (auto _ : state) {
        setup.project->execute(zml::MoveCmd::create(track, middle, offset));
        offset = -offset;
    }
}
BENCHMARK(BM_MoveCmdThroughProjectExecute)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

// A hundred moves of one unit, each merged into the step before, then the one undo.
void BM_DragOf100MovesCombinedAndUndone(benchmark::State& state) {
    Setup setup;
    zml::shared_ptr<zml::AudioTrack> track = setup.newTrack();
    zml::shared_ptr<zml::Media> clip = setup.clip();
    track->addMedia(clip, 0);
    for (auto _ : state) {
        setup.project->execute(zml::MoveCmd::create(track, clip, 1));
        for (int step = 1; step < 100; ++step) {
            setup.project->combineNextCommand();
            setup.project->execute(zml::MoveCmd::create(track, clip, 1));
        }
        setup.project->undo();
    }
}
BENCHMARK(BM_DragOf100MovesCombinedAndUndone)->Unit(benchmark::kMicrosecond);

void BM_BuildingATimelineOf100000ThroughAddMediaCmd(benchmark::State& state) {
    long long const count = 100000;
    for (auto _ : state) {
        state.PauseTiming();
        {
            Setup setup;
            zml::shared_ptr<zml::AudioTrack> track = setup.newTrack();
            long long const spacing = setup.spacing();
            setup.project->commandHistory()->setUndoLimit(0);
            state.ResumeTiming();
            for (long long i = 0; i < count; ++i)
                setup.project->execute(zml::AddMediaCmd::create(track, setup.clip(), i * spacing));
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}
BENCHMARK(BM_BuildingATimelineOf100000ThroughAddMediaCmd)->Unit(benchmark::kMillisecond)->Iterations(1);

// Two cliques of 8 on 16 tracks, joined by one LinkCmd: 128 links made; the undo is not timed.
void BM_LinkCmdOfTwoGroupsOf8(benchmark::State& state) {
    Setup setup;
    std::vector<zml::shared_ptr<zml::Media> > medias;
    for (int i = 0; i < 16; ++i) {
        medias.push_back(setup.clip());
        setup.newTrack()->addMedia(medias.back(), 0);
    }
    for (int i = 1; i < 8; ++i) {
        medias[0]->link(medias[static_cast<std::size_t>(i)]);
        medias[8]->link(medias[static_cast<std::size_t>(8 + i)]);
    }
    for (auto _ : state) {
        setup.project->execute(zml::LinkCmd::create(medias[0], medias[8]));
        state.PauseTiming();
        setup.project->undo();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_LinkCmdOfTwoGroupsOf8)->Unit(benchmark::kMicrosecond);

}  // namespace
