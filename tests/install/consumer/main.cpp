// A program built against an installed ZelmarMediaLib through its umbrella header.
#include <ZelmarMediaLib/ZelmarMediaLib.h>

#include <iostream>
#include <sstream>

int main() {
    namespace zml = ZelmarMediaLib;
    zml::shared_ptr<zml::Project> project = zml::Project::create(30, 1);
    project->execute(zml::NullCmd::create());
    project->undo();
    std::ostringstream document;
    project->toXML(document);
    if (document.str().find("<Project id=") == std::string::npos) {
        std::cerr << "unexpected document:\n" << document.str();
        return 1;
    }
    // Templates instantiated in the consumer against the installed headers.
    zml::InterpolatingParam<double> opacity(project, "opacity");
    opacity.addKeyFrame(0, 0.0);
    opacity.addKeyFrame(10, 1.0);
    if (opacity.valueAtTime(5.0) != 0.5) {
        std::cerr << "unexpected value " << opacity.valueAtTime(5.0) << '\n';
        return 1;
    }
    std::cout << "consumer ok\n";
    return 0;
}
