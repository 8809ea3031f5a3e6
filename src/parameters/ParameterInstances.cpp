// The concrete parameter classes of the system, instantiated once here so that every
// member is compiled for every value type the model uses. Their headers declare them
// extern and exported, so that the library and its applications share this one copy of each.
#include <ZelmarMediaLib/datatypes/AudioPosition.h>
#include <ZelmarMediaLib/datatypes/Color.h>
#include <ZelmarMediaLib/datatypes/Point.h>
#include <ZelmarMediaLib/datatypes/TransformMatrix.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/parameters/LeftParameter.h>

namespace ZelmarMediaLib {

class IMFile;

template class InterpolatingParam<double>;
template class InterpolatingParam<float>;
template class InterpolatingParam<Point>;
template class InterpolatingParam<TransformMatrix>;
template class InterpolatingParam<AudioPosition>;

template class LeftParameter<std::string>;
template class LeftParameter<Color>;
template class LeftParameter<shared_ptr<IMFile> >;
template class LeftParameter<shared_ptr<Interpolater<double> > >;
template class LeftParameter<shared_ptr<Interpolater<float> > >;
template class LeftParameter<shared_ptr<Interpolater<Point> > >;
template class LeftParameter<shared_ptr<Interpolater<TransformMatrix> > >;
template class LeftParameter<shared_ptr<Interpolater<AudioPosition> > >;

}  // namespace ZelmarMediaLib
