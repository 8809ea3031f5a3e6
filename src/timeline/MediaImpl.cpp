#include <ZelmarMediaLib/timeline/MediaImpl.h>

#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/datatypes/UpdateCollector.h>
#include <ZelmarMediaLib/edgemods/EdgeModFunc.h>
#include <ZelmarMediaLib/effects/Effect.h>
#include <ZelmarMediaLib/effects/VectorEffectable.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/parameters/Parameter.h>
#include <ZelmarMediaLib/timeline/MediaEditor.h>

#include <algorithm>
#include <ostream>

namespace ZelmarMediaLib {

namespace {

// The first modification of that parameter acts, and the search ends there.
double transformWithEdgeMods(std::list<EdgeModification> const& modifications,
                             shared_ptr<ParameterInterface const> const& parameter, double value, double fraction) {
    for (EdgeModification const& modification : modifications) {
        if (static_cast<ParameterInterface const*>(modification.parameter().get()) == parameter.get())
            return modification.func().execute(fraction, value);
    }
    return value;
}

}  // namespace

MediaImpl::MediaImpl(Range<long long> const& range, double startLimit, double durationLimit,
                     weak_ptr<ThreadSafe const> project)
    : Media(project),
      mediaStartLimit_(startLimit),
      mediaDurationLimit_(durationLimit),
      trackRange_(0, range.duration),
      mediaRange_(static_cast<double>(range.start), static_cast<double>(range.duration)),
      scalar_(1.0),
      effects_(new VectorEffectable),
      leftEdgeModificationLength_(0),
      rightEdgeModificationLength_(0) {}

MediaImpl::MediaImpl(MediaImpl const& other)
    : XMLIdentified(other),
      Media(other),
      EffectTimeConverter(other),
      mediaStartLimit_(other.mediaStartLimit_),
      mediaDurationLimit_(other.mediaDurationLimit_),
      trackRange_(other.trackRange_),
      mediaRange_(other.mediaRange_),
      scalar_(other.scalar_),
      effects_(other.effects_->clone()),
      leftEdgeModificationLength_(other.leftEdgeModificationLength_),
      rightEdgeModificationLength_(other.rightEdgeModificationLength_) {
    for (int i = 0; i < effects_->numEffects(); ++i)
        effects_->effectAtIndex(i)->setEffectTimeConverter(this);
}

MediaImpl::~MediaImpl() = default;

std::string MediaImpl::description() const {
    return std::string();
}

void MediaImpl::xmlOfParameters(XMLable::Options&, int) const {}

void MediaImpl::setParentTrack(weak_ptr<Track> track) {
    parentTrack_ = track;
    notify();
}

weak_ptr<Track> MediaImpl::parentTrack() {
    return parentTrack_;
}

weak_ptr<Track const> MediaImpl::parentTrack() const {
    return parentTrack_;
}

void MediaImpl::link(shared_ptr<Media> other) {
    if (other.get() == this || isLinkedWith(other))
        return;
    linkedMedias_.push_back(other);
    other->link(shared_from_this());
    // Every member of this group learns of the other; the isLinkedWith test above ends the
    // recursion. A copy of the list is walked, since the calls append to it.
    LinkList const members = linkedMedias_;
    for (weak_ptr<Media> const& member : members) {
        if (shared_ptr<Media> locked = member.lock())
            locked->link(other);
    }
}

void MediaImpl::addLink(shared_ptr<Media> other) {
    if (!isLinkableWith(other))
        throw ValueException<shared_ptr<Media const> >("unable to link media", other);
    linkedMedias_.push_back(other);
    notify();
}

void MediaImpl::removeLink(shared_ptr<Media> other) {
    if (other.get() == this)
        throw ValueException<shared_ptr<Media> >("unable to remove media link with itself", other);
    if (!isLinkedWith(other))
        throw ValueException<shared_ptr<Media> >("unable to remove media link where none exists", other);
    // Links must be undone before the ranges drift apart.
    if (other->trackRange() != trackRange())
        throw ValueException<shared_ptr<Media> >(
            "unable to remove media link, somehow the track ranges aren't equal", other);
    removeFromLinkedMediaList(other);
}

void MediaImpl::removeFromLinkedMediaList(shared_ptr<Media> other) {
    for (LinkList::iterator it = linkedMedias_.begin(); it != linkedMedias_.end(); ++it) {
        if (it->lock() == other) {
            linkedMedias_.erase(it);
            notify();
            return;
        }
    }
    throw ValueException<shared_ptr<Media> >("unable to remove linked media list", other);
}

bool MediaImpl::isLinkedWith(shared_ptr<Media const> other) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    for (weak_ptr<Media> const& link : linkedMedias_) {
        shared_ptr<Media> locked = link.lock();
        if (locked && locked == other)
            return true;
    }
    return false;
}

