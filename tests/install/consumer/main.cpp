// A program built against an installed ZelmarMediaLib through its umbrella header, with strict
// warnings. It reaches into each layer, so that a class or function the library forgot to export
// fails its link, and a typeinfo it forgot fails a catch or a cast at run time.
#include <ZelmarMediaLib/ZelmarMediaLib.h>

#include <iostream>
#include <sstream>
#include <string>

namespace zml = ZelmarMediaLib;

namespace {

int failures = 0;

void check(bool condition, std::string const& what) {
    if (!condition) {
        std::cerr << "consumer: " << what << '\n';
        ++failures;
    }
}

}  // namespace

int main() {
    check(zml::version() == ZML_EXPECTED_VERSION, "version() is " + zml::version());

    zml::shared_ptr<zml::Project> const project = zml::Project::create(30, 1);
    check(project->execute(zml::NullCmd::create()), "a NullCmd was not executed");
    project->undo();
    std::ostringstream document;
    project->toXML(document);
    check(document.str().find("<Project id=") != std::string::npos, "unexpected document:\n" + document.str());

    // Queries of the timeline, and value types from the library.
    zml::shared_ptr<zml::Timeline> const timeline = project->timeline();
    check(timeline->numTracks() == 0 && timeline->duration() == 0, "a new timeline is not empty");
    check(timeline->allMedias()->empty(), "a new timeline has medias");
    zml::Range<long long> const range(10, 5);
    zml::Rect<int> const rect(1, 2, 3, 4);
    zml::Point const point(1.0, 2.0, 3.0);
    std::ostringstream text;
    text << point << ' ' << zml::AudioPosition(0.5f, 0.25f, 1.0f);
    check(range.end() == 15 && rect.width == 3 && !text.str().empty(), "value types");

    // A library exception, caught by its own class and by the family's base class.
    try {
        project->sourceBin()->loadFile("/nonexistent/zml-consumer.mov");
        check(false, "loading a missing file did not throw");
    } catch (zml::IOException const& error) {
        check(std::string(error.what()).find("zml-consumer.mov") != std::string::npos, error.what());
    }
    try {
        project->sourceBin()->loadFile("/nonexistent/zml-consumer.mov");
    } catch (zml::ZelmarMediaLibException const&) {
    }

    // A class template that the library compiles and exports, used directly and through the
    // library's base classes.
    zml::shared_ptr<zml::InterpolatingParam<double> > const opacity =
        boost::make_shared<zml::InterpolatingParam<double> >(project, "opacity");
    opacity->addKeyFrame(0, 0.0);
    opacity->addKeyFrame(10, 1.0);
    check(opacity->valueAtTime(5.0) == 0.5, "interpolated value " + std::to_string(opacity->valueAtTime(5.0)));
    zml::shared_ptr<zml::ParameterInterface> const general = opacity;
    check(zml::dynamic_pointer_cast<zml::InterpolatingParam<double> >(general) == opacity,
          "a cast back from ParameterInterface failed");

    if (failures == 0)
        std::cout << "consumer ok\n";
    return failures == 0 ? 0 : 1;
}
