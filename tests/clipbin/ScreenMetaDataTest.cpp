// Screen meta data: which side file is which, lazy loading through the application's loader,
// where relative side files are looked for, and how the four files are written.
#include <ZelmarMediaLib/clipbin/ScreenMetaData.h>
#include <ZelmarMediaLib/clipbin/detail/ScreenMetaDataImpl.h>
#include <ZelmarMediaLib/clipbin/ScreenMetaDataLoader.h>
#include <ZelmarMediaLib/clipbin/Source.h>
#include <ZelmarMediaLib/exceptions/DanglingWeakPtrException.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/FileRepresentation.h>
#include <ZelmarMediaLib/timeline/VMFile.h>
#include <ZelmarMediaLib/timeline/VisualMedia.h>

#include "support/ExpectText.h"
#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace ZelmarMediaLib {
namespace {

using test::xml;

// Hands out a fresh parameter for each load and remembers what it was asked.
class RecordingLoader : public ScreenMetaDataLoader {
public:
    struct Call {
        std::string path;
        std::string name;
        shared_ptr<ProjectEditRate const> editRate;
        shared_ptr<ThreadSafe const> project;
    };

    shared_ptr<ParameterInterface> loadParameter(std::string const& path, weak_ptr<ProjectEditRate const> editRate,
                                                 weak_ptr<ThreadSafe const> project, std::string const& name) override {
        calls.push_back(Call{path, name, editRate.lock(), project.lock()});
        if (failuresLeft > 0) {
            --failuresLeft;
            throw std::runtime_error("unreadable side file");
        }
        return boost::make_shared<InterpolatingParam<double> >(project, name);
    }

    std::vector<Call> calls;
    int failuresLeft = 0;
};

class Bundle : public FileRepresentation {
public:
    explicit Bundle(std::string const& container) : container_(container) {}
    std::string fileName() const override { return container_ + "/capture.mov"; }
    std::string containerFileName() const override { return container_; }

private:
    std::string container_;
};

class ScreenMetaDataTest : public ::testing::Test {
protected:
    shared_ptr<Project> project = Project::create(30, 1);
    shared_ptr<Bundle> bundle = boost::make_shared<Bundle>("/x/y");
    shared_ptr<ScreenMetaData> metaData = ScreenMetaData::create(project, bundle, project);
    RecordingLoader loader;

