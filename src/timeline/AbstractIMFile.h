#pragma once
// A still from a file track, placed as a media.
#include <ZelmarMediaLib/timeline/FileRepresentation.h>
#include <ZelmarMediaLib/timeline/ImageMedia.h>

namespace ZelmarMediaLib {

class AbstractIMFile : public ImageMedia, public FileRepresentation {
public:
    bool isInstanceOf(shared_ptr<Source const> source) const override;
    void xmlOfAttributes(XMLable::Options& options, int indent) const override;
    void xmlAttributes(XMLable::Options& options) const override;

    // The size of the source's track picture; 0 without a source.
    float width() const override;
    float height() const override;
    std::string fileName() const override;
    std::string containerFileName() const override;
    unsigned int trackNumber() const;
    shared_ptr<Source const> source() const;

protected:
    // The media range comes from the source's time range; a still without a source spans
    // one unit of material.
    AbstractIMFile(long long start, long long duration, weak_ptr<ThreadSafe const> project,
                   shared_ptr<Source const> source, unsigned int track);
    AbstractIMFile(AbstractIMFile const& other);

private:
    shared_ptr<Source const> source_;
    unsigned int trackNumber_;
};

// The concrete still.
class IMFile : public AbstractIMFile {
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
