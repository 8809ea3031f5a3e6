#pragma once
// A parameter whose value jumps at each keyframe and holds until the next.
#include <ZelmarMediaLib/datatypes/Color.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/parameters/Interpolater.h>
#include <ZelmarMediaLib/parameters/ParameterDispatcher.h>
#include <ZelmarMediaLib/parameters/ParameterImpl.h>

namespace ZelmarMediaLib {

template <class T>
class LeftParameter : public ParameterImpl<T> {
public:
    LeftParameter(weak_ptr<ThreadSafe const> project, std::string const& name) : ParameterImpl<T>(project, name) {}
    LeftParameter(LeftParameter const& other) : XMLIdentified(other), ParameterImpl<T>(other) {}

    std::string description() const override { return std::string(); }

    void receiveDispatcher(ParameterDispatcher* dispatcher) override {
        dispatcher->dispatch(dynamic_pointer_cast<LeftParameter<T> >(this->shared_from_this()));
    }
    void receiveDispatcher(ConstParameterDispatcher* dispatcher) const override {
        dispatcher->dispatch(dynamic_pointer_cast<LeftParameter<T> const>(this->shared_from_this()));
    }

    shared_ptr<Interpolater<T> > interpolaterAtTime(double) const override { return LeftInterpolater<T>::instance(); }
    shared_ptr<Parameter<shared_ptr<Interpolater<T> > > > interpolaterParam() const override {
        return shared_ptr<Parameter<shared_ptr<Interpolater<T> > > >();
    }

    LeftParameter* clone() const override {
        ReadWriteMutex::ScopedReadLock lock(&this->mutex());
        return new LeftParameter(*this);
    }

    void xmlName(XMLable::Options& options) const override { *options.stream << "Parameter"; }
    void xmlAttributes(XMLable::Options&) const override {}
    void xmlBody(XMLable::Options& options, int indent) const override { this->xmlOfKeyFrames(options, indent); }
};

// Compiled once in the library (ParameterInstances.cpp) and exported from it: every user shares
// its one vtable and typeinfo, so that a dynamic_cast or catch across the library boundary
// sees a single class.
extern template class ZML_EXPORT LeftParameter<std::string>;
extern template class ZML_EXPORT LeftParameter<Color>;
extern template class ZML_EXPORT LeftParameter<shared_ptr<IMFile> >;
extern template class ZML_EXPORT LeftParameter<shared_ptr<Interpolater<double> > >;
extern template class ZML_EXPORT LeftParameter<shared_ptr<Interpolater<float> > >;
extern template class ZML_EXPORT LeftParameter<shared_ptr<Interpolater<Point> > >;
extern template class ZML_EXPORT LeftParameter<shared_ptr<Interpolater<TransformMatrix> > >;
extern template class ZML_EXPORT LeftParameter<shared_ptr<Interpolater<AudioPosition> > >;

}  // namespace ZelmarMediaLib
