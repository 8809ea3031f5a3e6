#pragma once
// What a parameter's value is between two keyframes: a blend, or the left value held.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

#include <string>

namespace ZelmarMediaLib {

// Stateless, so one instance of each kind and type serves every parameter of every project.
// Exported although wholly in this header: the shared instances, and the type identity of
// an application's own interpolaters, must be one across the library and the application.
template <class T>
class ZML_EXPORT Interpolater : public virtual ZelmarObject {
public:
    explicit Interpolater(std::string const& name) : name_(name) {}

    // Equal ends give the left one without blending; a NaN is never equal, so it blends.
    virtual T interpolate(T left, T right, double fraction) const {
        if (left == right)
            return left;
        return doInterpolate(left, right, fraction);
    }

    // The short name by which the interpolater shows in XML.
    std::string const& name() const { return name_; }

protected:
    // Applications override this, by value and const as here, for interpolaters of their own.
    virtual T doInterpolate(T left, T right, double fraction) const = 0;

private:
    std::string name_;
};

// In XML an interpolater is its name, unescaped.
template <class T>
std::string xml_representation(shared_ptr<Interpolater<T> > const& interpolater) {
    return interpolater ? interpolater->name() : std::string();
}

// A straight blend: left * (1 - f) + right * f.
template <class T>
class ZML_EXPORT LinearInterpolater : public Interpolater<T> {
public:
    // The shared instance, made on first use; safe when that use comes on several threads.
    static shared_ptr<LinearInterpolater<T> > const& instance() {
        static bool const made = (s_instance = shared_ptr<LinearInterpolater<T> >(new LinearInterpolater<T>), true);
        (void)made;
        return s_instance;
    }

    static shared_ptr<LinearInterpolater<T> > s_instance;

protected:
    T doInterpolate(T left, T right, double fraction) const override {
        return left * (1.0 - fraction) + right * fraction;
    }

private:
    LinearInterpolater() : Interpolater<T>("linr") {}
};

template <class T>
shared_ptr<LinearInterpolater<T> > LinearInterpolater<T>::s_instance;

// The float blend runs in double and is rounded back at the end.
template <>
inline float LinearInterpolater<float>::doInterpolate(float left, float right, double fraction) const {
    return static_cast<float>((1.0 - fraction) * static_cast<double>(left) + fraction * static_cast<double>(right));
}

template <>
inline double LinearInterpolater<double>::doInterpolate(double left, double right, double fraction) const {
    return (1.0 - fraction) * left + fraction * right;
}

// Holds the left value until the next keyframe.
template <class T>
class ZML_EXPORT LeftInterpolater : public Interpolater<T> {
public:
    static shared_ptr<LeftInterpolater<T> > const& instance() {
        static bool const made = (s_instance = shared_ptr<LeftInterpolater<T> >(new LeftInterpolater<T>), true);
        (void)made;
        return s_instance;
    }

    static shared_ptr<LeftInterpolater<T> > s_instance;

protected:
    T doInterpolate(T left, T, double) const override { return left; }

private:
    LeftInterpolater() : Interpolater<T>("left") {}
};

template <class T>
shared_ptr<LeftInterpolater<T> > LeftInterpolater<T>::s_instance;

}  // namespace ZelmarMediaLib
