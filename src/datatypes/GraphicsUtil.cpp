#include <ZelmarMediaLib/datatypes/GraphicsUtil.h>

namespace ZelmarMediaLib {
namespace GraphicsUtil {

Point project(Point const& point, TransformMatrix const& modelView, TransformMatrix const& projection,
              Rect<int> const& viewport) {
    TransformMatrix combined = modelView;
    combined.prepend(projection);
    Point const normalized = combined * point;
    return Point(viewport.x + viewport.width * (normalized.x + 1.0) * 0.5,
                 viewport.y + viewport.height * (normalized.y + 1.0) * 0.5, (normalized.z + 1.0) * 0.5);
}

Point unProject(Point const& point, TransformMatrix const& modelView, TransformMatrix const& projection,
                Rect<int> const& viewport) {
    TransformMatrix combined = modelView;
    combined.prepend(projection);
    Point const normalized(2.0 * (point.x - viewport.x) / viewport.width - 1.0,
                           2.0 * (point.y - viewport.y) / viewport.height - 1.0, 2.0 * point.z - 1.0);
    return combined.inverse() * normalized;
}

TransformMatrix calcTransformFromComponents(double const* scale, double const* translation, double const* rotation,
                                            double const* shear, double const* anchor) {
    // Appended in the reverse of the order in which they act on a point.
    TransformMatrix result;
    result.append(TransformMatrix::translate(translation[0], translation[1], translation[2]));
    result.append(TransformMatrix::shear(shear[0], shear[1]));
    result.append(TransformMatrix::rotateAroundX(rotation[0]));
    result.append(TransformMatrix::rotateAroundY(rotation[1]));
    result.append(TransformMatrix::rotateAroundZ(rotation[2]));
    result.append(TransformMatrix::scale(scale[0], scale[1], scale[2]));
    result.append(TransformMatrix::translate(-anchor[0], -anchor[1], -anchor[2]));
    return result;
}

}  // namespace GraphicsUtil
}  // namespace ZelmarMediaLib
