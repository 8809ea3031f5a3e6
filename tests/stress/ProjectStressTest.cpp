// Reader threads walk a project's tracks and parameters, print it and copy from it while one
// writer edits it, directly under the write lock and through commands. Meant to be run under
// ThreadSanitizer as well, which sees the races that the invariants below cannot.
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/datatypes/Cloneable.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/AMFile.h>
#include <ZelmarMediaLib/timeline/AudioMixer.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>
#include <ZelmarMediaLib/timeline/Timeline.h>
#include <ZelmarMediaLib/timeline/VMFile.h>
#include <ZelmarMediaLib/timeline/VisualMixer.h>
#include <ZelmarMediaLib/timeline/VisualTrack.h>

#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <iterator>
#include <mutex>
#include <random>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace ZelmarMediaLib {
namespace {

int const readerThreads = 4;
int const writerSteps = 600;
int const readerRounds = 60;
// Medias are placed inside [0, timelineSpan) so that the tracks stay crowded.
long long const timelineSpan = 600;

// Moves one media along its track, checked: nothing to do when something stands in the way
// or the media has gone.
class NudgeCmd : public Command {
public:
    static shared_ptr<NudgeCmd> create(shared_ptr<Track> const& track, shared_ptr<Media const> const& media,
                                       long long offset) {
        return shared_ptr<NudgeCmd>(new NudgeCmd(track, media, offset));
    }

    NudgeCmd* clone() const override { return new NudgeCmd(*this); }
    bool execute(CommandHandler*) override { return nudge(offset_); }
    bool unexecute(CommandHandler*) override { return nudge(-offset_); }

    void xmlName(XMLable::Options& options) const override { *options.stream << "NudgeCmd"; }
    void xmlAttributes(XMLable::Options& options) const override { *options.stream << "offset=\"" << offset_ << '"'; }
    void xmlBody(XMLable::Options&, int) const override {}

private:
    NudgeCmd(shared_ptr<Track> const& track, shared_ptr<Media const> const& media, long long offset)
        : track_(track), media_(media), offset_(offset) {}
    NudgeCmd(NudgeCmd const&) = default;

    bool nudge(long long by) {
        if (!track_->hasMedia(media_))
            return false;
        try {
            track_->move(media_, by, false);
        } catch (ZelmarMediaLibException const&) {
            return false;
        }
        return true;
    }

    shared_ptr<Track> track_;
    shared_ptr<Media const> media_;
    long long offset_;
};

// Collects what the threads saw wrong; gtest's own assertions would flood the log from a loop.
class Findings {
public:
    void report(std::string const& what) {
        std::lock_guard<std::mutex> lock(mutex_);
        if (findings_.size() < 10)
            findings_.push_back(what);
        ++count_;
    }
    int count() const {
        std::lock_guard<std::mutex> lock(mutex_);
        return count_;
    }
    std::string summary() const {
        std::lock_guard<std::mutex> lock(mutex_);
        std::string text;
        for (std::string const& finding : findings_)
            text += finding + "\n";
        return text;
    }

private:
    mutable std::mutex mutex_;
    std::vector<std::string> findings_;
    int count_ = 0;
};

class ProjectStressTest : public ::testing::Test {
protected:
    void SetUp() override {
        shared_ptr<Timeline> const timeline = project->timeline();
        shared_ptr<VisualMixer> const pictures = timeline->newVisualMixer(640, 480);
        shared_ptr<AudioMixer> const sound = timeline->newAudioMixer(44100, 16, 2);
        for (int i = 0; i < 2; ++i) {
            tracks.push_back(timeline->newTrack<VisualTrack>(pictures, -1));
            tracks.push_back(timeline->newTrack<AudioTrack>(sound, -1));
        }
        ReadWriteMutex::ScopedWriteLock lock(&project->mutex());
        for (shared_ptr<Track> const& track : tracks) {
            for (long long start = 0; start < timelineSpan; start += 60)
                track->addMedia(mediaFor(*track, 40), start);
        }
    }

    shared_ptr<Media> mediaFor(Track const& track, long long duration) {
        // Material [1000, 1000 + duration) of a long file, so that moves and copies' trims have room.
        Range<long long> const range(1000, duration);
        if (dynamic_cast<AudioTrack const*>(&track))
            return boost::make_shared<AMFile>(range, 48000u, 16u, project, "/a.wav", 0.0, 100000.0, 0u, 0u);
        return boost::make_shared<VMFile>(range, Rect<float>(0, 0, 640, 480), project, "/v.mov", 0.0, 100000.0, 0u);
    }

    static shared_ptr<InterpolatingParam<double> > levelOf(shared_ptr<Media> const& media) {
        if (shared_ptr<AudioMedia> const audio = dynamic_pointer_cast<AudioMedia>(media))
            return audio->volume();
        return dynamic_pointer_cast<VisualMedia>(media)->opacity();
    }
    static shared_ptr<InterpolatingParam<double> const> levelOf(shared_ptr<Media const> const& media) {
        if (shared_ptr<AudioMedia const> const audio = dynamic_pointer_cast<AudioMedia const>(media))
            return audio->volume();
        return dynamic_pointer_cast<VisualMedia const>(media)->opacity();
    }

    // Under the project lock: the media at a random place in the track, or null on an empty track.
    static shared_ptr<Media> anyMedia(Track& track, std::mt19937& random) {
        Track::MediaMap const& medias = static_cast<Track const&>(track).medias();
        if (medias.empty())
            return shared_ptr<Media>();
        Track::MediaMap::const_iterator it = medias.begin();
        std::advance(it, random() % medias.size());
        return track.findMedia(it->second);
    }

