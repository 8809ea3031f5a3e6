#include <ZelmarMediaLib/timeline/TextBox.h>

#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/edgemods/EdgeModCloneUtil.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/parameters/LeftParameter.h>
#include <ZelmarMediaLib/timeline/MediaDispatcher.h>

#include <ostream>

namespace ZelmarMediaLib {

TextBox::TextBox(std::string const& text, long long duration, float width, float height,
                 weak_ptr<ThreadSafe const> project)
    : ImageMedia(0, duration, 0.0, 1.0, project),
      text_(boost::make_shared<LeftParameter<std::string> >(project, "text")),
      width_(boost::make_shared<Attribute<float> >(width, project)),
      height_(boost::make_shared<Attribute<float> >(height, project)) {
    text_->addKeyFrame(0, text);
}

TextBox::TextBox(TextBox const& other)
    : XMLIdentified(other), ImageMedia(other), text_(other.text_->clone()), width_(other.width_->clone()),
      height_(other.height_->clone()) {}

std::string TextBox::description() const {
    return std::string();
}

TextBox* TextBox::clone() const {
    return EdgeModCloneUtil::withEdgeMods(std::unique_ptr<TextBox>(new TextBox(*this)), *this);
}

void TextBox::receiveDispatcher(ConstMediaDispatcher* dispatcher) const {
    dispatcher->dispatchMedia(dynamic_pointer_cast<TextBox const>(shared_from_this()));
}

void TextBox::receiveDispatcher(MediaDispatcher* dispatcher) {
    dispatcher->dispatchMedia(dynamic_pointer_cast<TextBox>(shared_from_this()));
}

// Unloading a source never removes a text box.
bool TextBox::isInstanceOf(shared_ptr<Source const>) const {
    return false;
}

int TextBox::numParameters() const {
    return 2;
}

int TextBox::numAttributes() const {
    return 3;
}

ParameterVector* TextBox::parameterVector() const {
    ParameterVector* parameters = VisualMedia::parameterVector();
    parameters->push_back(text_);
    return parameters;
}

void TextBox::xmlOfParameters(XMLable::Options& options, int indent) const {
    VisualMedia::xmlOfParameters(options, indent);
    text_->toXML(options, indent, "name=\"text\"");
}

void TextBox::xmlOfAttributes(XMLable::Options& options, int indent) const {
    identAttribute()->toXML(options, indent, "name=\"ident\"");
}

void TextBox::xmlName(XMLable::Options& options) const {
    *options.stream << "TextBox";
}

void TextBox::xmlAttributes(XMLable::Options& options) const {
    *options.stream << "start=\"" << startTime() << "\" duration=\"" << duration() << "\" width=\""
                    << width_->value() << "\" height=\"" << height_->value() << "\" trimStartSum=\""
                    << trimStartSum() << '"';
}

float TextBox::width() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return width_->value();
}

float TextBox::height() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return height_->value();
}

shared_ptr<LeftParameter<std::string> > TextBox::text() {
    return text_;
}

shared_ptr<LeftParameter<std::string> const> TextBox::text() const {
    return text_;
}

shared_ptr<Attribute<float> > TextBox::widthAttr() {
    return width_;
}

shared_ptr<Attribute<float> const> TextBox::widthAttr() const {
    return width_;
}

shared_ptr<Attribute<float> > TextBox::heightAttr() {
    return height_;
}

shared_ptr<Attribute<float> const> TextBox::heightAttr() const {
    return height_;
}

}  // namespace ZelmarMediaLib
