#pragma once
// A project at 30/1 with two picture tracks and two sound tracks, a loaded two-second recording
// whose picture and sound are cloned as medias, and helpers that check a whole track at once.
#include <ZelmarMediaLib/clipbin/Source.h>
#include <ZelmarMediaLib/clipbin/SourceBin.h>
#include <ZelmarMediaLib/commands/CommandHistory.h>
#include <ZelmarMediaLib/commands/placement/AddMediaCmd.h>
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/AudioMedia.h>
#include <ZelmarMediaLib/timeline/AudioMixer.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>
#include <ZelmarMediaLib/timeline/Timeline.h>
#include <ZelmarMediaLib/timeline/VisualMedia.h>
#include <ZelmarMediaLib/timeline/VisualMixer.h>
#include <ZelmarMediaLib/timeline/VisualTrack.h>

#include "support/HandBuiltStats.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace ZelmarMediaLib {
namespace test {

typedef std::vector<std::pair<long long, long long> > Layout;

// Each media's (start, duration), in time order.
inline Layout layoutOf(shared_ptr<Track const> const& track) {
    Layout layout;
    for (ConstIterator<Track::MediaMap> at = track->mediaBegin(), end = track->mediaEnd(); at != end; ++at)
        layout.emplace_back(at->second->trackRange().start, at->second->trackRange().duration);
    return layout;
}

// Two seconds of picture and sound: 60 units each at the project's 30 a second.
inline shared_ptr<MediaFileStats> shortRecordingStats(std::string const& filename) {
    return stats(filename, Rect<int>(0, 0, 640, 480),
                 {videoTrack(Range<long long>(0, 1200), 600), audioTrack(Range<long long>(0, 88200), 44100, 2)});
}

class PlacementFixture : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<Timeline> timeline = project->timeline();
    shared_ptr<VisualMixer> visual = timeline->newVisualMixer(640, 480);
    shared_ptr<AudioMixer> sound = timeline->newAudioMixer(44100, 16, 2);
    shared_ptr<VisualTrack> pictures = timeline->newTrack<VisualTrack>(visual, -1);
    shared_ptr<VisualTrack> overlay = timeline->newTrack<VisualTrack>(visual, -1);
    shared_ptr<AudioTrack> voice = timeline->newTrack<AudioTrack>(sound, -1);
    shared_ptr<AudioTrack> music = timeline->newTrack<AudioTrack>(sound, -1);
    shared_ptr<Source> recording = loadedSource("/media/recording.mov");

    shared_ptr<Source> newSource(std::string const& filename) const {
        return Source::create(project, project, shortRecordingStats(filename));
    }

    shared_ptr<Source> loadedSource(std::string const& filename) const {
        shared_ptr<Source> const source = newSource(filename);
        project->sourceBin()->addSource(source);
        return source;
    }

    // Fresh clones of the source's medias, on no track, at time 0.
    static shared_ptr<Media> picture(shared_ptr<Source const> const& source) {
        return sharedClone(shared_ptr<Media const>(*source->mediaBegin<VisualMedia const>()));
    }
    static shared_ptr<Media> audio(shared_ptr<Source const> const& source) {
        return sharedClone(shared_ptr<Media const>(*source->mediaBegin<AudioMedia const>()));
    }

    // A clone of the recording placed through the command path.
    shared_ptr<Media> placePicture(shared_ptr<Track const> const& track, long long time) {
        return place(track, picture(recording), time);
    }
    shared_ptr<Media> placeAudio(shared_ptr<Track const> const& track, long long time) {
        return place(track, audio(recording), time);
    }
    shared_ptr<Media> place(shared_ptr<Track const> const& track, shared_ptr<Media> const& media, long long time) {
        EXPECT_TRUE(project->execute(AddMediaCmd::create(track, media, time)));
        return media;
    }

    std::size_t undoDepth() const { return project->commandHistory()->undoStack().size(); }
    shared_ptr<Command> undoTop() const { return project->commandHistory()->undoStack().back(); }
};

}  // namespace test
}  // namespace ZelmarMediaLib
