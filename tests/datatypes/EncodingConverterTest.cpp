// The system's own text codec: its byte layout, where it is the identity, and where it grows.
#include <ZelmarMediaLib/datatypes/EncodingConverter.h>

#include <gtest/gtest.h>

namespace ZelmarMediaLib {
namespace {

typedef std::vector<unsigned int> Wide;

class EncodingConverterTest : public ::testing::Test {
protected:
    EncodingConverter const* converter = EncodingConverter::instance();

    Wide toWide(std::string const& bytes) const { return converter->unicodeNarrowToWide(bytes); }
    std::string toNarrow(Wide const& wide) const { return converter->unicodeWideToNarrow(wide); }
    std::string roundTrip(std::string const& bytes) const { return toNarrow(toWide(bytes)); }
};

TEST_F(EncodingConverterTest, StrayByteStopsTheWalkAndDropsTheRest) {
    EXPECT_EQ(Wide({65}), toWide("A\x80" "B"));
    EXPECT_EQ(Wide({65}), toWide(std::string("A\0B", 3)));
    EXPECT_EQ(Wide({65}), toWide("A\xFC" "B"));
}

TEST_F(EncodingConverterTest, LeadBytesTakeTheirFieldsWithSevenBitSteps) {
    EXPECT_EQ(Wide({2960}), toWide("\xD7\x90"));
    EXPECT_EQ(Wide({(5u << 13) | (1u << 7) | 2u}), toWide("\xE5\x81\x82"));
    EXPECT_EQ(Wide({(3u << 19) | (1u << 13) | (2u << 7) | 3u, 66}), toWide("\xF3\x81\x82\x83" "B"));
    EXPECT_EQ(Wide({(1u << 31) | (1u << 25) | 5u}), toWide("\xFF\x81\x80\x80\x80\x85"));
}

TEST_F(EncodingConverterTest, WideValuesTakeTheFirstFormThatHoldsThem) {
    EXPECT_EQ("\xE0\x97\x90", toNarrow({2960}));
    EXPECT_EQ("\x7F", toNarrow({127}));
    EXPECT_EQ("\xC1\x80", toNarrow({128})) << "bit 6 of the value is never stored";
    EXPECT_EQ("\xF0\x80\xA0\x80", toNarrow({4096}));
    EXPECT_EQ("\xFD\xBF\xBF\xBF\xBF\xBF", toNarrow({0xFFFFFFFFu}));
}

TEST_F(EncodingConverterTest, AsciiAndLowTwoByteFormsComeBackUnchanged) {
    std::string ascii;
    for (int c = 1; c < 128; ++c)
        ascii.push_back(static_cast<char>(c));
    EXPECT_EQ(ascii, roundTrip(ascii));
    // Lead 192 holds only values below 128, which come back as one byte.
    EXPECT_EQ("*", roundTrip("\xC0\xAA"));
    for (int lead = 193; lead <= 207; ++lead) {
        for (int tail = 128; tail <= 191; tail += 21) {
            std::string const bytes{static_cast<char>(lead), static_cast<char>(tail)};
            EXPECT_EQ(bytes, roundTrip(bytes)) << lead << ' ' << tail;
        }
    }
}

TEST_F(EncodingConverterTest, TextOutsideTheBandGrowsByAByteACharacter) {
    EXPECT_EQ("\xE0\x97\x90", roundTrip("\xD7\x90"));
    // A three-byte form above 4095 comes back with a four-byte lead; bytes after the lead are kept.
    EXPECT_EQ("\xF0\x85\x81\x82", roundTrip("\xE5\x81\x82"));
}

TEST_F(EncodingConverterTest, LeadAtTheEndOfTheTextTreatsMissingBytesAsAbsent) {
    EXPECT_EQ(Wide({65, 31u << 7}), toWide("A\xDF"));
    EXPECT_EQ(Wide({1u << 31}), toWide("\xFF"));
    EXPECT_EQ(Wide(), toWide(""));
}

}  // namespace
}  // namespace ZelmarMediaLib
