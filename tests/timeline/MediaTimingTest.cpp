// A media's timing: trims, stretches and their rounding against the limits of the material,
// time conversions, edge zones, links, copies and XML.
#include <ZelmarMediaLib/edgemods/EdgeModFunc.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/AMFile.h>
#include <ZelmarMediaLib/timeline/StaticEditor.h>

#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <sstream>

namespace ZelmarMediaLib {
namespace {

// Scales the value by the fraction, as a fade in does.
class ScaleByFraction : public EdgeModFunc {
public:
    ScaleByFraction* clone() const override { return new ScaleByFraction(*this); }
    double execute(double fraction, double value) const override { return fraction * value; }
    std::string ident() const override { return "ScaleByFraction"; }
    void setAuxInfo(AuxEdgeModInfo const&) override {}
    void xmlName(Options& options) const override { *options.stream << ident(); }
    void xmlAttributes(Options&) const override {}
    void xmlBody(Options&, int) const override {}
};

class MediaTimingTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);

    // Material [start, start + duration) of a file whose limits are given.
    shared_ptr<AMFile> audio(long long start, long long duration, double startLimit, double durationLimit) {
        return boost::make_shared<AMFile>(Range<long long>(start, duration), 48000u, 16u, project, "/a.wav",
                                          startLimit, durationLimit, 0u, 0u);
    }

    template <class Call>
    void expectRefusedTrim(Call call, shared_ptr<AMFile> const& media, std::string const& text, long long offset) {
        Range<long long> const track = media->trackRange();
        Range<double> const material = media->mediaRange();
        try {
            call();
            FAIL() << "expected a refusal";
        } catch (ValueException<long long> const& error) {
            EXPECT_EQ(text, error.what());
            EXPECT_EQ(offset, error.value());
        }
        EXPECT_EQ(track, media->trackRange());
        EXPECT_EQ(material, media->mediaRange());
    }
};

TEST(MediaEditorClosenessTest, TruncationDecidesBeforeTheTolerance) {
    EXPECT_TRUE(MediaEditor::almostNumber(0.0, 0.9, 1e-8));
    EXPECT_FALSE(MediaEditor::almostNumber(0.0, 1.0, 1e-8));
    EXPECT_TRUE(MediaEditor::almostNumber(5.0, 4.2, 1e-8));
    // Beyond 32 bits the difference becomes the most negative integer, which stays negative.
    EXPECT_TRUE(MediaEditor::almostNumber(1e12, 0.0, 1e-8));
    EXPECT_EQ(100.0, MediaEditor::roundIfClose(100.0, 100.7, 1e-8));
    EXPECT_EQ(101.0, MediaEditor::roundIfClose(100.0, 101.0, 1e-8));
    EXPECT_EQ(3.0, MediaEditor::roundHalfUp(2.5));
    EXPECT_EQ(2.0, MediaEditor::roundHalfUp(2.49));
    EXPECT_EQ(-3.0, MediaEditor::roundHalfUp(-2.5)) << "a negative fraction always goes down";
}

TEST_F(MediaTimingTest, TrimLeavingUnderOneUnitOfMaterialIsRefused) {
    shared_ptr<AMFile> media = audio(0, 100, 0.0, 100.0);
    EXPECT_EQ(2.5, media->stretch(2.5));
    EXPECT_EQ(Range<long long>(0, 250), media->trackRange());
    EXPECT_FALSE(media->validTrimEnd(249)) << "0.4 units of material count as nothing";
    expectRefusedTrim([&] { media->trimEnd(249); }, media, "invalid media trim end offset", 249);
    EXPECT_TRUE(media->validTrimEnd(247));
}

TEST_F(MediaTimingTest, DurationWithinOneUnitOfTheLimitSnapsToIt) {
    shared_ptr<AMFile> media = audio(0, 100, 0.0, 100.0);
    media->stretch(2.0);
    EXPECT_TRUE(media->validTrimEnd(-1));
    media->trimEnd(-1);
    EXPECT_EQ(Range<long long>(0, 201), media->trackRange());
    EXPECT_EQ(100.0, media->mediaRange().duration) << "100.5 snaps to the limit";

    shared_ptr<AMFile> real = audio(0, 100, 0.0, 100.0);
    expectRefusedTrim([&] { real->trimEnd(-1); }, real, "invalid media trim end offset", -1);
}

