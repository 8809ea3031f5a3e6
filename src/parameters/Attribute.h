#pragma once
// A named, observable, cloneable constant of a model object, changed by undoable commands.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Cloneable.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/datatypes/SubProject.h>
#include <ZelmarMediaLib/datatypes/Subject.h>
#include <ZelmarMediaLib/datatypes/XMLRepresentation.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>

#include <ostream>

namespace ZelmarMediaLib {

template <class T>
class Attribute : public SubProject, public virtual Cloneable, public XMLable, public Subject {
public:
    Attribute(T const& value, weak_ptr<ThreadSafe const> project) : SubProject(project), value_(value) {}
    // The copy has the value and the project, a number of its own and no observers.
    Attribute(Attribute const& other) = default;

    Attribute* clone() const override {
        ReadWriteMutex::ScopedReadLock lock(&mutex());
        return new Attribute(*this);
    }

    // A plain read: the caller holds the read lock.
    T const& value() const { return value_; }
    // The caller holds the write lock; observers hear of every change.
    void setValue(T const& value) {
        value_ = value;
        notify();
    }

    void xmlName(XMLable::Options& options) const override { *options.stream << "Attribute"; }
    void xmlAttributes(XMLable::Options& options) const override {
        *options.stream << "value=\"" << xml_representation(value_) << '"';
    }
    void xmlBody(XMLable::Options&, int) const override {}

private:
    T value_;
};

}  // namespace ZelmarMediaLib
