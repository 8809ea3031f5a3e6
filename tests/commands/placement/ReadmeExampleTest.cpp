// The worked example of the README, compiled and run as it stands there, so that it stays true.
#include <ZelmarMediaLib/ZelmarMediaLib.h>

#include <gtest/gtest.h>

#include <ostream>
#include <sstream>
#include <string>

namespace {

using namespace ZelmarMediaLib;

// From the README, between the markers, unchanged.
shared_ptr<Project> readmeExample(std::string const& path, std::ostream& out) {
    // --- README example begins
    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<Source> source = project->sourceBin()->loadFile(path);

    // Mixers and tracks are made on the timeline directly here.
    shared_ptr<Timeline> timeline = project->timeline();
    shared_ptr<VisualMixer> mixer = timeline->newVisualMixer(640, 480);
    shared_ptr<VisualTrack> track = timeline->newTrack<VisualTrack>(mixer, -1);

    // A clone of the file's picture goes on the track at one second.
    shared_ptr<Media> clip = sharedClone(shared_ptr<Media const>(*source->mediaBegin<VisualMedia const>()));
    project->execute(AddMediaCmd::create(track, clip, 30));

    // A drag: each move merges into the one before, so the whole drag undoes as one step.
    project->execute(MoveCmd::create(track, clip, 5));
    for (int step = 0; step < 3; ++step) {
        project->combineNextCommand();
        project->execute(MoveCmd::create(track, clip, 5));
    }
    project->undo();  // the clip is back at 30

    project->toXML(out);
    // --- README example ends
    return project;
}

TEST(ReadmeExampleTest, TheDragUndoesAsOneStepAndTheDocumentShowsTheClipWhereItWas) {
    std::ostringstream document;
    shared_ptr<Project> const project = readmeExample(ZML_TEST_MEDIA_DIR "/video-audio.mp4", document);
    EXPECT_EQ(1u, project->commandHistory()->undoStack().size()) << "only the add is left to undo";
    ASSERT_EQ(1u, project->commandHistory()->redoStack().size());
    EXPECT_EQ(20, dynamic_pointer_cast<MoveCmd>(project->commandHistory()->redoStack().back())->offset());
    EXPECT_NE(std::string::npos, document.str().find("<VMFile id=\"")) << document.str();
    EXPECT_NE(std::string::npos, document.str().find(" start=\"30\" ")) << document.str();
}

}  // namespace
