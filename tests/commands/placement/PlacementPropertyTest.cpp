// Thousands of random placement and link commands, many of them refused, with random undo and
// redo: after every step no two medias of a track overlap and linked medias share their track
// range, a refusal changes nothing, and undoing everything gives back the first document byte
// for byte.
#include <ZelmarMediaLib/commands/links/LinkCmd.h>
#include <ZelmarMediaLib/commands/links/UnlinkCmd.h>
#include <ZelmarMediaLib/commands/placement/AddMediaCmd.h>
#include <ZelmarMediaLib/commands/placement/MoveCmd.h>
#include <ZelmarMediaLib/commands/placement/RemoveMediaCmd.h>
#include <ZelmarMediaLib/commands/placement/StretchCmd.h>
#include <ZelmarMediaLib/commands/placement/TrimEndCmd.h>
#include <ZelmarMediaLib/commands/placement/TrimStartCmd.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

#include "commands/placement/PlacementFixture.h"
#include "support/CommandInvariants.h"

#include <algorithm>
#include <random>
#include <sstream>

namespace ZelmarMediaLib {
namespace {

using test::projectXml;

// The length of the recordings' material in project units.
double const recordingLength = 60.0;

std::vector<std::string> linesOf(std::string const& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

// The documents are long: a failure shows the first line that differs, with a little around it.
testing::AssertionResult sameDocument(std::string const& expected, std::string const& actual) {
    if (expected == actual)
        return testing::AssertionSuccess();
    std::vector<std::string> const want = linesOf(expected);
    std::vector<std::string> const got = linesOf(actual);
    std::size_t line = 0;
    while (line < want.size() && line < got.size() && want[line] == got[line])
        ++line;
    testing::AssertionResult failure = testing::AssertionFailure();
    failure << "documents differ at line " << line + 1 << "\n";
    for (std::size_t i = line > 6 ? line - 6 : 0; i < line + 3; ++i) {
        failure << "  expected: " << (i < want.size() ? want[i] : "<end>") << "\n";
        failure << "  actual:   " << (i < got.size() ? got[i] : "<end>") << "\n";
    }
    return failure;
}

class PlacementPropertyTest : public test::PlacementFixture, public ::testing::WithParamInterface<unsigned> {
protected:
    std::mt19937 random{GetParam()};
    std::vector<shared_ptr<Track> > tracks{pictures, overlay, voice, music};
    std::vector<shared_ptr<Media> > pool;
    shared_ptr<Source> elsewhere = newSource("/media/elsewhere.mov");
    // The document as the last step left it.
    std::string current;
    // Set until a command runs: a refused one leaves the project's flag standing too.
    bool combinePending = false;
    int accepted = 0;
    int refused = 0;
    int linksMade = 0;

    void SetUp() override {
        shared_ptr<Source> const second = loadedSource("/media/second.mov");
        for (int i = 0; i < 8; ++i) {
            pool.push_back(picture(i % 2 ? recording : second));
            pool.push_back(audio(i % 2 ? recording : second));
        }
        current = projectXml(*project);
    }

    int below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(random); }
    int between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); }
    template <class T>
    T const& any(std::vector<T> const& items) {
        return items[static_cast<std::size_t>(below(static_cast<int>(items.size())))];
    }

    static bool placed(shared_ptr<Media const> const& media) { return !media->parentTrack().expired(); }
    static bool linked(shared_ptr<Media const> const& media) { return media->linkBegin() != media->linkEnd(); }
    static bool isPicture(shared_ptr<Media const> const& media) { return dynamic_cast<VisualMedia const*>(media.get()); }
    static shared_ptr<Track const> trackOf(shared_ptr<Media const> const& media) { return media->parentTrack().lock(); }

    std::vector<shared_ptr<Media> > where(bool (*test)(shared_ptr<Media const> const&)) const {
        std::vector<shared_ptr<Media> > result;
        for (shared_ptr<Media> const& media : pool) {
            if (test(media))
                result.push_back(media);
        }
        return result;
    }

    // Mostly a track of the media's own kind; now and then any track, which may be refused.
    shared_ptr<Track> trackFor(shared_ptr<Media const> const& media) {
        if (below(8) == 0)
            return any(tracks);
        if (isPicture(media))
            return below(2) ? pictures : overlay;
        return below(2) ? voice : music;
    }