    void SetUp() override { ScreenMetaData::setLazyLoader(&loader); }
    // The loader is process-wide: no test may leave one behind.
    void TearDown() override { ScreenMetaData::setLazyLoader(nullptr); }
};

TEST_F(ScreenMetaDataTest, AValueIsLoadedOnceAndEveryCallNeedsALoader) {
    metaData->setCursorLocation("/x/y/cursorlocation.dat");
    shared_ptr<ParameterInterface> const first = metaData->cursorLocation();
    ASSERT_TRUE(first);
    EXPECT_EQ(first, metaData->cursorLocation());
    ASSERT_EQ(1u, loader.calls.size()) << "the second call is served from the cache";
    EXPECT_EQ("/x/y/cursorlocation.dat", loader.calls[0].path);
    EXPECT_EQ("cursorLocation", loader.calls[0].name);
    EXPECT_EQ(project, loader.calls[0].editRate);
    EXPECT_EQ(project, loader.calls[0].project);

    ScreenMetaData::setLazyLoader(nullptr);
    for (int call = 0; call < 2; ++call)  // a cached value still needs a loader
        test::expectText<ZelmarMediaLibException>([&] { metaData->cursorLocation(); },
                                                  "attempting to lazy load screen meta data without a loader.");
    ScreenMetaData::setLazyLoader(&loader);
    EXPECT_EQ(first, metaData->cursorLocation()) << "taking the loader away kept the cache";
}

TEST_F(ScreenMetaDataTest, EachValueAsksForItsOwnNameAndAFailedLoadIsTriedAgain) {
    metaData->setTopmostWindowCoordinates("/r/frontmost.dat");
    metaData->setCursorAction("/r/cursoraction.dat");
    metaData->setDirtyRects("/r/dirtyrect.dat");
    loader.failuresLeft = 1;
    EXPECT_THROW(metaData->dirtyRects(), std::runtime_error);
    shared_ptr<ParameterInterface> const rects = metaData->dirtyRects();
    EXPECT_TRUE(rects) << "nothing was cached by the failure";
    metaData->topmostWindowCoordinates();
    metaData->cursorAction();
    ASSERT_EQ(4u, loader.calls.size());
    EXPECT_EQ("dirtyRects", loader.calls[1].name);
    EXPECT_EQ("topmostWindowCoordinates", loader.calls[2].name);
    EXPECT_EQ("/r/frontmost.dat", loader.calls[2].path);
    EXPECT_EQ("cursorAction", loader.calls[3].name);

    metaData->setDirtyRects("/elsewhere/dirtyrect.dat");
    EXPECT_EQ(rects, metaData->dirtyRects()) << "a new name keeps the loaded value";
}

TEST_F(ScreenMetaDataTest, RelativeSideFilesAreLookedForDirectlyInTheContainer) {
    EXPECT_EQ("/x/y/cursoraction.dat", ScreenMetaDataImpl::convertToAbsolute(bundle, "a/b/cursoraction.dat"));
    EXPECT_EQ("/x/y/frontmost.dat", ScreenMetaDataImpl::convertToAbsolute(bundle, "frontmost.dat"));
    EXPECT_EQ("/abs/dirtyrect.dat", ScreenMetaDataImpl::convertToAbsolute(weak_ptr<FileRepresentation const>(),
                                                                          "/abs/dirtyrect.dat"))
        << "an absolute path needs no parent";

    metaData->setCursorAction("a/b/cursoraction.dat");
    metaData->cursorAction();
    EXPECT_EQ("/x/y/cursoraction.dat", loader.calls.back().path);

    bundle.reset();
    EXPECT_THROW(metaData->cursorLocation(), DanglingWeakPtrException<FileRepresentation const>);
    EXPECT_TRUE(loader.calls.size() == 1u) << "the loader was not called for a dead parent";
}

TEST_F(ScreenMetaDataTest, ValidOnlyWithAllFourFiles) {
    metaData->setTopmostWindowCoordinates("f");
    metaData->setCursorLocation("l");
    metaData->setCursorAction("a");
    EXPECT_FALSE(metaData->isValid());
    metaData->setDirtyRects("d");
    EXPECT_TRUE(metaData->isValid());
}

TEST_F(ScreenMetaDataTest, XmlListsAllFourFilesInAFixedOrder) {
    std::string const id = std::to_string(metaData->xmlIdent());
    EXPECT_EQ("<ScreenMetaData id=\"" + id + "\"  >\n"
              " <ParameterFile filename=\"\" paramName=\"topmostWindowCoordinates\"/>\n"
              " <ParameterFile filename=\"\" paramName=\"cursorLocation\"/>\n"
              " <ParameterFile filename=\"\" paramName=\"cursorAction\"/>\n"
              " <ParameterFile filename=\"\" paramName=\"dirtyRects\"/>\n"
              "</ScreenMetaData>\n",
              xml(*metaData));

    metaData->setDirtyRects("/base/R&D/dirtyrect.dat");
    metaData->setCursorLocation("rel/cursorlocation.dat");
    std::string const written = xml(*metaData, "/base");
    EXPECT_NE(std::string::npos,
              written.find(" <ParameterFile filename=\"./R&amp;D/dirtyrect.dat\" paramName=\"dirtyRects\"/>\n"));
    EXPECT_NE(std::string::npos,
              written.find(" <ParameterFile filename=\"rel/cursorlocation.dat\" paramName=\"cursorLocation\"/>\n"))
        << "a relative name is written as it stands";
    EXPECT_TRUE(test::isWellFormedXml(written));
}

TEST_F(ScreenMetaDataTest, SourceGivesEveryScreenTrackItsSideFilesAndTheMediaWritesThem) {
    std::string const folder = std::string(ZML_TEST_MEDIA_DIR) + "/recording";
    shared_ptr<Source> source = Source::create(project, project, folder);
    shared_ptr<VMFile const> video = dynamic_pointer_cast<VMFile const>(*source->mediaBegin<VisualMedia const>());
    ASSERT_TRUE(video);
    shared_ptr<ScreenMetaData const> found = video->screenMetaData()->value();
    ASSERT_TRUE(found);
    EXPECT_EQ(folder + "/frontmost.dat", found->topmostWindowCoordinatesFilename());
    EXPECT_EQ(folder + "/cursorlocation.dat", found->cursorLocationFilename());
    EXPECT_EQ(folder + "/dirtyrect.dat", found->dirtyRectsFilename());
    EXPECT_FALSE(found->isValid()) << "the recording has no cursor actions";
    found->dirtyRects();
    EXPECT_EQ(folder + "/dirtyrect.dat", loader.calls.back().path);

    shared_ptr<VMFile> clone(video->clone());
    EXPECT_EQ(found, clone->screenMetaData()->value()) << "a clone shares its recording's meta data";
    std::string const written = xml(*video);
    std::string const block = " <ScreenMetaData id=\"" + std::to_string(found->xmlIdent()) + "\"  >\n";
    EXPECT_NE(std::string::npos, written.find(block));
    EXPECT_LT(written.find("</Attributes>"), written.find(block)) << "the meta data closes the media's body";
    EXPECT_TRUE(test::isWellFormedXml(written));
}

TEST(ScreenMetaDataWithoutSourceTest, AMediaWithoutASourceHasNoMetaDataAndWritesNone) {
    shared_ptr<Project> project = Project::create(30, 1);
    VMFile media(Range<long long>(0, 10), Rect<float>(0, 0, 4, 4), project, "/m.mov", 0.0, 10.0, 0u);
    EXPECT_FALSE(media.screenMetaData()->value());
    std::ostringstream out;
    media.toXML(out);
    EXPECT_EQ(std::string::npos, out.str().find("ScreenMetaData"));
}

}  // namespace
}  // namespace ZelmarMediaLib
