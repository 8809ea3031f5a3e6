#include <ZelmarMediaLib/timeline/MediaDispatcher.h>

#include <ZelmarMediaLib/exceptions/DefaultMediaDispatcherException.h>

namespace ZelmarMediaLib {

namespace {
char const* const notHandledText = "Media not handled";
}

void DefaultMediaDispatcher::dispatchMedia(shared_ptr<VMFile>) { mediaNotHandled(); }
void DefaultMediaDispatcher::dispatchMedia(shared_ptr<AMFile>) { mediaNotHandled(); }
void DefaultMediaDispatcher::dispatchMedia(shared_ptr<IMFile>) { mediaNotHandled(); }
void DefaultMediaDispatcher::dispatchMedia(shared_ptr<ImageTransition>) { mediaNotHandled(); }
void DefaultMediaDispatcher::dispatchMedia(shared_ptr<AudioTransition>) { mediaNotHandled(); }
void DefaultMediaDispatcher::dispatchMedia(shared_ptr<TextBox>) { mediaNotHandled(); }
void DefaultMediaDispatcher::dispatchMedia(shared_ptr<Callout>) { mediaNotHandled(); }

void DefaultMediaDispatcher::mediaNotHandled() {
    throw DefaultMediaDispatcherException(notHandledText);
}

void ConstDefaultMediaDispatcher::dispatchMedia(shared_ptr<VMFile const>) { mediaNotHandled(); }
void ConstDefaultMediaDispatcher::dispatchMedia(shared_ptr<AMFile const>) { mediaNotHandled(); }
void ConstDefaultMediaDispatcher::dispatchMedia(shared_ptr<IMFile const>) { mediaNotHandled(); }
void ConstDefaultMediaDispatcher::dispatchMedia(shared_ptr<ImageTransition const>) { mediaNotHandled(); }
void ConstDefaultMediaDispatcher::dispatchMedia(shared_ptr<AudioTransition const>) { mediaNotHandled(); }
void ConstDefaultMediaDispatcher::dispatchMedia(shared_ptr<TextBox const>) { mediaNotHandled(); }
void ConstDefaultMediaDispatcher::dispatchMedia(shared_ptr<Callout const>) { mediaNotHandled(); }

void ConstDefaultMediaDispatcher::mediaNotHandled() {
    throw DefaultMediaDispatcherException(notHandledText);
}

}  // namespace ZelmarMediaLib
