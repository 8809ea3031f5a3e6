#include <ZelmarMediaLib/timeline/Callout.h>

#include <ZelmarMediaLib/edgemods/EdgeModCloneUtil.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/parameters/LeftParameter.h>
#include <ZelmarMediaLib/timeline/MediaDispatcher.h>

#include <ostream>

namespace ZelmarMediaLib {

Callout::Callout(long long start, long long duration, weak_ptr<ThreadSafe const> project,
                 shared_ptr<Source const> source, unsigned int track)
    : AbstractIMFile(start, duration, project, source, track),
      hotSpot_(boost::make_shared<Attribute<Point> >(Point(), project)),
      textRect_(boost::make_shared<Attribute<Rect<float> > >(Rect<float>(0, 0, 100, 100), project)),
      text_(boost::make_shared<LeftParameter<std::string> >(project, "text")) {
    text_->addKeyFrame(0, std::string());
}

Callout::Callout(Callout const& other)
    : XMLIdentified(other), AbstractIMFile(other), hotSpot_(other.hotSpot_->clone()),
      textRect_(other.textRect_->clone()), text_(other.text_->clone()) {}

std::string Callout::description() const {
    return std::string();
}

Callout* Callout::clone() const {
    return EdgeModCloneUtil::withEdgeMods(std::unique_ptr<Callout>(new Callout(*this)), *this);
}

void Callout::receiveDispatcher(ConstMediaDispatcher* dispatcher) const {
    dispatcher->dispatchMedia(dynamic_pointer_cast<Callout const>(shared_from_this()));
}

void Callout::receiveDispatcher(MediaDispatcher* dispatcher) {
    dispatcher->dispatchMedia(dynamic_pointer_cast<Callout>(shared_from_this()));
}

int Callout::numParameters() const {
    return 2;
}

int Callout::numAttributes() const {
    return 2;
}

ParameterVector* Callout::parameterVector() const {
    ParameterVector* parameters = VisualMedia::parameterVector();
    parameters->push_back(text_);
    return parameters;
}

void Callout::xmlOfParameters(XMLable::Options& options, int indent) const {
    VisualMedia::xmlOfParameters(options, indent);
    text_->toXML(options, indent, "name=\"text\"");
}

void Callout::xmlName(XMLable::Options& options) const {
    *options.stream << "Callout";
}

void Callout::xmlAttributes(XMLable::Options& options) const {
    AbstractIMFile::xmlAttributes(options);
    *options.stream << " textRect=\"" << textRect_->value() << "\"  hotspot=\"" << hotSpot_->value() << '"';
}

shared_ptr<Attribute<Point> > Callout::hotSpotAttr() {
    return hotSpot_;
}

shared_ptr<Attribute<Point> const> Callout::hotSpotAttr() const {
    return hotSpot_;
}

shared_ptr<Attribute<Rect<float> > > Callout::textRectAttr() {
    return textRect_;
}

shared_ptr<Attribute<Rect<float> > const> Callout::textRectAttr() const {
    return textRect_;
}

shared_ptr<LeftParameter<std::string> > Callout::textParam() {
    return text_;
}

shared_ptr<LeftParameter<std::string> const> Callout::textParam() const {
    return text_;
}

}  // namespace ZelmarMediaLib