    // True when the step changed the model.
    bool writeStep(std::mt19937& random) {
        shared_ptr<Track> const& track = tracks[random() % tracks.size()];
        unsigned int const choice = random() % 10;
        if (choice >= 7) {
            shared_ptr<Media> media;
            {
                ReadWriteMutex::ScopedReadLock lock(&project->mutex());
                media = anyMedia(*track, random);
            }
            if (!media)
                return false;
            long long const offset = static_cast<long long>(random() % 41) - 20;
            if (!project->execute(NudgeCmd::create(track, media, offset)))
                return false;
            if (choice == 9) {
                project->undo();
                project->redo();
            }
            return true;
        }
        ReadWriteMutex::ScopedWriteLock lock(&project->mutex());
        try {
            if (choice <= 2) {
                long long const duration = 5 + static_cast<long long>(random() % 40);
                long long const start = static_cast<long long>(random() % timelineSpan);
                track->addMedia(mediaFor(*track, duration), start);
                return true;
            }
            shared_ptr<Media> const media = anyMedia(*track, random);
            if (!media)
                return false;
            if (choice <= 4)
                track->move(media, static_cast<long long>(random() % 61) - 30, false);
            else if (choice == 5)
                track->removeMedia(media, false);
            else
                levelOf(media)->addKeyFrame(static_cast<long long>(random() % 30), (random() % 100) / 100.0);
            return true;
        } catch (ZelmarMediaLibException const&) {
            // A collision or a place before 0: refused before any change, as it should be.
            return false;
        }
    }

    // The track as one reader sees it under one read lock: in time order, no overlap, each
    // media keyed by its start and owned by this track.
    void checkTrack(shared_ptr<Track const> const& track) {
        ReadWriteMutex::ScopedReadLock lock(&project->mutex());
        long long previousEnd = 0;
        int walked = 0;
        for (ConstIterator<Track::MediaMap> it = track->mediaBegin(), end = track->mediaEnd(); it != end; ++it) {
            Range<long long> const range = it->second->trackRange();
            if (range.start != it->first)
                findings.report("a media is keyed away from its start");
            if (range.start < previousEnd)
                findings.report("two medias overlap");
            if (it->second->parentTrack().lock() != track)
                findings.report("a media's track is not the track that holds it");
            previousEnd = range.end();
            ++walked;
        }
        if (walked != track->numMedias())
            findings.report("the walk and the count disagree");
    }

    void readRound(std::mt19937& random) {
        shared_ptr<Track const> const track = tracks[random() % tracks.size()];
        checkTrack(track);
        long long const time = static_cast<long long>(random() % timelineSpan);
        {
            ReadWriteMutex::ScopedReadLock lock(&project->mutex());
            Pair<shared_ptr<Media const> > const at = track->mediaAtTime(time);
            for (shared_ptr<Media const> const& media : {at.first, at.second}) {
                if (!media)
                    continue;
                Range<long long> const range = media->trackRange();
                if (time < range.start || time > range.end())
                    findings.report("mediaAtTime found a media that does not reach the time");
                shared_ptr<InterpolatingParam<double> const> const level = levelOf(media);
                double const value = level->valueAtTime(static_cast<double>(time));
                if (!std::isfinite(value))
                    findings.report("a level that is not a number");
                for (ParameterIterator<double> key = level->begin(), end = level->end(); key != end; ++key) {
                    if (key->time < 0)
                        findings.report("a keyframe before 0");
                }
                // A clone on a reader thread draws identity numbers and edits nothing shared.
                shared_ptr<Media> const copy = sharedClone(media);
                if (copy->trackRange() != media->trackRange())
                    findings.report("a clone that differs from its original");
            }
            Range<long long> const window(time, 50);
            shared_ptr<Track::MediaList> const found = track->mediasIntersectingRange(window, shared_ptr<Media const>());
            for (shared_ptr<Media const> const& media : *found) {
                if (media->trackRange().intersection(window).duration <= 0)
                    findings.report("mediasIntersectingRange found a media outside the range");
            }
        }
        // Trims its clones on this thread, with notifications of their own.
        shared_ptr<Track> const portion = track->copyPortion(Range<long long>(time, 80), nullptr);
        checkTrack(portion);
        std::ostringstream out;
        project->toXML(out);
        if (out.str().find("</Project>") == std::string::npos)
            findings.report("a project document without its end");
    }

    shared_ptr<Project> project = Project::create(30, 1);
    std::vector<shared_ptr<Track> > tracks;
    Findings findings;
};

TEST_F(ProjectStressTest, ReadersSeeConsistentTracksWhileOneWriterEdits) {
    std::atomic<int> readersDone(0);
    std::vector<std::thread> readers;
    for (int i = 0; i < readerThreads; ++i) {
        readers.emplace_back([this, i, &readersDone] {
            std::mt19937 random(1000u + static_cast<unsigned int>(i));
            for (int round = 0; round < readerRounds; ++round)
                readRound(random);
            ++readersDone;
        });
    }
    int edits = 0;
    std::thread writer([this, &edits] {
        std::mt19937 random(7u);
        for (int step = 0; step < writerSteps; ++step)
            edits += writeStep(random) ? 1 : 0;
    });
    writer.join();
    for (std::thread& reader : readers)
        reader.join();

    EXPECT_EQ(readerThreads, readersDone.load());
    EXPECT_GT(edits, writerSteps / 4) << "the writer must really edit";
    EXPECT_EQ(0, findings.count()) << findings.summary();
    EXPECT_EQ(0, project->mutex().readerCount());
    EXPECT_FALSE(project->mutex().hasWriter());
    for (shared_ptr<Track> const& track : tracks)
        checkTrack(track);
    EXPECT_EQ(0, findings.count()) << findings.summary();
}

}  // namespace
}  // namespace ZelmarMediaLib
