// Edits through the project's command path: a key frame command on a long parameter, and a
// removal with links from a long track through the handler.
#include <ZelmarMediaLib/clipbin/MediaFileStats.h>
#include <ZelmarMediaLib/clipbin/Source.h>
#include <ZelmarMediaLib/clipbin/SourceBin.h>
#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/commands/keyframes/AddParameterKeyFrameCmd.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/AMFile.h>
#include <ZelmarMediaLib/timeline/AudioMixer.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>
#include <ZelmarMediaLib/timeline/Timeline.h>

#include <benchmark/benchmark.h>

namespace {

namespace zml = ZelmarMediaLib;

// Ten seconds of stereo at 44100, which the medias below are cut from.
zml::shared_ptr<zml::Source> sourceInBin(zml::shared_ptr<zml::Project> const& project) {
    zml::shared_ptr<zml::MediaFileStats> stats = zml::MediaFileStats::create();
    stats->setFilename("/bench/talk.wav");
    zml::MediaFileStats::TrackStats audio;
    audio.type = zml::MediaFileStats::Audio;
    audio.range = zml::Range<long long>(0, 441000);
    audio.rangeEditRate = 44100;
    audio.sampleRate = 44100;
    audio.bitDepth = 16;
    audio.numChannels = 2;
    stats->addTrackStats(audio);
    zml::shared_ptr<zml::Source> source = zml::Source::create(project, project, stats);
    project->sourceBin()->addSource(source);
    return source;
}

void BM_ExecuteAndUndoOfAddKeyFrame(benchmark::State& state) {
    zml::shared_ptr<zml::Project> project = zml::Project::create(30, 1);
    zml::shared_ptr<zml::AudioTrack> track = project->timeline()->newTrack<zml::AudioTrack>(
        project->timeline()->newAudioMixer(44100, 16, 2), 0);
    zml::shared_ptr<zml::InterpolatingParam<zml::AudioPosition> > position = track->positionParam();
    long long const count = state.range(0);
    for (long long i = 1; i < count; ++i)
        position->addKeyFrame(2 * i, zml::AudioPosition());
    zml::shared_ptr<zml::Command> add =
        zml::AddParameterKeyFrameCmd<zml::AudioPosition>::create(track, position, count + 1, zml::AudioPosition());
    for (auto _ : state) {
        project->execute(add);
        project->undo();
    }
}
BENCHMARK(BM_ExecuteAndUndoOfAddKeyFrame)->Arg(1000)->Arg(10000)->Arg(100000);

// Takes a media and its linked partner off their tracks, and puts both back.
class RemoveWithLinksCmd : public zml::Command {
public:
    RemoveWithLinksCmd(zml::shared_ptr<zml::Track const> track, zml::shared_ptr<zml::Media const> media)
        : track_(track), media_(media) {}
    RemoveWithLinksCmd* clone() const override { return new RemoveWithLinksCmd(*this); }
    bool execute(zml::CommandHandler* handler) override {
        removed_ = handler->removeMedia(track_, media_);
        return true;
    }
    bool unexecute(zml::CommandHandler* handler) override {
        for (auto const& entry : *removed_)
            handler->addMedia(entry.second, entry.first, entry.first->trackRange().start);
        return true;
    }
    void xmlName(zml::XMLable::Options& options) const override { *options.stream << "RemoveWithLinksCmd"; }
    void xmlAttributes(zml::XMLable::Options&) const override {}
    void xmlBody(zml::XMLable::Options&, int) const override {}

private:
    RemoveWithLinksCmd(RemoveWithLinksCmd const&) = default;

    zml::shared_ptr<zml::Track const> track_;
    zml::shared_ptr<zml::Media const> media_;
    zml::shared_ptr<zml::CommandHandler::RemovedMediaList> removed_;
};

void BM_RemoveMediaWithLinksFromALongTrack(benchmark::State& state) {
    zml::shared_ptr<zml::Project> project = zml::Project::create(30, 1);
    zml::shared_ptr<zml::Source> source = sourceInBin(project);
    zml::shared_ptr<zml::AudioMixer> mixer = project->timeline()->newAudioMixer(44100, 16, 2);
    zml::shared_ptr<zml::AudioTrack> left = project->timeline()->newTrack<zml::AudioTrack>(mixer, 0);
    zml::shared_ptr<zml::AudioTrack> right = project->timeline()->newTrack<zml::AudioTrack>(mixer, 1);
    long long const count = state.range(0);
    zml::shared_ptr<zml::Media> middle;
    for (long long i = 0; i < count; ++i) {
        zml::shared_ptr<zml::AMFile> a =
            zml::make_shared<zml::AMFile>(zml::Range<long long>(0, 10), project, source, 0u, 0u);
        zml::shared_ptr<zml::AMFile> b =
            zml::make_shared<zml::AMFile>(zml::Range<long long>(0, 10), project, source, 0u, 1u);
        left->addMedia(a, 10 * i);
        right->addMedia(b, 10 * i);
        a->link(b);
        if (i == count / 2)
            middle = a;
    }
    zml::shared_ptr<zml::Command> remove = zml::shared_ptr<zml::Command>(new RemoveWithLinksCmd(left, middle));
    for (auto _ : state) {
        project->execute(remove);
        project->undo();
    }
}
BENCHMARK(BM_RemoveMediaWithLinksFromALongTrack)->Arg(1000)->Arg(100000);

}  // namespace
