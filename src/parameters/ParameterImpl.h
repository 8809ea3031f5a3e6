#pragma once
// The keyframe store behind every concrete parameter: keyframes sorted by time in a flat store.
#include <ZelmarMediaLib/datatypes/XMLRepresentation.h>
#include <ZelmarMediaLib/exceptions/KeyFrameException.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/parameters/Interpolater.h>
#include <ZelmarMediaLib/parameters/Parameter.h>

#include <boost/container/small_vector.hpp>

#include <algorithm>
#include <cmath>
#include <limits>
#include <typeinfo>
#include <ostream>
#include <utility>

namespace ZelmarMediaLib {

// A keyframe's value as attribute text.
template <class T>
std::string xml_representation(KeyFrame<T> const& keyframe) {
    return xml_representation(keyframe.value);
}

// Mutators take no lock and notify once: they run under the write lock of the command
// that calls them. Invariant: the entries are sorted by time without doubles, and each
// entry's time equals the time of the keyframe it holds.
// Most parameters hold one keyframe all their life, so the store keeps one entry inline:
// such a parameter costs no allocation for its store, and a clone copies values only.
template <class T>
class ParameterImpl : public Parameter<T> {
public:
    typedef std::pair<long long, shared_ptr<KeyFrame<T> > > Entry;
    typedef boost::container::small_vector<Entry, 1> KeyFrameMap;

    void addKeyFrame(long long time, T const& value) override {
        addKeyFrame(boost::make_shared<KeyFrame<T> >(time, value));
    }

    void addKeyFrame(shared_ptr<KeyFrame<T> > keyframe) override {
        typename KeyFrameMap::iterator const place = lowerBound(keyframe->time);
        if (place != keyframes_.end() && place->first == keyframe->time)
            throw KeyFrameException(keyframe->time);
        keyframes_.emplace(place, keyframe->time, keyframe);
        this->notify();
    }

    T changeKeyFrame(long long time, T const& value) override {
        KeyFrame<T>& keyframe = *existing(time)->second;
        T former = keyframe.value;
        keyframe.value = value;
        this->notify();
        return former;
    }

    shared_ptr<KeyFrame<T> > changeKeyFrame(long long time, shared_ptr<KeyFrame<T> > keyframe) override {
        typename KeyFrameMap::iterator const found = existing(time);
        shared_ptr<KeyFrame<T> > former = found->second;
        keyframe->time = time;
        found->second = keyframe;
        this->notify();
        return former;
    }

    T removeKeyFrame(long long time) override {
        typename KeyFrameMap::iterator const found = existing(time);
        T removed = found->second->value;
        keyframes_.erase(found);
        this->notify();
        return removed;
    }

    // The same keyframe object is re-keyed; the destination must be free, so a move
    // onto its own time is refused.
    void moveKeyFrame(long long from, long long to) override {
        typename KeyFrameMap::iterator const found = existing(from);
        if (contains(to))
            throw KeyFrameException(to);
        shared_ptr<KeyFrame<T> > keyframe = found->second;
        keyframes_.erase(found);
        keyframe->time = to;
        keyframes_.emplace(lowerBound(to), to, keyframe);
        this->notify();
    }

    T valueAtTime(double time) const override {
        ReadWriteMutex::ScopedReadLock lock(&this->mutex());
        if (keyframes_.empty())
            throw KeyFrameException(0);
        typename KeyFrameMap::const_iterator const first = keyframes_.begin();
        if (keyframes_.size() == 1)
            return first->second->value;
        // Written so that a NaN takes neither exit.
        if (time < static_cast<double>(first->first))
            return first->second->value;
        typename KeyFrameMap::const_iterator const last = std::prev(keyframes_.end());
        if (time > static_cast<double>(last->first))
            return last->second->value;

        typename KeyFrameMap::const_iterator right;
        if (std::fmod(time, 1.0) > 0) {
            right = upperBound(static_cast<long long>(time));
        } else {
            // A NaN has no whole part; it is looked up at the smallest time.
            long long const whole =
                std::isnan(time) ? std::numeric_limits<long long>::min() : static_cast<long long>(time);
            right = lowerBound(whole);
            if (static_cast<double>(right->first) == time)
                return right->second->value;
        }
        // Only a NaN can arrive here at the first key: it is blended on the first segment.
        if (right == first)
            ++right;
        typename KeyFrameMap::const_iterator const left = std::prev(right);

        shared_ptr<Interpolater<T> > const interpolater = this->interpolaterAtTime(time);
        // The width is narrowed to float on purpose; results elsewhere depend on that rounding.
        double const width = static_cast<double>(static_cast<float>(right->first - left->first));
        double const fraction = (time - static_cast<double>(left->first)) / width;
        return interpolater->interpolate(left->second->value, right->second->value, fraction);
    }

    shared_ptr<KeyFrame<T> > keyframeAtTime(long long time) const override {
        ReadWriteMutex::ScopedReadLock lock(&this->mutex());
        typename KeyFrameMap::const_iterator const found = lowerBound(time);
        if (found == keyframes_.end() || found->first != time)
            throw KeyFrameException(time);
        return found->second;
    }

    bool hasKeyFrameAtTime(long long time) const override {
        ReadWriteMutex::ScopedReadLock lock(&this->mutex());
        return contains(time);
    }

    bool hasKeyFrameInRange(Range<long long> range) const override {
        ReadWriteMutex::ScopedReadLock lock(&this->mutex());
        typename KeyFrameMap::const_iterator const found = lowerBound(range.start);
        return found != keyframes_.end() && found->first <= range.start + range.duration;
    }