    // A refused command must leave the document and the history as they were.
    void run(shared_ptr<Command> const& command) {
        std::size_t const depth = undoDepth();
        try {
            ASSERT_TRUE(project->execute(command));
            combinePending = false;
        } catch (ZelmarMediaLibException const&) {
            ++refused;
            ASSERT_TRUE(sameDocument(current, projectXml(*project))) << "a refused command changed the document";
            ASSERT_EQ(depth, undoDepth()) << "a refused command reached the history";
            return;
        }
        ++accepted;
        if (dynamic_pointer_cast<LinkCmd>(command))
            ++linksMade;
        current = projectXml(*project);
    }

    void undo() {
        if (undoDepth() == 0)
            return;
        shared_ptr<Command> const top = undoTop();
        try {
            project->undo();
        } catch (ZelmarMediaLibException const& error) {
            std::ostringstream command;
            top->toXML(command);
            FAIL() << "the undo of a command that ran failed: " << error.what() << '\n' << command.str();
        }
        current = projectXml(*project);
    }

    void redo() {
        if (project->commandHistory()->redoStack().empty())
            return;
        project->redo();
        current = projectXml(*project);
    }

    void randomStep() {
        std::vector<shared_ptr<Media> > const onTracks = where(&placed);
        int const choice = below(100);
        if (choice < 20 || onTracks.empty()) {
            // Medias that come off with their links go back only by undo: an add of one of
            // them alone would leave it linked with medias somewhere else.
            std::vector<shared_ptr<Media> > const free =
                where([](shared_ptr<Media const> const& m) { return !placed(m) && !linked(m); });
            // Now and then one that is placed already, which is refused.
            bool const again = !onTracks.empty() && (free.empty() || below(10) == 0);
            if (again || !free.empty()) {
                shared_ptr<Media> const media = again ? any(onTracks) : any(free);
                run(AddMediaCmd::create(trackFor(media), media, between(0, 600)));
            }
        } else if (choice < 22) {
            run(AddMediaCmd::create(pictures, picture(elsewhere), between(0, 600)));
        } else if (choice < 30) {
            shared_ptr<Media> const media = any(onTracks);
            run(RemoveMediaCmd<Media>::create(trackOf(media), media));
        } else if (choice < 60) {
            shared_ptr<Media> const media = any(onTracks);
            // Now and then a step of a drag, folded into the step before.
            if (below(3) == 0) {
                project->combineNextCommand();
                combinePending = true;
            }
            shared_ptr<Track const> const track = trackOf(media);
            // Linked groups are only moved here, only medias at their own speed are trimmed,
            // and a trim of the end stays in the material: the media editor lets a media's end
            // pass the end of its material, and trims carried over links or at another speed
            // can leave a media whose undo its limits then refuse.
            switch (linked(media) || media->scalar() != 1.0 ? 0 : below(4)) {
            case 0:
            case 1:
                run(MoveCmd::create(track, media, between(-60, 60)));
                break;
            case 2:
                run(TrimStartCmd::create(track, media, between(-30, 30)));
                break;
            default:
                run(TrimEndCmd::create(track, media, between(-spareMaterialAtTheEnd(media), 30)));
            }
        } else if (choice < 64 && !combinePending) {
            // Two stretches of one media combined undo only to the scalar between them, and
            // the commands below them would then be undone from the wrong place: a drag never
            // ends in a stretch here.
            shared_ptr<Media> const media = any(onTracks);
            if (double const scalar = linked(media) ? 0.0 : exactStretchOf(media))
                run(StretchCmd::create(trackOf(media), media, scalar));
        } else if (choice < 64) {
        } else if (choice < 76) {
            addTwinOf(onTracks);
        } else if (choice < 80) {
            shared_ptr<Media> const media = any(onTracks);
            std::vector<shared_ptr<Media> > partners;
            for (shared_ptr<Media> const& other : onTracks) {
                if (trackOf(other) != trackOf(media) && media->isLinkableWith(other))
                    partners.push_back(other);
            }
            run(LinkCmd::create(media, partners.empty() || below(5) == 0 ? any(onTracks) : any(partners)));
        } else if (choice < 84) {
            run(UnlinkCmd::create(any(onTracks)));
        } else if (choice < 94) {
            undo();
        } else {
            redo();
        }
    }

