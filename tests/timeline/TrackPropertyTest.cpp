// Random checked edits on a full track, some of its medias linked to partners on a second
// track: whatever sequence comes, the tracks stay keyed, sorted and free of overlaps, linked
// medias keep equal ranges, and every refused edit leaves both tracks printing the same.
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/AMFile.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>

#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace ZelmarMediaLib {
namespace {

using test::xml;

// Each key is its media's start, each media names this track as its parent, and no media
// reaches into the next.
void expectSound(Track const& track, std::size_t count) {
    Track::MediaMap const& medias = track.medias();
    ASSERT_EQ(count, medias.size());
    long long previousEnd = 0;
    bool first = true;
    for (Track::MediaMap::value_type const& entry : medias) {
        Range<long long> const range = entry.second->trackRange();
        ASSERT_EQ(entry.first, range.start) << "a key that no longer matches its media";
        ASSERT_GT(range.duration, 0);
        ASSERT_TRUE(first || previousEnd <= range.start) << "an overlap at " << range;
        ASSERT_EQ(&track, entry.second->parentTrack().lock().get());
        previousEnd = range.end();
        first = false;
    }
}

TEST(TrackPropertyTest, RandomCheckedEditsKeepTracksSoundAndRefusalsChangeNothing) {
    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<AudioTrack> track = boost::make_shared<AudioTrack>(project);
    shared_ptr<AudioTrack> partners = boost::make_shared<AudioTrack>(project);
    std::mt19937 random(20240611u);
    auto between = [&random](long long low, long long high) {
        return std::uniform_int_distribution<long long>(low, high)(random);
    };

    // Material from 5000 in a file of 20000 units: room for trims on both sides.
    auto make = [&](long long duration) {
        return boost::make_shared<AMFile>(Range<long long>(5000, duration), 48000u, 16u, project, "/a.wav", 0.0,
                                          20000.0, 0u, 0u);
    };
    std::vector<shared_ptr<AMFile> > medias;
    std::vector<std::pair<shared_ptr<AMFile>, shared_ptr<AMFile> > > linked;
    long long start = 0;
    for (int i = 0; i < 250; ++i) {
        long long const duration = between(5, 40);
        shared_ptr<AMFile> media = make(duration);
        track->addMedia(media, start);
        if (i % 5 == 0) {
            shared_ptr<AMFile> partner = make(duration);
            partners->addMedia(partner, start);
            media->link(partner);
            linked.emplace_back(media, partner);
        }
        medias.push_back(media);
        start += duration + between(0, 30);
    }

    std::string printed = xml(*track) + xml(*partners);
    int refused = 0;
    for (int step = 0; step < 1000; ++step) {
        shared_ptr<AMFile> const& media = medias[static_cast<std::size_t>(between(0, 249))];
        long long const offset = between(-60, 60);
        int op = static_cast<int>(between(0, 3));
        // The stretch forecast leaves the current scalar out, so for a media below real time
        // it is too short and the check can pass an overlap (pinned in TrackTest); such
        // stretches are left out of the property.
        if (op == 3 && media->scalar() < 1.0)
            op = 0;
        try {
            switch (op) {
                case 0:
                    track->move(media, offset, true);
                    break;
                case 1:
                    track->trimStart(media, offset, true);
                    break;
                case 2:
                    track->trimEnd(media, offset, true);
                    break;
                default:
                    track->stretch(media, std::uniform_real_distribution<double>(0.25, 3.0)(random), true);
                    break;
            }
            printed = xml(*track) + xml(*partners);
        } catch (ZelmarMediaLibException const&) {
            ++refused;
            ASSERT_EQ(printed, xml(*track) + xml(*partners)) << "a refused edit changed something at step " << step;
        }
        expectSound(*track, medias.size());
        expectSound(*partners, linked.size());
        if (HasFatalFailure())
            FAIL() << "at step " << step << " op " << op << " scalar " << media->scalar();
        for (auto const& pair : linked)
            ASSERT_EQ(pair.first->trackRange(), pair.second->trackRange()) << "at step " << step;
    }
    // Both outcomes must be well represented for the property to say anything.
    EXPECT_GT(refused, 100);
    EXPECT_LT(refused, 900);
}

}  // namespace
}  // namespace ZelmarMediaLib