    int numKeyFrames() const override { return static_cast<int>(keyframes_.size()); }

    long long firstKeyFrameTime() const override {
        return keyframes_.empty() ? std::numeric_limits<long long>::max() : keyframes_.begin()->first;
    }

    long long previousKeyFrameTime(long long time) const override {
        typename KeyFrameMap::const_iterator const found = lowerBound(time);
        return found == keyframes_.begin() ? std::numeric_limits<long long>::min() : std::prev(found)->first;
    }

    long long nextKeyFrameTime(long long time) const override {
        typename KeyFrameMap::const_iterator const found = upperBound(time);
        return found == keyframes_.end() ? std::numeric_limits<long long>::max() : found->first;
    }

    shared_ptr<std::vector<long long> > keyframeTimes() const override {
        shared_ptr<std::vector<long long> > times = boost::make_shared<std::vector<long long> >();
        times->reserve(keyframes_.size());
        for (auto const& entry : keyframes_)
            times->push_back(entry.first);
        return times;
    }

    // From the first keyframe to the last; raises KeyFrameException(0) when there is none.
    Range<long long> keyframeRange() const override {
        ParameterIterator<T> it = this->begin();
        ParameterIterator<T> const end = this->end();
        long long const start = it->time;
        long long last = start;
        for (; it != end; ++it)
            last = it->time;
        return Range<long long>(start, last - start);
    }

    // All keyframes are taken out before any goes back, so that they can slide over each
    // other's old times; observers hear once. The keyframes are new objects afterwards.
    void moveKeyframes(long long delta) override {
        {
            Subject::NotifyDisabler disabler = this->disableNotifies();
            std::list<std::pair<long long, T> > moved;
            for (ParameterIterator<T> it = this->begin(), end = this->end(); it != end; ++it)
                moved.emplace_back(it->time, it->value);
            for (auto const& entry : moved)
                removeKeyFrame(entry.first);
            for (auto const& entry : moved)
                addKeyFrame(entry.first + delta, entry.second);
        }
        this->notify();
    }

    void setupSharedClone(shared_ptr<ParameterInterface>) const override {}

    bool valuesDifferAtTimes(long long first, long long second) const override {
        // Written as "not equal" so that a NaN on either side counts as a difference.
        return !(valueAtTime(static_cast<double>(first)) == valueAtTime(static_cast<double>(second)));
    }

    std::string ident() const override {
        shared_ptr<Attribute<std::string> const> name = this->identAttribute();
        ReadWriteMutex::ScopedReadLock lock(&name->mutex());
        return name->value();
    }

protected:
    ParameterImpl(weak_ptr<ThreadSafe const> project, std::string const& name) : Parameter<T>(project) {
        this->identAttribute()->setValue(name);
    }
    // Every keyframe is cloned under its time; a plain keyframe is copied into one block
    // with its count, one of an application's own kinds through its clone().
    ParameterImpl(ParameterImpl const& other) : XMLIdentified(other), Parameter<T>(other) {
        keyframes_.reserve(other.keyframes_.size());
        for (Entry const& entry : other.keyframes_) {
            KeyFrame<T> const& keyframe = *entry.second;
            if (typeid(keyframe) == typeid(KeyFrame<T>))
                keyframes_.emplace_back(entry.first, boost::make_shared<KeyFrame<T> >(keyframe));
            else
                keyframes_.emplace_back(entry.first, shared_ptr<KeyFrame<T> >(keyframe.clone()));
        }
    }

    // The keyframe block: written only when there is a keyframe, at the given level, each
    // keyframe one level deeper.
    void xmlOfKeyFrames(XMLable::Options& options, int indent) const {
        if (keyframes_.empty())
            return;
        std::ostream& out = *options.stream;
        std::string const blanks = XMLable::genIndent(indent);
        std::string const deeper = XMLable::genIndent(indent + 1);
        out << blanks << "<Keyframes>\n";
        for (auto const& entry : keyframes_)
            out << deeper << "<Keyframe time=\"" << entry.first << "\" value=\"" << xml_representation(*entry.second)
                << "\"/>\n";
        out << blanks << "</Keyframes>\n";
    }

    KeyFrameMap const& keyframes() const { return keyframes_; }

private:
    static bool earlier(Entry const& entry, long long time) { return entry.first < time; }
    static bool later(long long time, Entry const& entry) { return time < entry.first; }

    typename KeyFrameMap::iterator lowerBound(long long time) {
        return std::lower_bound(keyframes_.begin(), keyframes_.end(), time, &ParameterImpl::earlier);
    }
    typename KeyFrameMap::const_iterator lowerBound(long long time) const {
        return std::lower_bound(keyframes_.begin(), keyframes_.end(), time, &ParameterImpl::earlier);
    }
    typename KeyFrameMap::const_iterator upperBound(long long time) const {
        return std::upper_bound(keyframes_.begin(), keyframes_.end(), time, &ParameterImpl::later);
    }
    bool contains(long long time) const {
        typename KeyFrameMap::const_iterator const found = lowerBound(time);
        return found != keyframes_.end() && found->first == time;
    }

    typename KeyFrameMap::iterator existing(long long time) {
        typename KeyFrameMap::iterator const found = lowerBound(time);
        if (found == keyframes_.end() || found->first != time)
            throw KeyFrameException(time);
        return found;
    }

    KeyFrameMap keyframes_;
};

}  // namespace ZelmarMediaLib
