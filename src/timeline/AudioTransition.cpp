#include <ZelmarMediaLib/timeline/AudioTransition.h>

#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/edgemods/EdgeModCloneUtil.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>
#include <ZelmarMediaLib/timeline/MediaDispatcher.h>
#include <ZelmarMediaLib/effects/Effect.h>
#include <ZelmarMediaLib/timeline/StaticEditor.h>

#include <ostream>

namespace ZelmarMediaLib {

AudioTransition::AudioTransition(long long duration, shared_ptr<Effect const> effect,
                                 weak_ptr<ThreadSafe const> project)
    : AudioMedia(Range<long long>(0, duration), 0u, 0u, 0.0, 0.0, project),
      effect_(effect),
      editor_(new StaticEditor(this, nullptr)) {}

AudioTransition::AudioTransition(AudioTransition const& other)
    : XMLIdentified(other), AudioMedia(other), Transition(other), effect_(other.effect_),
      editor_(new StaticEditor(this, nullptr)) {}

AudioTransition::~AudioTransition() = default;

AudioTransition* AudioTransition::clone() const {
    return EdgeModCloneUtil::withEdgeMods(std::unique_ptr<AudioTransition>(new AudioTransition(*this)), *this);
}

void AudioTransition::receiveDispatcher(ConstMediaDispatcher* dispatcher) const {
    dispatcher->dispatchMedia(dynamic_pointer_cast<AudioTransition const>(shared_from_this()));
}

void AudioTransition::receiveDispatcher(MediaDispatcher* dispatcher) {
    dispatcher->dispatchMedia(dynamic_pointer_cast<AudioTransition>(shared_from_this()));
}

bool AudioTransition::isInstanceOf(shared_ptr<Source const>) const {
    return false;
}

MediaEditor* AudioTransition::mediaEditor() {
    return editor_.get();
}

MediaEditor const* AudioTransition::mediaEditor() const {
    return editor_.get();
}

void AudioTransition::xmlName(XMLable::Options& options) const {
    *options.stream << "AudioTransition";
}

Range<long long> AudioTransition::transitionRange() const {
    return trackRange();
}

shared_ptr<Effect const> AudioTransition::transitionEffect() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return effect_;
}

shared_ptr<Media const> AudioTransition::transitionMediaRepresentation() const {
    return shared_from_this();
}

int AudioTransition::numChannels() const {
    return 0;
}

shared_ptr<std::vector<shared_ptr<AMFile> > > AudioTransition::splitChannels() const {
    throw ZelmarMediaLibException("no audio channels to split");
}

void AudioTransition::xmlAttributes(XMLable::Options& options) const {
    Range<long long> const range = trackRange();
    *options.stream << "start=\"" << range.start << "\" duration=\"" << range.duration << '"';
}

void AudioTransition::xmlBody(XMLable::Options& options, int indent) const {
    MediaImpl::xmlBody(options, indent);
    std::ostream& out = *options.stream;
    out << genIndent(indent) << "<Effect>\n";
    if (effect_)
        effect_->toXML(options, indent + 1, "");
    out << genIndent(indent) << "</Effect>\n";
}

}  // namespace ZelmarMediaLib