TEST_F(MediaTimingTest, StretchToOneReturnsToRealTimeWithARoundedDuration) {
    shared_ptr<AMFile> media = audio(0, 100, 0.0, 1000.0);
    media->stretch(2.0);
    media->trimEnd(-1);
    EXPECT_EQ(100.5, media->mediaRange().duration);
    EXPECT_EQ(1.0, media->stretch(1.0));
    EXPECT_EQ(Range<long long>(0, 101), media->trackRange());
    EXPECT_EQ(100.5, media->mediaRange().duration) << "a stretch never touches the material";
}

TEST_F(MediaTimingTest, StretchToNothingIsRefusedWithTheWantedSpeed) {
    shared_ptr<AMFile> media = audio(0, 100, 0.0, 1000.0);
    EXPECT_EQ(Range<long long>(0, 0), media->trackRangeWithStretch(0.0));
    try {
        media->stretch(0.0);
        FAIL();
    } catch (ValueException<double> const& error) {
        EXPECT_STREQ("invalid duration after media stretch (<=0)", error.what());
        EXPECT_EQ(0.0, error.value());
    }
    EXPECT_EQ(Range<long long>(0, 100), media->trackRange());
    EXPECT_EQ(1.0, media->scalar());
}

TEST_F(MediaTimingTest, TrimStartMovesTheMaterialAndSnapsAStartUnderOneToZero) {
    shared_ptr<AMFile> media = audio(0, 100, 0.0, 1000.0);
    media->stretch(2.5);
    media->trimStart(2);
    EXPECT_EQ(Range<long long>(2, 248), media->trackRange());
    EXPECT_EQ(0.0, media->mediaRange().start) << "0.8 snaps to 0";
    EXPECT_DOUBLE_EQ(99.2, media->mediaRange().duration);
    media->trimStart(50);
    EXPECT_DOUBLE_EQ(20.0, media->mediaRange().start);
    EXPECT_DOUBLE_EQ(79.2, media->mediaRange().duration);

    // Near the limit the new duration snaps to it, and the material start then stays.
    shared_ptr<AMFile> full = audio(0, 100, 0.0, 100.0);
    full->stretch(2.5);
    full->trimStart(2);
    EXPECT_EQ(Range<double>(0.0, 100.0), full->mediaRange());
}

TEST_F(MediaTimingTest, TrimStartBeforeTheMaterialOrTheTrackIsRefused) {
    shared_ptr<AMFile> media = audio(10, 50, 0.0, 100.0);
    EXPECT_FALSE(media->validTrimStart(-1)) << "the track start would be negative";
    media->setTrackStart(100);
    EXPECT_TRUE(media->validTrimStart(-10));
    expectRefusedTrim([&] { media->trimStart(-11); }, media, "invalid media trim start offset", -11);
    media->trimStart(-10);
    EXPECT_EQ(Range<double>(0.0, 60.0), media->mediaRange());
    EXPECT_EQ(0, media->trimStartLimit());
    EXPECT_EQ(-40, media->trimEndLimit());
}

TEST_F(MediaTimingTest, StaticEditorKnowsNoLimitsAndSumsStartTrims) {
    shared_ptr<AMFile> owner = audio(0, 10, 0.0, 10.0);
    long long sum = 0;
    StaticEditor editor(owner.get(), &sum);
    Range<long long> track(5, 10);
    Range<double> material(0.0, 1.0);
    EXPECT_TRUE(editor.validTrimStart(1000, track, material));
    editor.trimStart(3, track, material);
    editor.trimStart(-1, track, material);
    EXPECT_EQ(Range<long long>(7, 8), track);
    EXPECT_EQ(2, sum);
    editor.trimEnd(20, track, material);
    EXPECT_EQ(-12, track.duration) << "only the track's checks stop it";
    EXPECT_EQ(Range<double>(0.0, 1.0), material);
    EXPECT_EQ(LLONG_MIN, editor.trimEndLimit(track, material, 1.0, 1.0));
}

