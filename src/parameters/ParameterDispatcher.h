#pragma once
// Visitors over the concrete parameter classes, for code that must act on a parameter whose type it doesn't know.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>

#include <string>

namespace ZelmarMediaLib {

class AudioPosition;
class Color;
class IMFile;
class Point;
class TransformMatrix;
template <class T>
class InterpolatingParam;
template <class T>
class Interpolater;
template <class T>
class LeftParameter;

// The library implements none; the application does.
class ZML_EXPORT ParameterDispatcher {
public:
    virtual ~ParameterDispatcher() = default;
    virtual void dispatch(shared_ptr<InterpolatingParam<double> > parameter) = 0;
    virtual void dispatch(shared_ptr<InterpolatingParam<float> > parameter) = 0;
    virtual void dispatch(shared_ptr<InterpolatingParam<Point> > parameter) = 0;
    virtual void dispatch(shared_ptr<InterpolatingParam<TransformMatrix> > parameter) = 0;
    virtual void dispatch(shared_ptr<InterpolatingParam<AudioPosition> > parameter) = 0;
    virtual void dispatch(shared_ptr<LeftParameter<std::string> > parameter) = 0;
    virtual void dispatch(shared_ptr<LeftParameter<Color> > parameter) = 0;
    virtual void dispatch(shared_ptr<LeftParameter<shared_ptr<IMFile> > > parameter) = 0;
    virtual void dispatch(shared_ptr<LeftParameter<shared_ptr<Interpolater<double> > > > parameter) = 0;
    virtual void dispatch(shared_ptr<LeftParameter<shared_ptr<Interpolater<float> > > > parameter) = 0;
    virtual void dispatch(shared_ptr<LeftParameter<shared_ptr<Interpolater<Point> > > > parameter) = 0;
    virtual void dispatch(shared_ptr<LeftParameter<shared_ptr<Interpolater<TransformMatrix> > > > parameter) = 0;
    virtual void dispatch(shared_ptr<LeftParameter<shared_ptr<Interpolater<AudioPosition> > > > parameter) = 0;
};

class ZML_EXPORT ConstParameterDispatcher {
public:
    virtual ~ConstParameterDispatcher() = default;
    virtual void dispatch(shared_ptr<InterpolatingParam<double> const> parameter) = 0;
    virtual void dispatch(shared_ptr<InterpolatingParam<float> const> parameter) = 0;
    virtual void dispatch(shared_ptr<InterpolatingParam<Point> const> parameter) = 0;
    virtual void dispatch(shared_ptr<InterpolatingParam<TransformMatrix> const> parameter) = 0;
    virtual void dispatch(shared_ptr<InterpolatingParam<AudioPosition> const> parameter) = 0;
    virtual void dispatch(shared_ptr<LeftParameter<std::string> const> parameter) = 0;
    virtual void dispatch(shared_ptr<LeftParameter<Color> const> parameter) = 0;
    virtual void dispatch(shared_ptr<LeftParameter<shared_ptr<IMFile> > const> parameter) = 0;
    virtual void dispatch(shared_ptr<LeftParameter<shared_ptr<Interpolater<double> > > const> parameter) = 0;
    virtual void dispatch(shared_ptr<LeftParameter<shared_ptr<Interpolater<float> > > const> parameter) = 0;
    virtual void dispatch(shared_ptr<LeftParameter<shared_ptr<Interpolater<Point> > > const> parameter) = 0;
    virtual void dispatch(shared_ptr<LeftParameter<shared_ptr<Interpolater<TransformMatrix> > > const> parameter) = 0;
    virtual void dispatch(shared_ptr<LeftParameter<shared_ptr<Interpolater<AudioPosition> > > const> parameter) = 0;
};

}  // namespace ZelmarMediaLib
