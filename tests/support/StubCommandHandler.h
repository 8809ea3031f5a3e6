#pragma once
// A command handler with no model behind it, for tests that only care which handler a command was given.
#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/effects/Effectable.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

namespace ZelmarMediaLib {
namespace test {

// Every edit raises: a command that reaches the model through it is a test's mistake.
class StubCommandHandler : public CommandHandler {
public:
    shared_ptr<VisualMixer> visualMixer() const override { return refuse<shared_ptr<VisualMixer> >(); }
    shared_ptr<AudioMixer> audioMixer() const override { return refuse<shared_ptr<AudioMixer> >(); }
    shared_ptr<VisualMixer> newVisualMixer(float, float) override { return refuse<shared_ptr<VisualMixer> >(); }
    shared_ptr<VisualMixer> newVisualMixer(shared_ptr<VisualMixer>) override {
        return refuse<shared_ptr<VisualMixer> >();
    }
    shared_ptr<VisualMixer> removeVisualMixer() override { return refuse<shared_ptr<VisualMixer> >(); }
    shared_ptr<AudioMixer> newAudioMixer(unsigned int, unsigned int, unsigned int) override {
        return refuse<shared_ptr<AudioMixer> >();
    }
    shared_ptr<AudioMixer> newAudioMixer(shared_ptr<AudioMixer>) override { return refuse<shared_ptr<AudioMixer> >(); }
    shared_ptr<AudioMixer> removeAudioMixer() override { return refuse<shared_ptr<AudioMixer> >(); }
    shared_ptr<VisualTrack> newVisualTrack(int) override { return refuse<shared_ptr<VisualTrack> >(); }
    shared_ptr<ImageTrack> newImageTrack(int) override { return refuse<shared_ptr<ImageTrack> >(); }
    shared_ptr<AudioTrack> newAudioTrack(int) override { return refuse<shared_ptr<AudioTrack> >(); }
    shared_ptr<Track> newTrack(shared_ptr<Mixer const>, int) override { return refuse<shared_ptr<Track> >(); }
    shared_ptr<Track> addTrack(shared_ptr<Mixer const>, shared_ptr<Track>, int) override {
        return refuse<shared_ptr<Track> >();
    }
    std::pair<shared_ptr<Track>, int> removeTrack(shared_ptr<Mixer const>, shared_ptr<Track const>) override {
        return refuse<std::pair<shared_ptr<Track>, int> >();
    }
    void swapTrackOrder(shared_ptr<Mixer const>, shared_ptr<Track const>, shared_ptr<Track const>) override {
        refuse<int>();
    }
    void addMedia(shared_ptr<Track const>, shared_ptr<Media const>, long long) override { refuse<int>(); }
    shared_ptr<RemovedMediaList> removeMedia(shared_ptr<Track const>, shared_ptr<Media const>) override {
        return refuse<shared_ptr<RemovedMediaList> >();
    }
    void removeMedia(shared_ptr<Track const>, shared_ptr<Media const>, long long) override { refuse<int>(); }
    void move(shared_ptr<Track const>, shared_ptr<Media const>, long long) override { refuse<int>(); }
    void trimStart(shared_ptr<Track const>, shared_ptr<Media const>, long long) override { refuse<int>(); }
    void trimEnd(shared_ptr<Track const>, shared_ptr<Media const>, long long) override { refuse<int>(); }
    double stretch(shared_ptr<Track const>, shared_ptr<Media const>, double) override { return refuse<double>(); }
    void addLink(shared_ptr<Media const>, shared_ptr<Media const>) override { refuse<int>(); }
    void removeLink(shared_ptr<Media const>, shared_ptr<Media const>) override { refuse<int>(); }
    void addEffect(shared_ptr<Effectable const>, shared_ptr<Effect const>) override { refuse<int>(); }
    void insertEffect(shared_ptr<Effectable const>, shared_ptr<Effect const>, int) override { refuse<int>(); }
    void swapEffectOrder(shared_ptr<Effectable const>, int, int) override { refuse<int>(); }
    EffectRemoval removeEffect(shared_ptr<Effectable const>, shared_ptr<Effect const>) override {
        return refuse<EffectRemoval>();
    }
    void moveParameterKeyFrame(shared_ptr<Parametric const>, shared_ptr<ParameterInterface const>, long long,
                               long long) override {
        refuse<int>();
    }
    shared_ptr<Source> loadSource(std::string const&) override { return refuse<shared_ptr<Source> >(); }
    void loadSource(shared_ptr<Source const>) override { refuse<int>(); }
    void unloadSource(shared_ptr<Source const>) override { refuse<int>(); }
    void addClipping(shared_ptr<Clipping>) override { refuse<int>(); }
    void removeClipping(shared_ptr<Clipping>) override { refuse<int>(); }
    EdgeModCommandHandler* edgeModCommandHandler() override { return refuse<EdgeModCommandHandler*>(); }

private:
    template <class R>
    static R refuse() {
        throw ZelmarMediaLibException("the stub handler has no model");
    }
};

}  // namespace test
}  // namespace ZelmarMediaLib