TEST_F(MediaTimingTest, TimeConversionsFollowTheMaterial) {
    shared_ptr<AMFile> media = audio(40, 100, 0.0, 1000.0);
    media->setTrackStart(1000);
    media->stretch(2.0);
    EXPECT_EQ(45.0, media->toParameterTime(10.0));
    EXPECT_EQ(10.0, media->fromParameterTime(45.0));
    EXPECT_EQ(-990, media->fromGlobalToParametricTime(10));
    // The global time is divided before the track start comes off.
    EXPECT_EQ(static_cast<long long>(1200.0 / 2.0 + 40.0 - 1000.0), media->globalTimeToEffectTime(1200));
}

TEST_F(MediaTimingTest, EdgeZonesNeverOverlapWhateverIsStored) {
    EXPECT_EQ(7, MediaImpl::calcEdgeLength(10, 10, 15));
    EXPECT_EQ(9, MediaImpl::calcEdgeLength(10, 3, 12));
    EXPECT_EQ(3, MediaImpl::calcEdgeLength(3, 10, 12));
    EXPECT_EQ(30, MediaImpl::calcEdgeLength(30, 30, 100));
    EXPECT_EQ(50, MediaImpl::calcEdgeLength(70, 70, 100));
    EXPECT_EQ(90, MediaImpl::calcEdgeLength(95, 10, 100));
    EXPECT_EQ(5, MediaImpl::calcEdgeLength(10, 0, 5));

    shared_ptr<AMFile> media = audio(0, 15, 0.0, 100.0);
    media->setLeftEdgeModificationLength(10);
    media->setRightEdgeModificationLength(10);
    EXPECT_EQ(7, media->leftEdgeModificationLength());
    EXPECT_EQ(10, media->storedLeftEdgeModificationLength()) << "the stored length stays for a media that grows";
}

TEST_F(MediaTimingTest, EdgeModificationsActOnlyInsideTheirZones) {
    shared_ptr<AMFile> media = audio(0, 100, 0.0, 100.0);
    shared_ptr<InterpolatingParam<double> > volume = media->volume();
    media->setLeftEdgeModificationLength(10);
    media->setRightEdgeModificationLength(20);
    media->addLeftEdgeModification(EdgeModification(volume, ScaleByFraction()));
    media->addRightEdgeModification(EdgeModification(volume, ScaleByFraction()));
    EXPECT_EQ(0.5, media->doubleParametricTransform(volume, 1.0, 5.0));
    EXPECT_EQ(1.0, media->doubleParametricTransform(volume, 1.0, 10.0)) << "at L the left zone has ended";
    EXPECT_EQ(1.0, media->doubleParametricTransform(volume, 1.0, 80.0)) << "at D - R the right zone has not begun";
    EXPECT_EQ(0.25, media->doubleParametricTransform(volume, 1.0, 85.0));
    shared_ptr<InterpolatingParam<double> > other = boost::make_shared<InterpolatingParam<double> >(project, "x");
    EXPECT_EQ(1.0, media->doubleParametricTransform(other, 1.0, 5.0)) << "another parameter passes unchanged";
    volume->changeKeyFrame(0, 0.8);
    EXPECT_DOUBLE_EQ(0.4, media->transformedDoubleParameterValueAtTime(volume, 5.0));
}

TEST_F(MediaTimingTest, OneModificationPerParameterAndSide) {
    shared_ptr<AMFile> media = audio(0, 100, 0.0, 100.0);
    EdgeModification const fade(media->volume(), ScaleByFraction());
    media->addLeftEdgeModification(fade);
    media->addRightEdgeModification(fade);
    try {
        media->addLeftEdgeModification(fade);
        FAIL();
    } catch (ZelmarMediaLibException const& error) {
        EXPECT_STREQ("trying to add an edge mod for a parameter already with a mod", error.what());
    }
    EXPECT_EQ(1u, media->leftEdgeModifications().size());
    EXPECT_EQ(media->volume(), media->removeLeftEdgeModification(media->volume()).parameter());
    try {
        media->removeLeftEdgeModification(media->volume());
        FAIL();
    } catch (ZelmarMediaLibException const& error) {
        EXPECT_STREQ("trying to remove non existant left edge mod", error.what());
    }
    EXPECT_THROW(media->removeRightEdgeModification(shared_ptr<Parameter<double> const>()), ZelmarMediaLibException);
}

