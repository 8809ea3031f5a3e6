#pragma once
// Video from a file track, placed as a media.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Rect.h>
#include <ZelmarMediaLib/timeline/FileRepresentation.h>
#include <ZelmarMediaLib/timeline/VideoMedia.h>

#include <memory>
#include <string>

namespace ZelmarMediaLib {

template <class T>
class Attribute;
class IMFile;
class ScreenMetaData;
class VisualFileMedia;

class ZML_EXPORT VMFile : public VideoMedia, public FileRepresentation {
public:
    // The material's limits are the source's time range. Raises "trying to make a vmfile with
    // an invalid source track" unless the source has that track and it is a video track.
    VMFile(Range<long long> const& range, weak_ptr<ThreadSafe const> project, shared_ptr<Source const> source,
           unsigned int track);
    // A file without a source: its name and picture size are given.
    VMFile(Range<long long> const& range, Rect<float> const& rect, weak_ptr<ThreadSafe const> project,
           std::string const& file, double mediaStart, double mediaDuration, unsigned int track);
    VMFile(VMFile const& other);
    ~VMFile() override;

    std::string description() const override;
    VMFile* clone() const override;
    void receiveDispatcher(ConstMediaDispatcher* dispatcher) const override;
    void receiveDispatcher(MediaDispatcher* dispatcher) override;
    // Whether source is this media's own source, by pointer.
    bool isInstanceOf(shared_ptr<Source const> source) const override;
    void xmlOfAttributes(XMLable::Options& options, int indent) const override;
    void xmlName(XMLable::Options& options) const override;
    // The media's timing, trackNumber, then src, the source's id, when there is a source.
    void xmlAttributes(XMLable::Options& options) const override;
    // The visual media's body, then the screen meta data when there is some.
    void xmlBody(XMLable::Options& options, int indent) const override;

    // The source's track rectangle; without a source, the rectangle that was given.
    float width() const override;
    float height() const override;
    // A still of the moment, one unit long, starting at the moment's parameter time, on the
    // same source and track. A media without a source gives a still without a file.
    virtual shared_ptr<IMFile> grabFrame(double time) const;
    std::string fileName() const override;
    std::string containerFileName() const override;
    unsigned int trackNumber() const;
    shared_ptr<Source const> source() const;
    // Empty until the source gives the media its meta data; changed under undo by commands.
    shared_ptr<Attribute<shared_ptr<ScreenMetaData const> > > screenMetaData();
    shared_ptr<Attribute<shared_ptr<ScreenMetaData const> > const> screenMetaData() const;

private:
    // The source form, once the track is known to be a video track of the source.
    VMFile(Range<long long> const& range, Range<long long> const& limits, weak_ptr<ThreadSafe const> project,
           shared_ptr<Source const> const& source, unsigned int track);

    std::unique_ptr<VisualFileMedia> file_;
    // A copy shares the meta data object: the side files are those of the same recording.
    shared_ptr<Attribute<shared_ptr<ScreenMetaData const> > > screenMetaData_;
    // Read only without a source: with one, the size follows the source's file.
    Rect<float> rect_;
};

}  // namespace ZelmarMediaLib
