// Element layout to the byte, and the identity numbers that printed objects carry.
#include <ZelmarMediaLib/datatypes/IdentManager.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>

#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <vector>

namespace ZelmarMediaLib {
namespace {

class Leaf : public XMLable {
public:
    explicit Leaf(std::string attributes = std::string()) : attributes_(std::move(attributes)) {}
    void xmlName(Options& options) const override { *options.stream << "Leaf"; }
    void xmlAttributes(Options& options) const override { *options.stream << attributes_; }
    void xmlBody(Options&, int) const override {}

private:
    std::string attributes_;
};

class Branch : public XMLable {
public:
    void xmlName(Options& options) const override { *options.stream << "Branch"; }
    void xmlAttributes(Options& options) const override { *options.stream << "kind=\"oak\""; }
    void xmlBody(Options& options, int indent) const override {
        first.toXML(options, indent, "name=\"first\"");
        second.toXML(options, indent, "");
    }
    Leaf first{"size=\"1\""};
    Leaf second;
};

std::string ident(XMLable const& object) {
    return std::to_string(object.xmlIdent());
}

TEST(XMLableTest, ElementWithoutAttributesOpensWithTwoBlanksAndClosesOnItsOwnLine) {
    Leaf leaf;
    std::ostringstream out;
    leaf.toXML(out);
    EXPECT_EQ("<Leaf id=\"" + ident(leaf) + "\"  >\n</Leaf>\n", out.str());
}

TEST(XMLableTest, ChildrenStandOneLevelDeeperWithTheirExtraAttributes) {
    Branch branch;
    std::ostringstream out;
    XMLable::Options options(&out);
    branch.toXML(options, 2, "role=\"root\"");
    std::string const expected =
        "  <Branch id=\"" + ident(branch) + "\" kind=\"oak\" role=\"root\">\n"
        "   <Leaf id=\"" + ident(branch.first) + "\" size=\"1\" name=\"first\">\n"
        "   </Leaf>\n"
        "   <Leaf id=\"" + ident(branch.second) + "\"  >\n"
        "   </Leaf>\n"
        "  </Branch>\n";
    EXPECT_EQ(expected, out.str());
    EXPECT_TRUE(test::isWellFormedXml(out.str()));
}

TEST(XMLableTest, GenIndentIsOneBlankALevel) {
    EXPECT_EQ("", XMLable::genIndent(0));
    EXPECT_EQ("   ", XMLable::genIndent(3));
}

TEST(XMLableTest, CopyDrawsANewNumberAndAssignmentKeepsBoth) {
    Leaf a, b;
    unsigned int const aIdent = a.xmlIdent(), bIdent = b.xmlIdent();
    Leaf copy(a);
    EXPECT_NE(aIdent, copy.xmlIdent());
    a = b;
    EXPECT_EQ(aIdent, a.xmlIdent());
    EXPECT_EQ(bIdent, b.xmlIdent());
}

TEST(IdentManagerTest, MostRecentlyRetiredNumberComesBackFirst) {
    // Earlier tests in the same process leave retired numbers behind; holding far more objects
    // than they ever retired uses those up, so that the next numbers are fresh ones.
    std::vector<Leaf> drainRetired(20000);
    auto first = std::make_unique<Leaf>();
    auto second = std::make_unique<Leaf>();
    unsigned int const firstIdent = first->xmlIdent(), secondIdent = second->xmlIdent();
    EXPECT_EQ(firstIdent + 1, secondIdent) << "with nothing retired, numbers count up";
    first.reset();
    second.reset();
    Leaf third, fourth;
    EXPECT_EQ(secondIdent, third.xmlIdent());
    EXPECT_EQ(firstIdent, fourth.xmlIdent());
}

}  // namespace
}  // namespace ZelmarMediaLib
