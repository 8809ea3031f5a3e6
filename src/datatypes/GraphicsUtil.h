#pragma once
// Projection between model space and a viewport, and the composition of a transform from its components.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Point.h>
#include <ZelmarMediaLib/datatypes/Rect.h>
#include <ZelmarMediaLib/datatypes/TransformMatrix.h>

namespace ZelmarMediaLib {

namespace GraphicsUtil {

// Through modelView, then projection, then into the viewport; z lands in 0 to 1.
ZML_EXPORT Point project(Point const& point, TransformMatrix const& modelView, TransformMatrix const& projection,
              Rect<int> const& viewport);
// The way back from viewport coordinates. An empty viewport divides by zero, and a singular
// product gives a matrix that is not an inverse; neither is reported.
ZML_EXPORT Point unProject(Point const& point, TransformMatrix const& modelView, TransformMatrix const& projection,
                Rect<int> const& viewport);

// A point is moved so that the anchor lies at the origin, then scaled, rotated about Z, Y and
// X, sheared, and translated. The anchor is not added back, so with a non-zero anchor the
// object's anchor point lands on the translation. Each argument points at three numbers,
// shear at two.
ZML_EXPORT TransformMatrix calcTransformFromComponents(double const* scale, double const* translation, double const* rotation,
                                            double const* shear, double const* anchor);

// calcModelMatrix arrives with the timeline model, whose transformers it combines.

}  // namespace GraphicsUtil

}  // namespace ZelmarMediaLib
