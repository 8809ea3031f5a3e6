// Transitions between medias: who touches whom on a track, and how a transition writes itself.
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/AudioTrack.h>
#include <ZelmarMediaLib/timeline/AudioTransition.h>
#include <ZelmarMediaLib/timeline/ImageTransition.h>
#include <ZelmarMediaLib/timeline/VMFile.h>
#include <ZelmarMediaLib/timeline/VisualTrack.h>

#include "support/PlainEffect.h"
#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace ZelmarMediaLib {
namespace {

using test::xml;

// A track of  [A 0..100)[X 100..130)[B 130..230) [Y 231..261)[Z 261..271)
// where X, Y and Z are transitions: Y stands one unit after B, and Z butts against Y.
class TransitionNeighbourTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<VisualTrack> track = boost::make_shared<VisualTrack>(project);
    shared_ptr<VMFile> a = media(), b = media();
    shared_ptr<ImageTransition> x = boost::make_shared<ImageTransition>(30, project);
    shared_ptr<ImageTransition> y = boost::make_shared<ImageTransition>(30, project);
    shared_ptr<ImageTransition> z = boost::make_shared<ImageTransition>(10, project);

    void SetUp() override {
        track->addMedia(a, 0);
        track->addMedia(x, 100);
        track->addMedia(b, 130);
        track->addMedia(y, 231);
        track->addMedia(z, 261);
    }

    shared_ptr<VMFile> media(long long duration = 100) {
        return boost::make_shared<VMFile>(Range<long long>(0, duration), Rect<float>(0, 0, 64, 48), project, "/m.mov", 0.0,
                                          1000.0, 0u);
    }
};

TEST_F(TransitionNeighbourTest, ButtedItemsAreNeighboursAndAGapOfOneUnitIsNot) {
    EXPECT_EQ(x, track->rightTransition(a));
    EXPECT_EQ(x, track->leftTransition(b));
    EXPECT_EQ(a, track->leftOfTransition(x));
    EXPECT_EQ(b, track->rightOfTransition(x));

    EXPECT_FALSE(track->rightTransition(b)) << "Y stands one unit after B";
    EXPECT_FALSE(track->leftOfTransition(y));
    EXPECT_FALSE(track->leftTransition(a)) << "nothing stands before the first media";
    EXPECT_FALSE(track->rightOfTransition(z)) << "nothing stands after the last";
}

TEST_F(TransitionNeighbourTest, OnlyTransitionsCountAsTransitionsButAnyMediaIsATransitionsNeighbour) {
    shared_ptr<VMFile> c = media();
    track->addMedia(c, 271);
    EXPECT_EQ(y, track->leftOfTransition(z)) << "a transition next to a transition is its neighbour";
    EXPECT_EQ(z, track->rightTransition(y));
    EXPECT_EQ(c, track->rightOfTransition(z));
    EXPECT_EQ(z, track->leftTransition(c));

    track->removeMedia(x, false);
    track->addMedia(media(30), 100);
    EXPECT_FALSE(track->leftTransition(b)) << "a plain media touching B is no transition";
    EXPECT_FALSE(track->rightTransition(a));
}

TEST_F(TransitionNeighbourTest, TheItemsOwnTrackIsSearchedWhateverTrackIsAsked) {
    shared_ptr<VisualTrack> other = boost::make_shared<VisualTrack>(project);
    EXPECT_EQ(x, other->leftTransition(b));
    EXPECT_EQ(a, other->leftOfTransition(x));

    shared_ptr<ImageTransition> loose = boost::make_shared<ImageTransition>(30, project);
    EXPECT_FALSE(track->leftOfTransition(loose)) << "an item without a track has no neighbours";
    track->removeMedia(b, false);
    EXPECT_FALSE(track->leftTransition(b)) << "taken off, B has no track any more";

    shared_ptr<VMFile> orphan = media();
    {
        shared_ptr<VisualTrack> doomed = boost::make_shared<VisualTrack>(project);
        doomed->addMedia(orphan, 0);
    }
    EXPECT_THROW(track->leftTransition(orphan), boost::bad_weak_ptr);
    EXPECT_THROW(track->leftTransition(shared_ptr<Media const>()), ZelmarMediaLibException);
}

TEST(TransitionXmlTest, TransitionsWriteTheirPlaceAndTheirEffectButNoPlacement) {
    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<Effect> wipe = boost::make_shared<test::PlainEffect>("Wipe", project);
    shared_ptr<ImageTransition> picture = boost::make_shared<ImageTransition>(30, wipe, project);
    shared_ptr<VisualTrack> visual = boost::make_shared<VisualTrack>(project);
    visual->addMedia(picture, 100);
    std::string const pictureXml = xml(*picture);
    EXPECT_EQ(0u, pictureXml.find("<ImageTransition id=\"" + std::to_string(picture->xmlIdent()) +
                                  "\" start=\"100\" duration=\"30\" >\n"))
        << pictureXml;
    EXPECT_EQ(std::string::npos, pictureXml.find("translation")) << "a transition places nothing";
    EXPECT_NE(std::string::npos, pictureXml.find("name=\"Wipe\""));
    EXPECT_TRUE(test::isWellFormedXml(pictureXml));

    shared_ptr<AudioTransition> sound = boost::make_shared<AudioTransition>(20, wipe, project);
    boost::make_shared<AudioTrack>(project)->addMedia(sound, 40);
    std::string const soundXml = xml(*sound);
    EXPECT_EQ(0u, soundXml.find("<AudioTransition id=\"" + std::to_string(sound->xmlIdent()) +
                                "\" start=\"40\" duration=\"20\" >\n"));
    std::string const effectBlock = " <Effect>\n  <CompositeEffect id=\"" + std::to_string(wipe->xmlIdent()) + "\" name=\"Wipe\" >\n";
    EXPECT_NE(std::string::npos, soundXml.find(effectBlock)) << soundXml;
    EXPECT_EQ(soundXml.size() - std::string(" </Effect>\n</AudioTransition>\n").size(),
              soundXml.rfind(" </Effect>\n</AudioTransition>\n"));
    EXPECT_TRUE(test::isWellFormedXml(soundXml));
}

}  // namespace
}  // namespace ZelmarMediaLib
