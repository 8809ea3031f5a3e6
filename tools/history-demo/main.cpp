// Creates a project, runs, combines, undoes and redoes a few commands, and prints the
// project document and what its history holds.
#include <ZelmarMediaLib/ZelmarMediaLib.h>

#include <iostream>

namespace zml = ZelmarMediaLib;

namespace {

// A command built of parts, as every edit by time is.
class DemoCmd : public zml::MultiCommand {
public:
    static zml::shared_ptr<DemoCmd> create(int parts) { return zml::shared_ptr<DemoCmd>(new DemoCmd(parts)); }

    DemoCmd* clone() const override { return new DemoCmd(*this); }
    void xmlName(zml::XMLable::Options& options) const override { *options.stream << "DemoCmd"; }
    void xmlAttributes(zml::XMLable::Options& options) const override {
        *options.stream << "parts=\"" << parts_ << '"';
    }
    void xmlBody(zml::XMLable::Options&, int) const override {}

protected:
    void executeCommands(zml::CommandHandler const*) override {
        for (int i = 0; i < parts_; ++i)
            execute(zml::NullCmd::create());
    }

private:
    explicit DemoCmd(int parts) : parts_(parts) {}
    DemoCmd(DemoCmd const& other)
        : XMLIdentified(other), MultiCommand(other), parts_(other.parts_) {}

    int parts_;
};

void printHistory(zml::Project const& project, char const* moment) {
    std::cout << "== " << moment << '\n';
    project.commandHistory()->toXML(std::cout);
}

}  // namespace

int main() {
    try {
        zml::shared_ptr<zml::Project> project = zml::Project::create(30, 1);
        std::cout << "== Project\n";
        project->toXML(std::cout);

        project->execute(zml::NullCmd::create());
        project->execute(DemoCmd::create(3));
        printHistory(*project, "after two commands");

        project->combineLastCommands();
        printHistory(*project, "after combining them");

        project->execute(zml::NullCmd::create());
        project->undo();
        printHistory(*project, "after a third command and an undo");

        project->redo();
        printHistory(*project, "after the redo");
    } catch (std::exception const& error) {
        std::cerr << "zml-history-demo: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
