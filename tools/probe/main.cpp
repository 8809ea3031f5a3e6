// Loads media files and screen recording folders into a project's source bin and prints what the
// library knows of each: the file statistics, the screen meta data, the source's XML and its
// private timeline.
#include <ZelmarMediaLib/ZelmarMediaLib.h>

#include <boost/filesystem/operations.hpp>
#include <boost/filesystem/path.hpp>

extern "C" {
#include <libavutil/log.h>
}

#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace zml = ZelmarMediaLib;

namespace {

char const* const program = "zml-probe";

// The sample is installed with the program and copied beside it in the build tree, at the same
// place relative to it, so the program finds it wherever the prefix is. Linux names the running
// program in /proc/self/exe; elsewhere argv[0] has to do.
std::string sampleRecording(char const* argv0) {
    boost::system::error_code error;
    boost::filesystem::path program = boost::filesystem::read_symlink("/proc/self/exe", error);
    if (error)
        program = boost::filesystem::absolute(argv0);
    boost::filesystem::path const sample = program.parent_path() / ZML_SAMPLE_FROM_BIN;
    boost::filesystem::path const resolved = boost::filesystem::weakly_canonical(sample, error);
    return (error ? sample.lexically_normal() : resolved).string();
}

void printUsage(std::ostream& out, std::string const& sample) {
    out << "Usage: " << program << " [--help] [--] [PATH...]\n"
        << "\n"
        << "Loads each PATH, a media file or a screen recording folder (one movie beside its\n"
        << "dirtyrect.dat, frontmost.dat, cursoraction.dat and cursorlocation.dat), into the source\n"
        << "bin of a project at 30 edit units per second, and prints its file statistics, the\n"
        << "screen meta data of each video track, the source's XML and the source's private\n"
        << "timeline, with one track and one media for each track of the file.\n"
        << "\n"
        << "The screen meta data lists the four side files, whether each was found, and whether\n"
        << "the set is valid. Each side file found is loaded through a small loader that reads\n"
        << "only the file's size, into a parameter with one keyframe.\n"
        << "\n"
        << "With no PATH it probes the sample recording " << sample << ".\n"
        << "A path that can't be loaded gets one line on the standard error; the exit status is 1\n"
        << "if any path failed, 2 for a wrong option, and 0 otherwise.\n";
}

// The library reads no side file itself. This loader stands in for an application's: a value
// is the file's size in bytes, at time 0.
class FileSizeLoader : public zml::ScreenMetaDataLoader {
public:
    zml::shared_ptr<zml::ParameterInterface> loadParameter(std::string const& path,
                                                           zml::weak_ptr<zml::ProjectEditRate const>,
                                                           zml::weak_ptr<zml::ThreadSafe const> project,
                                                           std::string const& name) override {
        zml::shared_ptr<zml::InterpolatingParam<double> > const value =
            boost::make_shared<zml::InterpolatingParam<double> >(project, name);
        value->addKeyFrame(0, static_cast<double>(boost::filesystem::file_size(path)));
        return value;
    }
};

void printSideFile(std::string const& role, std::string const& fileName,
                   zml::shared_ptr<zml::ParameterInterface> (zml::ScreenMetaData::*load)() const,
                   zml::ScreenMetaData const& metaData) {
    std::cout << "  " << role << ": ";
    if (fileName.empty()) {
        std::cout << "missing\n";
        return;
    }
    zml::shared_ptr<zml::InterpolatingParam<double> const> const value =
        zml::dynamic_pointer_cast<zml::InterpolatingParam<double> const>((metaData.*load)());
    std::cout << fileName << " (" << value->valueAtTime(0.0) << " bytes)\n";
}

void printScreenMetaData(zml::Source const& source) {
    int track = 0;
    for (auto media = source.mediaBegin<zml::VisualMedia const>(); media != source.mediaEnd<zml::VisualMedia const>();
         ++media, ++track) {
        zml::shared_ptr<zml::VMFile const> const video = zml::dynamic_pointer_cast<zml::VMFile const>(*media);
        if (!video || !video->screenMetaData()->value())
            continue;
        zml::ScreenMetaData const& metaData = *video->screenMetaData()->value();
        std::cout << "visual track " << track << ": " << (metaData.isValid() ? "valid" : "not valid") << '\n';
        printSideFile("topmost window coordinates", metaData.topmostWindowCoordinatesFilename(),
                      &zml::ScreenMetaData::topmostWindowCoordinates, metaData);
        printSideFile("cursor location", metaData.cursorLocationFilename(), &zml::ScreenMetaData::cursorLocation,
                      metaData);
        printSideFile("cursor action", metaData.cursorActionFilename(), &zml::ScreenMetaData::cursorAction,
                      metaData);
        printSideFile("dirty rectangles", metaData.dirtyRectsFilename(), &zml::ScreenMetaData::dirtyRects,
                      metaData);
    }
}

// Prints one loaded source; the statistics are read through the source, as an application would.
void probe(zml::SourceBin& bin, std::string const& path) {
    zml::shared_ptr<zml::Source> const source = bin.loadFile(path);
    std::cout << "== " << path << "\n"
              << "-- statistics\n"
              << source->mediaFileStats()->description() << "-- screen meta data\n";
    printScreenMetaData(*source);
    std::cout << "-- source\n";
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
            printUsage(std::cout, sampleRecording(argv[0]));
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
        paths.push_back(sampleRecording(argv[0]));

    // The library leaves FFmpeg's process-wide log to the application. The probe reports each
    // failure in one line of its own, so FFmpeg's remarks on the files it reads are unwanted.
    av_log_set_level(AV_LOG_QUIET);

    int status = 0;
    try {
        FileSizeLoader loader;
        zml::ScreenMetaData::setLazyLoader(&loader);
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