ConstIterator<Media::LinkList> MediaImpl::linkBegin() const {
    return ConstIterator<LinkList>(linkedMedias_.cbegin(), mutex());
}

Media::LinkList::iterator MediaImpl::linkBegin() {
    return linkedMedias_.begin();
}

ConstIterator<Media::LinkList> MediaImpl::linkEnd() const {
    return ConstIterator<LinkList>(linkedMedias_.cend(), mutex());
}

Media::LinkList::iterator MediaImpl::linkEnd() {
    return linkedMedias_.end();
}

bool MediaImpl::isLinkableWith(shared_ptr<Media const> other) {
    if (other.get() == this || isLinkedWith(other))
        return false;
    if (other->trackRange() != trackRange())
        return false;
    // Compared as doubles with no tolerance; the scalar is not compared.
    Range<double> const otherMedia = other->mediaRange();
    Range<double> const ownMedia = mediaRange();
    return otherMedia.start == ownMedia.start && otherMedia.duration == ownMedia.duration;
}

// Unlike the stretch itself, the forecast does not divide the duration by the current scalar.
Range<long long> MediaImpl::trackRangeWithStretch(double wanted) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    double const found = mediaEditor()->findScalar(wanted);
    double const duration = static_cast<double>(trackRange_.duration);
    return Range<long long>(trackRange_.start, static_cast<long long>(MediaEditor::roundHalfUp(found * duration)));
}

Range<double> MediaImpl::mediaRange() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return mediaRange_;
}

Range<long long> MediaImpl::trackRange() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return trackRange_;
}

double MediaImpl::scalar() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return scalar_;
}

long long MediaImpl::trimEndLimit() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return mediaEditor()->trimEndLimit(trackRange_, mediaRange_, scalar_, mediaDurationLimit_);
}

long long MediaImpl::trimStartLimit() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return mediaEditor()->trimStartLimit(trackRange_, mediaRange_, scalar_, mediaDurationLimit_);
}

bool MediaImpl::isInstanceOf(shared_ptr<Source const>) const {
    return false;
}

void MediaImpl::move(long long offset) {
    mediaEditor()->move(offset, trackRange_, mediaRange_);
    notify();
}

void MediaImpl::trimStart(long long offset) {
    mediaEditor()->trimStart(offset, trackRange_, mediaRange_);
    notify();
}

bool MediaImpl::validTrimStart(long long offset) {
    return mediaEditor()->validTrimStart(offset, trackRange_, mediaRange_);
}

void MediaImpl::trimEnd(long long offset) {
    mediaEditor()->trimEnd(offset, trackRange_, mediaRange_);
    notify();
}

bool MediaImpl::validTrimEnd(long long offset) {
    return mediaEditor()->validTrimEnd(offset, trackRange_, mediaRange_);
}

void MediaImpl::setTrackStart(long long start) {
    trackRange_.start = start;
    notify();
}

double MediaImpl::stretch(double wanted) {
    mediaEditor()->stretch(wanted, trackRange_, mediaRange_, scalar_);
    notify();
    return scalar_;
}

long long MediaImpl::endTime() const {
    return trackRange_.start + trackRange_.duration;
}

long long MediaImpl::startTime() const {
    return trackRange_.start;
}

long long MediaImpl::duration() const {
    return trackRange_.duration;
}

