#pragma once
// A time-varying value of type T, held as keyframes at whole edit-unit times.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Range.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/datatypes/SubProject.h>
#include <ZelmarMediaLib/parameters/Identified.h>
#include <ZelmarMediaLib/parameters/KeyFrame.h>
#include <ZelmarMediaLib/parameters/ParameterInterface.h>

#include <iterator>
#include <limits>
#include <list>

namespace ZelmarMediaLib {

template <class T>
class Interpolater;
template <class T>
class ParameterIterator;

template <class T>
class Parameter : public SubProject,
                  public ParameterInterface,
                  public Identified,
                  public enable_shared_from_this<Parameter<T> > {
public:
    typedef T ValueType;

    void receiveDispatcher(ParameterDispatcher* dispatcher) override = 0;
    void receiveDispatcher(ConstParameterDispatcher* dispatcher) const override = 0;
    // Every refused keyframe operation raises KeyFrameException with the time and changes nothing.
    virtual void addKeyFrame(long long time, T const& value) = 0;
    // The object itself is stored, not a copy.
    virtual void addKeyFrame(shared_ptr<KeyFrame<T> > keyframe) = 0;
    // Returns the former value; the keyframe object stays.
    virtual T changeKeyFrame(long long time, T const& value) = 0;
    // Returns the former keyframe, which the given one replaces.
    virtual shared_ptr<KeyFrame<T> > changeKeyFrame(long long time, shared_ptr<KeyFrame<T> > keyframe) = 0;
    virtual T removeKeyFrame(long long time) = 0;
    void moveKeyFrame(long long from, long long to) override = 0;
    // Raises KeyFrameException(0) on a parameter without keyframes, whatever the time.
    virtual T valueAtTime(double time) const = 0;
    virtual shared_ptr<Interpolater<T> > interpolaterAtTime(double time) const = 0;
    virtual shared_ptr<KeyFrame<T> > keyframeAtTime(long long time) const = 0;
    virtual bool hasKeyFrameAtTime(long long time) const = 0;
    // Both ends of the range count.
    virtual bool hasKeyFrameInRange(Range<long long> range) const = 0;
    int numKeyFrames() const override = 0;
    // The largest long long when there is none.
    virtual long long firstKeyFrameTime() const = 0;
    // The smallest long long when there is none strictly before.
    long long previousKeyFrameTime(long long time) const override = 0;
    // The largest long long when there is none strictly after.
    long long nextKeyFrameTime(long long time) const override = 0;
    Range<long long> keyframeRange() const override = 0;
    void moveKeyframes(long long delta) override = 0;
    // The interpolater lane; empty for a parameter that has none.
    virtual shared_ptr<Parameter<shared_ptr<Interpolater<T> > > > interpolaterParam() const = 0;
    shared_ptr<std::vector<long long> > keyframeTimes() const override = 0;
    void setupSharedClone(shared_ptr<ParameterInterface> clone) const override = 0;
    bool valuesDifferAtTimes(long long first, long long second) const override = 0;

    // A walk over the keyframes in time order, read-locked for as long as it lives.
    ParameterIterator<T> begin() const;
    ParameterIterator<T> end() const;

protected:
    Parameter(weak_ptr<ThreadSafe const> project) : SubProject(project), Identified(project) {}
    Parameter(Parameter const& other)
        : XMLIdentified(other), SubProject(other), ParameterInterface(other), Identified(other),
          enable_shared_from_this<Parameter<T> >() {}
    Parameter& operator=(Parameter const&) = delete;
};

// What dereferencing a ParameterIterator gives: a keyframe's time and its value.
template <class T>
struct TimedValue {
    long long time;
    T value;
};

// Safe against the project's writers: it holds a read lock from its creation to the end
// of its last copy. Each dereference evaluates the parameter at the current time and
// keeps the record until the iterator dies, so handed-out pointers stay valid.
template <class T>
class ParameterIterator {
public:
    typedef std::forward_iterator_tag iterator_category;
    typedef TimedValue<T> value_type;
    typedef std::ptrdiff_t difference_type;
    typedef TimedValue<T> const* pointer;
    typedef TimedValue<T> const& reference;

    ParameterIterator(Parameter<T> const* parameter, long long time)
        : time_(time), parameter_(parameter),
          lock_(boost::make_shared<ReadWriteMutex::ScopedReadLock>(&parameter->mutex())) {}
    // A copy shares the lock but not the records.
    ParameterIterator(ParameterIterator const& other)
        : time_(other.time_), parameter_(other.parameter_), lock_(other.lock_) {}
    ParameterIterator& operator=(ParameterIterator const& other) {
        time_ = other.time_;
        parameter_ = other.parameter_;
        lock_ = other.lock_;
        return *this;
    }

    reference operator*() const {
        records_.push_back(TimedValue<T>{time_, parameter_->valueAtTime(static_cast<double>(time_))});
        return records_.back();
    }
    pointer operator->() const { return &**this; }

    ParameterIterator& operator++() {
        time_ = parameter_->nextKeyFrameTime(time_);
        return *this;
    }
    ParameterIterator operator++(int) {
        ParameterIterator before(*this);
        ++*this;
        return before;
    }

    bool operator==(ParameterIterator const& other) const {
        return parameter_ == other.parameter_ && time_ == other.time_;
    }
    bool operator!=(ParameterIterator const& other) const { return !(*this == other); }

    long long time() const { return time_; }

private:
    long long time_;
    Parameter<T> const* parameter_;
    shared_ptr<ReadWriteMutex::ScopedReadLock> lock_;
    mutable std::list<TimedValue<T> > records_;
};

template <class T>
ParameterIterator<T> Parameter<T>::begin() const {
    return ParameterIterator<T>(this, firstKeyFrameTime());
}

template <class T>
ParameterIterator<T> Parameter<T>::end() const {
    return ParameterIterator<T>(this, std::numeric_limits<long long>::max());
}

}  // namespace ZelmarMediaLib
