#include <ZelmarMediaLib/clipbin/ScreenMetaData.h>

#include <ZelmarMediaLib/clipbin/detail/ScreenMetaDataImpl.h>

#include <atomic>

namespace ZelmarMediaLib {

namespace {

// Set once by the application, read by every lazy load on any thread.
std::atomic<ScreenMetaDataLoader*> s_lazyLoader(nullptr);

}  // namespace

shared_ptr<ScreenMetaData> ScreenMetaData::create(weak_ptr<ThreadSafe const> project,
                                                  weak_ptr<FileRepresentation const> parent,
                                                  weak_ptr<ProjectEditRate const> editRate) {
    return boost::make_shared<ScreenMetaDataImpl>(project, parent, editRate);
}

shared_ptr<ScreenMetaData> ScreenMetaData::create(weak_ptr<ThreadSafe const> project,
                                                  weak_ptr<ProjectEditRate const> editRate) {
    return create(project, weak_ptr<FileRepresentation const>(), editRate);
}

void ScreenMetaData::setLazyLoader(ScreenMetaDataLoader* loader) {
    s_lazyLoader.store(loader);
}

ScreenMetaDataLoader* ScreenMetaData::lazyLoader() {
    return s_lazyLoader.load();
}

}  // namespace ZelmarMediaLib