    static int spareMaterialAtTheEnd(shared_ptr<Media const> const& media) {
        Range<double> const material = media->mediaRange();
        return std::max(0, static_cast<int>(recordingLength - (material.start + material.duration)));
    }

    // A stretch undoes by stretching back to the former scalar, and the track duration is
    // rounded each way: a stretch whose round trip loses a unit can't be undone to the same
    // document. So only the doubling of a media at its own speed, and the way back, are tried.
    static double exactStretchOf(shared_ptr<Media const> const& media) {
        double const material = media->mediaRange().duration;
        long long const duration = media->trackRange().duration;
        if (media->scalar() == 1.0 && material == static_cast<double>(duration))
            return 2.0;
        if (media->scalar() == 2.0 && duration % 2 == 0 && 2.0 * material == static_cast<double>(duration))
            return 1.0;
        return 0.0;
    }

    // A free media of the same material and range at the same time on another track, and
    // then, as the next step, the link of the two.
    void addTwinOf(std::vector<shared_ptr<Media> > const& onTracks) {
        for (int attempt = 0; attempt < 4; ++attempt) {
            shared_ptr<Media> const media = any(onTracks);
            for (shared_ptr<Media> const& candidate : pool) {
                if (placed(candidate) || linked(candidate) || candidate->mediaRange() != media->mediaRange() ||
                    candidate->trackRange().duration != media->trackRange().duration ||
                    candidate->scalar() != media->scalar())
                    continue;
                shared_ptr<Track> const track = trackFor(candidate);
                if (track == trackOf(media))
                    continue;
                int const before = accepted;
                run(AddMediaCmd::create(track, candidate, media->trackRange().start));
                if (accepted > before)
                    run(LinkCmd::create(media, candidate));
                return;
            }
        }
    }

    void expectSoundLayout() const {
        for (shared_ptr<Track const> const track : tracks) {
            long long end = 0;
            for (ConstIterator<Track::MediaMap> at = track->mediaBegin(), stop = track->mediaEnd(); at != stop; ++at) {
                Range<long long> const range = at->second->trackRange();
                ASSERT_EQ(at->first, range.start) << "an entry not keyed by its media's start";
                ASSERT_LE(end, range.start) << "two medias overlap";
                ASSERT_GT(range.duration, 0);
                end = range.start + range.duration;
            }
        }
        for (shared_ptr<Media> const& media : pool) {
            for (Media::LinkList::iterator link = media->linkBegin(); link != media->linkEnd(); ++link) {
                shared_ptr<Media> const other = link->lock();
                ASSERT_TRUE(other) << "a dead link";
                ASSERT_TRUE(other->isLinkedWith(media)) << "a link one way only";
                ASSERT_EQ(placed(media), placed(other)) << "a linked group half on the tracks";
                ASSERT_EQ(media->trackRange(), other->trackRange()) << "linked medias with different ranges";
            }
        }
    }
};

TEST_P(PlacementPropertyTest, RandomEditsKeepTracksAndLinksSoundAndUndoToTheFirstDocument) {
    std::string const initial = current;
    for (int step = 0; step < 1000; ++step) {
        SCOPED_TRACE(testing::Message() << "step " << step);
        randomStep();
        expectSoundLayout();
        if (HasFatalFailure())
            return;
    }
    EXPECT_GT(accepted, 300);
    EXPECT_GT(refused, 100);
    EXPECT_GE(linksMade, 5) << "the links must be exercised as well";
    while (undoDepth() > 0) {
        undo();
        expectSoundLayout();
        if (HasFatalFailure())
            return;
    }
    EXPECT_TRUE(sameDocument(initial, projectXml(*project))) << "undoing everything must give back the first document";
    while (!project->commandHistory()->redoStack().empty())
        project->redo();
    expectSoundLayout();
}

INSTANTIATE_TEST_SUITE_P(Seeds, PlacementPropertyTest, ::testing::Values(1u, 2u, 3u));

}  // namespace
}  // namespace ZelmarMediaLib
