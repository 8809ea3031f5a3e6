#pragma once
// Vector arithmetic and the 2-D tests of quads and segments on which hit testing rests.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Point.h>
#include <ZelmarMediaLib/datatypes/Quad.h>

namespace ZelmarMediaLib {

// None of these guards against zero lengths or parallel rays: the result is then an
// infinity or NaN, and the caller takes it as it comes.
namespace VectorUtil {

// The vector from a to b.
ZML_EXPORT Point createVector(Point const& a, Point const& b);
ZML_EXPORT double length(Point const& v);
ZML_EXPORT void normalize(Point& v);
ZML_EXPORT Point midPoint(Point const& a, Point const& b);
ZML_EXPORT double dotProduct(Point const& a, Point const& b);
ZML_EXPORT Point crossProduct(Point const& a, Point const& b);
// The unit normal of the plane spanned by a and b, in the direction of their cross product.
ZML_EXPORT Point computeNormal(Point const& a, Point const& b);
ZML_EXPORT Point computeNormal(Quad const& quad);

// The 2-D tests below ignore z and rest on a strict turn test: touching or collinear
// segments give whatever that test gives, with no special case.
ZML_EXPORT bool linesIntersect2D(Point const& a, Point const& b, Point const& c, Point const& d);
// True at the first side of the quad that the segment from a to b crosses.
ZML_EXPORT bool lineIntersectsQuad2D(Point const& a, Point const& b, Quad const& quad);
// Needs a convex quad, of either winding. A point on an edge is outside, except on the first
// edge of a quad whose other edges all turn the other way.
ZML_EXPORT bool quadContainsPoint(Quad const& quad, Point const& point);
// True as soon as any one corner of inner lies in outer, not only when all do.
ZML_EXPORT bool quadInsideOfQuad(Quad const& inner, Quad const& outer);
// Crossing sides first, then the corners of each quad in the other.
ZML_EXPORT bool quadsIntersect2D(Quad const& q, Quad const& r);
// The point where the ray meets the plane of the quad; it may lie behind the origin.
ZML_EXPORT Point intersectionOfRayWithPlane(Point const& origin, Point const& direction, Quad const& quad);

}  // namespace VectorUtil

}  // namespace ZelmarMediaLib
