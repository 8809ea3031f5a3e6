// Attributes: their XML line, their notification on change, their clones, and ident strings.
#include <ZelmarMediaLib/datatypes/Point.h>
#include <ZelmarMediaLib/datatypes/Rect.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/parameters/Identified.h>
#include <ZelmarMediaLib/project/Project.h>

#include "support/CountingObserver.h"
#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ZelmarMediaLib {
namespace {

class AttributeTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);

    template <class T>
    std::string xmlOf(Attribute<T> const& attribute, std::string const& extra) {
        std::ostringstream out;
        XMLable::Options options(&out);
        attribute.toXML(options, 1, extra);
        return out.str();
    }
    template <class T>
    std::string id(Attribute<T> const& attribute) {
        return std::to_string(attribute.xmlIdent());
    }
};

TEST_F(AttributeTest, NumbersPrintInTheStreamDefaultFormat) {
    Attribute<double> rate(44100, project);
    EXPECT_EQ(" <Attribute id=\"" + id(rate) + "\" value=\"44100\" name=\"sampleRate\">\n </Attribute>\n",
              xmlOf(rate, "name=\"sampleRate\""));
    Attribute<unsigned int> depth(16, project);
    EXPECT_NE(std::string::npos, xmlOf(depth, "").find("value=\"16\" >"));
}

TEST_F(AttributeTest, StringValueIsEscaped) {
    Attribute<std::string> title("say \"hi\" & <go>", project);
    std::string const xml = xmlOf(title, "name=\"ident\"");
    EXPECT_NE(std::string::npos, xml.find("value=\"say &quot;hi&quot; &amp; &lt;go&gt;\""));
    EXPECT_TRUE(test::isWellFormedXml(xml));
}

TEST_F(AttributeTest, ValueTypesPrintTheirStreamForms) {
    Attribute<Point> anchor(Point(1, 2.5, -3), project);
    EXPECT_NE(std::string::npos, xmlOf(anchor, "").find("value=\"(1,2.5,-3)\""));
    Attribute<Rect<float> > area(Rect<float>(0, 1, 640, 480), project);
    EXPECT_NE(std::string::npos, xmlOf(area, "").find("value=\"(0,1,640,480)\""));
}

TEST_F(AttributeTest, SettingNotifiesAndCloneIsIndependent) {
    Attribute<double> volume(1.0, project);
    test::CountingObserver observer;
    volume.attach(&observer);
    volume.setValue(0.5);
    EXPECT_EQ(1, observer.calls);

    std::unique_ptr<Attribute<double> > copy(volume.clone());
    EXPECT_EQ(0.5, copy->value());
    EXPECT_NE(volume.xmlIdent(), copy->xmlIdent());
    EXPECT_EQ(0u, copy->numObservers());
    copy->setValue(2.0);
    EXPECT_EQ(0.5, volume.value());
    EXPECT_EQ(1, observer.calls);
}

TEST_F(AttributeTest, CloneOfAnAttributeWhoseProjectIsGoneRaises) {
    Attribute<double> orphan(1.0, project);
    project.reset();
    EXPECT_THROW(orphan.clone(), boost::bad_weak_ptr);
}

TEST_F(AttributeTest, CopiedIdentifiedHasItsOwnIdentString) {
    Identified original(project);
    original.identAttribute()->setValue("intro");
    Identified copy(original);
    EXPECT_EQ("intro", copy.identAttribute()->value());
    copy.identAttribute()->setValue("outro");
    EXPECT_EQ("intro", original.identAttribute()->value());
    Identified const& constView = original;
    EXPECT_EQ(original.identAttribute().get(), constView.identAttribute().get());
}

}  // namespace
}  // namespace ZelmarMediaLib