int MediaImpl::addEffect(shared_ptr<Effect> effect) {
    int const index = effects_->addEffect(effect);
    effect->setEffectTimeConverter(this);
    notify();
    return index;
}

void MediaImpl::insertEffect(shared_ptr<Effect> effect, int index) {
    effects_->insertEffect(effect, index);
    effect->setEffectTimeConverter(this);
    notify();
}

EffectRemoval MediaImpl::removeEffect(shared_ptr<Effect const> effect) {
    if (effect)
        const_pointer_cast<Effect>(effect)->setEffectTimeConverter(nullptr);
    return effects_->removeEffect(effect);
}

EffectRemoval MediaImpl::removeEffect(int index) {
    // The chain validates the index; clear the converter only of an effect that is there.
    if (index >= 0 && index < effects_->numEffects())
        effects_->effectAtIndex(index)->setEffectTimeConverter(nullptr);
    return effects_->removeEffect(index);
}

VectorEffectable& MediaImpl::effectChain() {
    return *effects_;
}

VectorEffectable const& MediaImpl::effectChain() const {
    return *effects_;
}

double MediaImpl::toParameterTime(double time) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return time / scalar_ + mediaRange_.start;
}

double MediaImpl::fromParameterTime(double time) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return (time - mediaRange_.start) * scalar_;
}

int MediaImpl::numParameters() const {
    return 0;
}

ParameterVector* MediaImpl::parameterVector() const {
    return new ParameterVector(projectMutex());
}

long long MediaImpl::fromGlobalToParametricTime(long long time) const {
    return time - trackRange_.start;
}

double MediaImpl::doubleParametricTransform(shared_ptr<ParameterInterface const> parameter, double value,
                                            double time) const {
    long long const left = leftEdgeModificationLength();
    if (time < static_cast<double>(left))
        value = transformWithEdgeMods(leftEdgeModifications(), parameter, value, time / static_cast<double>(left));
    long long const right = rightEdgeModificationLength();
    double const rightZoneStart = static_cast<double>(trackRange().duration - right);
    if (!(time > rightZoneStart))
        return value;
    return transformWithEdgeMods(rightEdgeModifications(), parameter, value,
                                 (time - rightZoneStart) / static_cast<double>(right));
}

void MediaImpl::notify() const {
    if (!isNotifying())
        return;
    UpdateCollector* collector = UpdateCollector::instance();
    if (collector->isCollecting()) {
        // Aliased on the media, so that the collection keeps it alive to the end.
        collector->addObservable(shared_ptr<Observable const>(shared_from_this(), static_cast<Observable const*>(this)));
        return;
    }
    Subject::notify();
}

void MediaImpl::setLeftEdgeModificationLength(long long length) {
    leftEdgeModificationLength_ = length;
    notify();
}

void MediaImpl::setRightEdgeModificationLength(long long length) {
    rightEdgeModificationLength_ = length;
    notify();
}

long long MediaImpl::calcEdgeLength(long long own, long long other, long long duration) {
    if (own + other <= duration)
        return own;
    if (2 * std::min(own, other) > duration)
        return duration / 2;
    if (other < own)
        return duration - other;
    return own;
}

long long MediaImpl::leftEdgeModificationLength() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return calcEdgeLength(leftEdgeModificationLength_, rightEdgeModificationLength_, trackRange_.duration);
}

long long MediaImpl::rightEdgeModificationLength() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return calcEdgeLength(rightEdgeModificationLength_, leftEdgeModificationLength_, trackRange_.duration);
}

long long MediaImpl::storedLeftEdgeModificationLength() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return leftEdgeModificationLength_;
}

long long MediaImpl::storedRightEdgeModificationLength() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return rightEdgeModificationLength_;
}

std::list<EdgeModification> MediaImpl::leftEdgeModifications() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return leftEdgeModifications_;
}

std::list<EdgeModification> MediaImpl::rightEdgeModifications() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return rightEdgeModifications_;
}

void MediaImpl::addLeftEdgeModification(EdgeModification const& modification) {
    addEdgeModification(leftEdgeModifications_, modification);
}

