// Loads media files and screen recording folders into a project's source bin and prints what the
// library knows of each: the file statistics, the source's XML and its private timeline.
#include <ZelmarMediaLib/ZelmarMediaLib.h>

#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace zml = ZelmarMediaLib;

namespace {

char const* const program = "zml-probe";

void printUsage(std::ostream& out) {
    out << "Usage: " << program << " [--help] [--] [PATH...]\n"
        << "\n"
        << "Loads each PATH, a media file or a screen recording folder (one movie beside its\n"
        << "dirtyrect.dat, frontmost.dat, cursoraction.dat and cursorlocation.dat), into the source\n"
        << "bin of a project at 30 edit units per second, and prints its file statistics, the\n"
        << "source's XML and the source's private timeline, with one track and one media for each\n"
        << "track of the file.\n"
        << "\n"
        << "With no PATH it probes the sample recording " << ZML_SAMPLE_RECORDING << ".\n"
        << "A path that can't be loaded gets one line on the standard error; the exit status is 1\n"
        << "if any path failed, 2 for a wrong option, and 0 otherwise.\n";
}

// Prints one loaded source; the statistics are read through the source, as an application would.
void probe(zml::SourceBin& bin, std::string const& path) {
    zml::shared_ptr<zml::Source> const source = bin.loadFile(path);
    std::cout << "== " << path << "\n"
              << "-- statistics\n"
              << source->mediaFileStats()->description() << "-- source\n";
    source->toXML(std::cout);
    std::cout << "-- private timeline\n";
    source->timeline()->toXML(std::cout);
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> paths;
    bool optionsEnded = false;
    for (int i = 1; i < argc; ++i) {
        std::string const argument = argv[i];
        if (!optionsEnded && (argument == "--help" || argument == "-h")) {
            printUsage(std::cout);
            return 0;
        }
        if (!optionsEnded && argument == "--") {
            optionsEnded = true;
        } else if (!optionsEnded && argument.size() > 1 && argument[0] == '-') {
            std::cerr << program << ": unknown option " << argument << " (try --help)\n";
            return 2;
        } else {
            paths.push_back(argument);
        }
    }
    if (paths.empty())
        paths.push_back(ZML_SAMPLE_RECORDING);

    int status = 0;
    try {
        zml::shared_ptr<zml::Project> const project = zml::Project::create(30, 1);
        zml::shared_ptr<zml::SourceBin> const bin = project->sourceBin();
        for (std::string const& path : paths) {
            try {
                probe(*bin, path);
            } catch (std::exception const& error) {
                std::cout.flush();
                std::cerr << program << ": " << path << ": " << error.what() << '\n';
                status = 1;
            }
        }
    } catch (std::exception const& error) {
        std::cerr << program << ": " << error.what() << '\n';
        return 1;
    }
    return status;
}
