#pragma once
// A parameter whose keyframes are blended, with a second, keyframed lane that picks the interpolater.
#include <ZelmarMediaLib/datatypes/AudioPosition.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Point.h>
#include <ZelmarMediaLib/datatypes/TransformMatrix.h>
#include <ZelmarMediaLib/parameters/LeftParameter.h>
#include <ZelmarMediaLib/parameters/ParameterDispatcher.h>
#include <ZelmarMediaLib/parameters/ParameterImpl.h>
#include <ZelmarMediaLib/parameters/Parametric.h>

#include <ostream>
#include <sstream>

namespace ZelmarMediaLib {

template <class T>
class InterpolatingParam : public ParameterImpl<T>, public Parametric {
public:
    typedef LeftParameter<shared_ptr<Interpolater<T> > > Lane;

    // Linear everywhere: the lane starts with one keyframe at 0; the value lane stays
    // empty until its owner fills it.
    InterpolatingParam(weak_ptr<ThreadSafe const> project, std::string const& name)
        : ParameterImpl<T>(project, name), lane_(boost::make_shared<Lane>(project, "interpolater")) {
        lane_->addKeyFrame(0, LinearInterpolater<T>::instance());
    }
    // The copy gets its own lane; the interpolater objects stay shared.
    InterpolatingParam(InterpolatingParam const& other)
        : XMLIdentified(other), ParameterImpl<T>(other), Parametric(other), lane_(copyOf(*other.lane_)) {}

    // Each keyframe's time and address, for debugging.
    std::string description() const override {
        ReadWriteMutex::ScopedReadLock lock(&this->mutex());
        std::ostringstream out;
        for (auto const& entry : this->keyframes())
            out << entry.first << ", " << static_cast<void const*>(entry.second.get()) << '\n';
        return out.str();
    }

    void receiveDispatcher(ParameterDispatcher* dispatcher) override {
        dispatcher->dispatch(dynamic_pointer_cast<InterpolatingParam<T> >(this->shared_from_this()));
    }
    void receiveDispatcher(ConstParameterDispatcher* dispatcher) const override {
        dispatcher->dispatch(dynamic_pointer_cast<InterpolatingParam<T> const>(this->shared_from_this()));
    }

    // The interpolater of the nearest lane keyframe at or before the time.
    shared_ptr<Interpolater<T> > interpolaterAtTime(double time) const override { return lane_->valueAtTime(time); }

    shared_ptr<Parameter<shared_ptr<Interpolater<T> > > > interpolaterParam() const override {
        ReadWriteMutex::ScopedReadLock lock(&this->mutex());
        return lane_;
    }

    InterpolatingParam* clone() const override {
        ReadWriteMutex::ScopedReadLock lock(&this->mutex());
        return new InterpolatingParam(*this);
    }

    double toParameterTime(double time) const override {
        ReadWriteMutex::ScopedReadLock lock(&this->mutex());
        return time;
    }
    double fromParameterTime(double time) const override {
        ReadWriteMutex::ScopedReadLock lock(&this->mutex());
        return time;
    }
    long long fromGlobalToParametricTime(long long time) const override {
        ReadWriteMutex::ScopedReadLock lock(&this->mutex());
        return time;
    }

    // The lane is its one sub-parameter.
    int numParameters() const override { return 1; }
    ParameterVector* parameterVector() const override {
        ParameterVector* parameters = new ParameterVector(this->projectMutex());
        parameters->push_back(lane_);
        return parameters;
    }

    void xmlName(XMLable::Options& options) const override { *options.stream << "InterpolatingParam"; }
    void xmlAttributes(XMLable::Options&) const override {}
    void xmlBody(XMLable::Options& options, int indent) const override {
        std::string const blanks = XMLable::genIndent(indent);
        *options.stream << blanks << "<Parameters>\n";
        lane_->toXML(options, indent + 1, "name=\"interpolater\"");
        *options.stream << blanks << "</Parameters>\n";
        this->xmlOfKeyFrames(options, indent);
    }

private:
    // The same copy as the lane's clone(), made in one block with its count.
    static shared_ptr<Lane> copyOf(Lane const& lane) {
        ReadWriteMutex::ScopedReadLock lock(&lane.mutex());
        return boost::make_shared<Lane>(lane);
    }

    shared_ptr<Lane> lane_;
};

// Compiled once in the library (ParameterInstances.cpp) and exported from it, like the lanes.
extern template class ZML_EXPORT InterpolatingParam<double>;
extern template class ZML_EXPORT InterpolatingParam<float>;
extern template class ZML_EXPORT InterpolatingParam<Point>;
extern template class ZML_EXPORT InterpolatingParam<TransformMatrix>;
extern template class ZML_EXPORT InterpolatingParam<AudioPosition>;

}  // namespace ZelmarMediaLib