void MediaImpl::addRightEdgeModification(EdgeModification const& modification) {
    addEdgeModification(rightEdgeModifications_, modification);
}

EdgeModification MediaImpl::removeLeftEdgeModification(shared_ptr<Parameter<double> const> parameter) {
    return removeEdgeModification(leftEdgeModifications_, parameter, "trying to remove non existant left edge mod");
}

EdgeModification MediaImpl::removeRightEdgeModification(shared_ptr<Parameter<double> const> parameter) {
    return removeEdgeModification(rightEdgeModifications_, parameter, "trying to remove non existant right edge mod");
}

void MediaImpl::addEdgeModification(std::list<EdgeModification>& list, EdgeModification const& modification) {
    for (EdgeModification const& existing : list) {
        if (existing.parameter() == modification.parameter())
            throw ZelmarMediaLibException("trying to add an edge mod for a parameter already with a mod");
    }
    list.push_back(modification);
    notify();
}

EdgeModification MediaImpl::removeEdgeModification(std::list<EdgeModification>& list,
                                                   shared_ptr<Parameter<double> const> const& parameter,
                                                   char const* missingText) {
    for (std::list<EdgeModification>::iterator it = list.begin(); it != list.end(); ++it) {
        if (it->parameter() == parameter) {
            EdgeModification removed = *it;
            list.erase(it);
            notify();
            return removed;
        }
    }
    throw ZelmarMediaLibException(missingText);
}

long long MediaImpl::globalTimeToEffectTime(long long time) const {
    return static_cast<long long>(toParameterTime(static_cast<double>(time)) -
                                  static_cast<double>(trackRange().start));
}

double MediaImpl::mediaStartLimit() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return mediaStartLimit_;
}

double MediaImpl::mediaDurationLimit() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return mediaDurationLimit_;
}

void MediaImpl::xmlName(XMLable::Options& options) const {
    *options.stream << "MediaImpl";
}

void MediaImpl::xmlAttributes(XMLable::Options& options) const {
    *options.stream << "start=\"" << trackRange_.start << "\" duration=\"" << trackRange_.duration << "\" scalar=\""
                    << scalar_ << "\" mediaStart=\"" << mediaRange_.start << "\" mediaDuration=\""
                    << mediaRange_.duration << '"';
}

void MediaImpl::xmlBody(XMLable::Options& options, int indent) const {
    xmlOfParametersEffectsAttributes(options, indent);
    if (!linkedMedias_.empty()) {
        std::ostream& out = *options.stream;
        std::string const deeper = genIndent(indent + 1);
        out << genIndent(indent) << "<LinkedMedia>\n";
        for (weak_ptr<Media> const& link : linkedMedias_) {
            if (shared_ptr<Media> linked = link.lock())
                out << deeper << "<MediaLink link=\"" << linked->xmlIdent() << "\"/>\n";
        }
        out << genIndent(indent) << "</LinkedMedia>\n";
    }
    printEdgeModsXML(options, indent);
}

void MediaImpl::printEdgeModsXML(XMLable::Options& options, int indent) const {
    printEdgeBlock(options, indent, "LeftEdgeMods", leftEdgeModificationLength(), leftEdgeModifications_);
    printEdgeBlock(options, indent, "RightEdgeMods", rightEdgeModificationLength(), rightEdgeModifications_);
}

void MediaImpl::printEdgeBlock(XMLable::Options& options, int indent, char const* name, long long length,
                               std::list<EdgeModification> const& modifications) const {
    std::ostream& out = *options.stream;
    std::string const blanks = genIndent(indent);
    std::string const deeper = genIndent(indent + 1);
    out << blanks << '<' << name << " length=\"" << length << "\">\n";
    for (EdgeModification const& modification : modifications) {
        out << deeper << "<EdgeMod parameter=\"" << modification.parameter()->xmlIdent() << "\">\n";
        modification.func().toXML(options, indent + 2, "");
        out << deeper << "</EdgeMod>\n";
    }
    out << blanks << "</" << name << ">\n";
}

}  // namespace ZelmarMediaLib
