#pragma once
// Double dispatch on the seven concrete media kinds: code that differs by kind uses these, not type tests.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>

#include <string>

namespace ZelmarMediaLib {

class AMFile;
class AudioTransition;
class Callout;
class IMFile;
class ImageTransition;
class TextBox;
class VMFile;

class ZML_EXPORT MediaDispatcher {
public:
    virtual ~MediaDispatcher() = default;
    virtual void dispatchMedia(shared_ptr<VMFile> media) = 0;
    virtual void dispatchMedia(shared_ptr<AMFile> media) = 0;
    virtual void dispatchMedia(shared_ptr<IMFile> media) = 0;
    virtual void dispatchMedia(shared_ptr<ImageTransition> media) = 0;
    virtual void dispatchMedia(shared_ptr<AudioTransition> media) = 0;
    virtual void dispatchMedia(shared_ptr<TextBox> media) = 0;
    virtual void dispatchMedia(shared_ptr<Callout> media) = 0;
};

class ZML_EXPORT ConstMediaDispatcher {
public:
    virtual ~ConstMediaDispatcher() = default;
    virtual void dispatchMedia(shared_ptr<VMFile const> media) = 0;
    virtual void dispatchMedia(shared_ptr<AMFile const> media) = 0;
    virtual void dispatchMedia(shared_ptr<IMFile const> media) = 0;
    virtual void dispatchMedia(shared_ptr<ImageTransition const> media) = 0;
    virtual void dispatchMedia(shared_ptr<AudioTransition const> media) = 0;
    virtual void dispatchMedia(shared_ptr<TextBox const> media) = 0;
    virtual void dispatchMedia(shared_ptr<Callout const> media) = 0;
};

// Every kind goes to mediaNotHandled, which raises; a subclass overrides the kinds it
// cares for, and may override mediaNotHandled to ignore the rest.
class ZML_EXPORT DefaultMediaDispatcher : public MediaDispatcher {
public:
    void dispatchMedia(shared_ptr<VMFile> media) override;
    void dispatchMedia(shared_ptr<AMFile> media) override;
    void dispatchMedia(shared_ptr<IMFile> media) override;
    void dispatchMedia(shared_ptr<ImageTransition> media) override;
    void dispatchMedia(shared_ptr<AudioTransition> media) override;
    void dispatchMedia(shared_ptr<TextBox> media) override;
    void dispatchMedia(shared_ptr<Callout> media) override;
    // Raises DefaultMediaDispatcherException "Media not handled".
    virtual void mediaNotHandled();
};

class ZML_EXPORT ConstDefaultMediaDispatcher : public ConstMediaDispatcher {
public:
    void dispatchMedia(shared_ptr<VMFile const> media) override;
    void dispatchMedia(shared_ptr<AMFile const> media) override;
    void dispatchMedia(shared_ptr<IMFile const> media) override;
    void dispatchMedia(shared_ptr<ImageTransition const> media) override;
    void dispatchMedia(shared_ptr<AudioTransition const> media) override;
    void dispatchMedia(shared_ptr<TextBox const> media) override;
    void dispatchMedia(shared_ptr<Callout const> media) override;
    virtual void mediaNotHandled();
};

}  // namespace ZelmarMediaLib
