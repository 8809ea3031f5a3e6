#pragma once
// A still from a file track, placed as a media.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/timeline/FileRepresentation.h>
#include <ZelmarMediaLib/timeline/ImageMedia.h>

#include <memory>

namespace ZelmarMediaLib {

class VisualFileMedia;

class ZML_EXPORT AbstractIMFile : public ImageMedia, public FileRepresentation {
public:
    ~AbstractIMFile() override;

    // Whether source is this media's own source, by pointer; never for a still without one.
    bool isInstanceOf(shared_ptr<Source const> source) const override;
    void xmlOfAttributes(XMLable::Options& options, int indent) const override;
    // The media's timing, trackNumber, src when there is a source, then trimStartSum.
    void xmlAttributes(XMLable::Options& options) const override;

    // The size of the source's track picture; 0 without a source.
    float width() const override;
    float height() const override;
    std::string fileName() const override;
    std::string containerFileName() const override;
    unsigned int trackNumber() const;
    shared_ptr<Source const> source() const;

protected:
    // The material's limits are the source's time range; a still without a source spans one
    // unit of material. A video track is accepted, so that a frame can be grabbed from it; any
    // other raises "trying to make an AbstractIMFile with an invalid source track".
    AbstractIMFile(long long start, long long duration, weak_ptr<ThreadSafe const> project,
                   shared_ptr<Source const> source, unsigned int track);
    AbstractIMFile(AbstractIMFile const& other);

private:
    // Once the track is known to be a picture of the source.
    AbstractIMFile(long long start, long long duration, Range<long long> const& limits,
                   weak_ptr<ThreadSafe const> project, shared_ptr<Source const> const& source, unsigned int track);

    std::unique_ptr<VisualFileMedia> file_;
};

// The concrete still.
class ZML_EXPORT IMFile : public AbstractIMFile {
public:
    IMFile(long long start, long long duration, weak_ptr<ThreadSafe const> project, shared_ptr<Source const> source,
           unsigned int track);
    IMFile(IMFile const& other);

    std::string description() const override;
    IMFile* clone() const override;
    void receiveDispatcher(ConstMediaDispatcher* dispatcher) const override;
    void receiveDispatcher(MediaDispatcher* dispatcher) override;
    void xmlName(XMLable::Options& options) const override;
};

}  // namespace ZelmarMediaLib
