#pragma once
// A balloon or arrow still from a file, with a text area and a hot spot on it.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Point.h>
#include <ZelmarMediaLib/datatypes/Rect.h>
#include <ZelmarMediaLib/timeline/AbstractIMFile.h>

namespace ZelmarMediaLib {

template <class T>
class Attribute;
template <class T>
class LeftParameter;

class ZML_EXPORT Callout : public AbstractIMFile {
public:
    Callout(long long start, long long duration, weak_ptr<ThreadSafe const> project, shared_ptr<Source const> source,
            unsigned int track);
    Callout(Callout const& other);

    std::string description() const override;
    Callout* clone() const override;
    void receiveDispatcher(ConstMediaDispatcher* dispatcher) const override;
    void receiveDispatcher(MediaDispatcher* dispatcher) override;
    int numParameters() const override;
    int numAttributes() const override;
    ParameterVector* parameterVector() const override;
    void xmlOfParameters(XMLable::Options& options, int indent) const override;
    void xmlName(XMLable::Options& options) const override;
    // The file's attributes, then textRect and hotspot with two blanks between them.
    void xmlAttributes(XMLable::Options& options) const override;

    shared_ptr<Attribute<Point> > hotSpotAttr();
    shared_ptr<Attribute<Point> const> hotSpotAttr() const;
    shared_ptr<Attribute<Rect<float> > > textRectAttr();
    shared_ptr<Attribute<Rect<float> > const> textRectAttr() const;
    shared_ptr<LeftParameter<std::string> > textParam();
    shared_ptr<LeftParameter<std::string> const> textParam() const;

private:
    shared_ptr<Attribute<Point> > hotSpot_;
    shared_ptr<Attribute<Rect<float> > > textRect_;
    shared_ptr<LeftParameter<std::string> > text_;
};

}  // namespace ZelmarMediaLib
