#pragma once
// A text of its own over the picture, with no file behind it.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/timeline/ImageMedia.h>

#include <string>

namespace ZelmarMediaLib {

template <class T>
class Attribute;
template <class T>
class LeftParameter;

class ZML_EXPORT TextBox : public ImageMedia {
public:
    TextBox(std::string const& text, long long duration, float width, float height,
            weak_ptr<ThreadSafe const> project);
    TextBox(TextBox const& other);

    std::string description() const override;
    TextBox* clone() const override;
    void receiveDispatcher(ConstMediaDispatcher* dispatcher) const override;
    void receiveDispatcher(MediaDispatcher* dispatcher) override;
    bool isInstanceOf(shared_ptr<Source const> source) const override;
    int numParameters() const override;
    int numAttributes() const override;
    ParameterVector* parameterVector() const override;
    void xmlOfParameters(XMLable::Options& options, int indent) const override;
    void xmlOfAttributes(XMLable::Options& options, int indent) const override;
    void xmlName(XMLable::Options& options) const override;
    // Its own short list: start, duration, width, height, trimStartSum.
    void xmlAttributes(XMLable::Options& options) const override;

    float width() const override;
    float height() const override;

    // The text jumps at keyframes and holds until the next.
    shared_ptr<LeftParameter<std::string> > text();
    shared_ptr<LeftParameter<std::string> const> text() const;
    shared_ptr<Attribute<float> > widthAttr();
    shared_ptr<Attribute<float> const> widthAttr() const;
    shared_ptr<Attribute<float> > heightAttr();
    shared_ptr<Attribute<float> const> heightAttr() const;

private:
    shared_ptr<LeftParameter<std::string> > text_;
    shared_ptr<Attribute<float> > width_;
    shared_ptr<Attribute<float> > height_;
};

}  // namespace ZelmarMediaLib
