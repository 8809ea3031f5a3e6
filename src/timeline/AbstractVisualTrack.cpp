#include <ZelmarMediaLib/timeline/AbstractVisualTrack.h>

#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/timeline/VisualMedia.h>

#include <ostream>

namespace ZelmarMediaLib {

AbstractVisualTrack::AbstractVisualTrack(weak_ptr<ThreadSafe const> project) : Track(project), Transformer(project) {}

AbstractVisualTrack::AbstractVisualTrack(AbstractVisualTrack const& other)
    : XMLIdentified(other), Track(other), Transformer(other) {}

AbstractVisualTrack::~AbstractVisualTrack() = default;

int AbstractVisualTrack::numParameters() const {
    return 2;
}

ParameterVector* AbstractVisualTrack::parameterVector() const {
    ParameterVector* parameters = new ParameterVector(projectMutex());
    Transformer::addTransformerParametersToParameters(this, parameters);
    return parameters;
}

void AbstractVisualTrack::xmlName(XMLable::Options& options) const {
    *options.stream << "AbstractVisualTrack";
}

void AbstractVisualTrack::xmlBody(XMLable::Options& options, int indent) const {
    Track::xmlBody(options, indent);
    genXMLForTransformer(options, indent);
}

AbstractVisualTrack::VisualMediaMap AbstractVisualTrack::visualMedias() const {
    return VisualMediaMap(medias());
}

ConstIterator<AbstractVisualTrack::VisualMediaMap> AbstractVisualTrack::visualMediaBegin() const {
    shared_ptr<ReadWriteMutex::ScopedReadLock> lock = boost::make_shared<ReadWriteMutex::ScopedReadLock>(&mutex());
    return ConstIterator<VisualMediaMap>(visualMedias().begin(), lock);
}

ConstIterator<AbstractVisualTrack::VisualMediaMap> AbstractVisualTrack::visualMediaEnd() const {
    shared_ptr<ReadWriteMutex::ScopedReadLock> lock = boost::make_shared<ReadWriteMutex::ScopedReadLock>(&mutex());
    return ConstIterator<VisualMediaMap>(visualMedias().end(), lock);
}

AbstractVisualTrack::VisualMediaMap::const_iterator AbstractVisualTrack::visualMediaBegin() {
    return visualMedias().begin();
}

AbstractVisualTrack::VisualMediaMap::const_iterator AbstractVisualTrack::visualMediaEnd() {
    return visualMedias().end();
}

ConstIterator<AbstractVisualTrack::VisualMediaMap> AbstractVisualTrack::typeSafeMediaBegin() const {
    return visualMediaBegin();
}

ConstIterator<AbstractVisualTrack::VisualMediaMap> AbstractVisualTrack::typeSafeMediaEnd() const {
    return visualMediaEnd();
}

}  // namespace ZelmarMediaLib