TEST_F(MediaTimingTest, LinkMakesACliqueAndAddLinkTestsTheRanges) {
    shared_ptr<AMFile> a = audio(0, 100, 0.0, 100.0), b = audio(0, 100, 0.0, 100.0), c = audio(0, 100, 0.0, 100.0);
    a->link(b);
    c->link(a);
    EXPECT_TRUE(b->isLinkedWith(c));
    EXPECT_TRUE(c->isLinkedWith(b));
    EXPECT_EQ(2, std::distance(a->linkBegin(), a->linkEnd()));

    shared_ptr<AMFile> moved = audio(0, 100, 0.0, 100.0);
    moved->setTrackStart(5);
    EXPECT_FALSE(a->isLinkableWith(moved));
    EXPECT_FALSE(a->isLinkableWith(b)) << "already linked";
    EXPECT_FALSE(a->isLinkableWith(a));
    try {
        a->addLink(moved);
        FAIL();
    } catch (ValueException<shared_ptr<Media const> > const& error) {
        EXPECT_STREQ("unable to link media", error.what());
        EXPECT_EQ(moved, error.value());
    }
    EXPECT_FALSE(a->isLinkedWith(moved));
}

TEST_F(MediaTimingTest, RemoveLinkRefusesItselfStrangersAndDriftedRanges) {
    shared_ptr<AMFile> a = audio(0, 100, 0.0, 100.0), b = audio(0, 100, 0.0, 100.0), c = audio(0, 100, 0.0, 100.0);
    a->link(b);
    auto expectText = [&](shared_ptr<Media> const& other, char const* text) {
        try {
            a->removeLink(other);
            FAIL() << text;
        } catch (ValueException<shared_ptr<Media> > const& error) {
            EXPECT_STREQ(text, error.what());
        }
    };
    expectText(a, "unable to remove media link with itself");
    expectText(c, "unable to remove media link where none exists");
    b->setTrackStart(9);
    expectText(b, "unable to remove media link, somehow the track ranges aren't equal");
    b->setTrackStart(0);
    a->removeLink(b);
    EXPECT_FALSE(a->isLinkedWith(b));
    EXPECT_TRUE(b->isLinkedWith(a)) << "one direction only";
}

TEST_F(MediaTimingTest, CloneKeepsTimingEdgesAndOwnModificationsButNoParentOrLinks) {
    shared_ptr<AMFile> media = audio(10, 100, 0.0, 1000.0), partner = audio(10, 100, 0.0, 1000.0);
    media->link(partner);
    media->stretch(2.0);
    media->setLeftEdgeModificationLength(12);
    media->addLeftEdgeModification(EdgeModification(media->volume(), ScaleByFraction()));
    media->gain()->setValue(0.5);
    shared_ptr<Media> copy = sharedClone(shared_ptr<Media const>(media));
    EXPECT_EQ(media->trackRange(), copy->trackRange());
    EXPECT_EQ(2.0, copy->scalar());
    EXPECT_EQ(12, copy->leftEdgeModificationLength());
    // clone() rebuilds the modifications on the copy's own parameters.
    ASSERT_EQ(1u, copy->leftEdgeModifications().size());
    EXPECT_EQ(dynamic_pointer_cast<AMFile>(copy)->volume(), copy->leftEdgeModifications().front().parameter());
    EXPECT_EQ(copy->linkBegin(), copy->linkEnd());
    shared_ptr<AMFile> typed = dynamic_pointer_cast<AMFile>(copy);
    EXPECT_EQ(0.5, typed->gain()->value());
    typed->volume()->changeKeyFrame(0, 0.1);
    EXPECT_EQ(1.0, media->volume()->valueAtTime(0.0));
}

