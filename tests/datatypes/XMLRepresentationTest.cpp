// Values as attribute text: default stream formats, the escape table, relative paths.
#include <ZelmarMediaLib/datatypes/Range.h>
#include <ZelmarMediaLib/datatypes/XMLRepresentation.h>

#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <iomanip>

namespace ZelmarMediaLib {
namespace {

TEST(XMLRepresentationTest, NumbersUseTheDefaultFormatWhateverTheDocumentStreamSays) {
    EXPECT_EQ("44100", xml_representation(44100.0));
    EXPECT_EQ("0.333333", xml_representation(1.0 / 3.0));
    EXPECT_EQ("1.23457e+06", xml_representation(1234567.0));
    EXPECT_EQ("0.1", xml_representation(0.1f)) << "a float goes out as a double, rounded to six digits";
    EXPECT_EQ("-9223372036854775808", xml_representation(static_cast<long long>(-9223372036854775807LL - 1)));
    EXPECT_EQ("4294967295", xml_representation(4294967295u));
    EXPECT_EQ("(5,-2)", xml_representation(Range<long long>(5, -2)));
    EXPECT_EQ("30000/1001", xml_representation(rational<unsigned long>(30000, 1001)));
    EXPECT_EQ("30/1", xml_representation(rational<unsigned long>(60, 2)));
}

TEST(XMLRepresentationTest, EscapesInOrderWithAmpersandFirst) {
    EXPECT_EQ("a &amp; b", xml_representation(std::string("a & b")));
    EXPECT_EQ("&amp;lt;", xml_representation(std::string("&lt;"))) << "an entity's ampersand is escaped once";
    EXPECT_EQ("&quot;&apos;&lt;&gt;", xml_representation(std::string("\"'<>")));
    EXPECT_EQ("one&#xa;two&#xD;three\tfour", xml_representation(std::string("one\ntwo\rthree\tfour")));
    std::string mutableText = "x<y";
    EXPECT_EQ("x&lt;y", xml_representation(mutableText));
    EXPECT_EQ("", xml_representation(std::string()));
}

TEST(XMLRepresentationTest, EscapedTextIsAWellFormedAttributeValue) {
    // Every character that XML allows in text, the escapable ones among them.
    std::string nasty = "\t\n\r";
    for (int c = 32; c < 128; ++c)
        nasty.push_back(static_cast<char>(c));
    std::string const document = "<a v=\"" + xml_representation(nasty) + "\"/>";
    std::string error;
    EXPECT_TRUE(test::isWellFormedXml(document, &error)) << error;
}

TEST(XMLRepresentationTest, TextOutsideTheCodecBandChangesItsBytes) {
    // A two-byte form with a lead of 208 or more comes back as three bytes.
    EXPECT_EQ("\xE0\x97\x90", xml_representation(std::string("\xD7\x90")));
    // ASCII and low two-byte forms pass unchanged.
    EXPECT_EQ("caf\xC3\xA9", xml_representation(std::string("caf\xC3\xA9")));
}

TEST(XMLRepresentationTest, PathsBecomeRelativeOnlyWithABaseAndAnAbsolutePath) {
    std::ostringstream out;
    XMLable::Options plain(&out);
    XMLable::Options based(&out, "/a/b");
    EXPECT_EQ("/a/b/c", convertToRelativeIfNecessary(plain, "/a/b/c"));
    EXPECT_EQ("./c", convertToRelativeIfNecessary(based, "/a/b/c"));
    EXPECT_EQ("x/c", convertToRelativeIfNecessary(based, "x/c"));
    EXPECT_EQ("", convertToRelativeIfNecessary(based, ""));
}

}  // namespace
}  // namespace ZelmarMediaLib