TEST_F(MediaTimingTest, AudioFileXmlListsTimingParametersAttributesLinksAndEdges) {
    shared_ptr<AMFile> media = boost::make_shared<AMFile>(Range<long long>(5, 60), 44100u, 24u, project, "/a.wav",
                                                          0.0, 100.0, 1u, AMFile::ChannelSet{0, 1});
    shared_ptr<AMFile> partner = audio(5, 60, 0.0, 100.0);
    media->link(partner);
    media->setTrackStart(30);
    std::ostringstream out;
    XMLable::Options options(&out);
    media->toXML(options, 0, "");
    auto id = [](XMLable const& object) { return std::to_string(object.xmlIdent()); };
    std::string const volumeId = id(*media->volume());
    std::string const laneId = id(*media->volume()->interpolaterParam());
    std::string const expected =
        "<AMFile id=\"" + id(*media) +
        "\" start=\"30\" duration=\"60\" scalar=\"1\" mediaStart=\"5\" mediaDuration=\"60\" trackNumber=\"1\" "
        "channelNumber=\"0,1\" >\n"
        " <Parameters>\n"
        "  <InterpolatingParam id=\"" + volumeId + "\"  name=\"volume\">\n"
        "   <Parameters>\n"
        "    <Parameter id=\"" + laneId + "\"  name=\"interpolater\">\n"
        "     <Keyframes>\n"
        "      <Keyframe time=\"0\" value=\"linr\"/>\n"
        "     </Keyframes>\n"
        "    </Parameter>\n"
        "   </Parameters>\n"
        "   <Keyframes>\n"
        "    <Keyframe time=\"0\" value=\"1\"/>\n"
        "   </Keyframes>\n"
        "  </InterpolatingParam>\n"
        " </Parameters>\n"
        " <Attributes>\n"
        "  <Attribute id=\"" + id(*media->identAttribute()) + "\" value=\"\" name=\"ident\">\n"
        "  </Attribute>\n"
        "  <Attribute id=\"" + id(*media->sampleRate()) + "\" value=\"44100\" name=\"sampleRate\">\n"
        "  </Attribute>\n"
        "  <Attribute id=\"" + id(*media->bitDepth()) + "\" value=\"24\" name=\"bitDepth\">\n"
        "  </Attribute>\n"
        "  <Attribute id=\"" + id(*media->gain()) + "\" value=\"1\" name=\"gain\">\n"
        "  </Attribute>\n"
        " </Attributes>\n"
        " <LinkedMedia>\n"
        "  <MediaLink link=\"" + id(*partner) + "\"/>\n"
        " </LinkedMedia>\n"
        " <LeftEdgeMods length=\"0\">\n"
        " </LeftEdgeMods>\n"
        " <RightEdgeMods length=\"0\">\n"
        " </RightEdgeMods>\n"
        "</AMFile>\n";
    EXPECT_EQ(expected, out.str());
    EXPECT_TRUE(test::isWellFormedXml(out.str()));
}

TEST_F(MediaTimingTest, ChannelsMergeSplitAndPrint) {
    shared_ptr<AMFile const> left = audio(0, 10, 0.0, 10.0);
    shared_ptr<AMFile> right = boost::make_shared<AMFile>(Range<long long>(0, 10), 48000u, 16u, project, "/a.wav",
                                                          0.0, 10.0, 0u, 1u);
    AMFile merged(std::set<shared_ptr<AMFile const> >{left, right});
    EXPECT_EQ(AMFile::ChannelSet({0, 1}), merged.channels());
    shared_ptr<AMFile> shared = boost::make_shared<AMFile>(merged);
    shared_ptr<std::vector<shared_ptr<AMFile> > > split = shared->splitChannels();
    ASSERT_EQ(2u, split->size());
    EXPECT_EQ(AMFile::ChannelSet({1}), (*split)[1]->channels());
    EXPECT_THROW(AMFile(left, 3), ZelmarMediaLibException);

    shared_ptr<AMFile> otherTrack = boost::make_shared<AMFile>(Range<long long>(0, 10), 48000u, 16u, project,
                                                               "/a.wav", 0.0, 10.0, 2u, 1u);
    try {
        AMFile refused(std::set<shared_ptr<AMFile const> >{left, otherTrack});
        FAIL();
    } catch (ZelmarMediaLibException const& error) {
        EXPECT_STREQ("trying to merge amfiles with different tracks", error.what());
    }
    std::istringstream text("2,0,7 rest");
    EXPECT_EQ(AMFile::ChannelSet({0, 2, 7}), AMFile::readChannels(text));
}

}  // namespace
}  // namespace ZelmarMediaLib
