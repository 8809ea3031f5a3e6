#pragma once
// Video from a file track, placed as a media.
#include <ZelmarMediaLib/datatypes/Rect.h>
#include <ZelmarMediaLib/timeline/FileRepresentation.h>
#include <ZelmarMediaLib/timeline/VideoMedia.h>

#include <string>

namespace ZelmarMediaLib {

class VMFile : public VideoMedia, public FileRepresentation {
public:
    // A file without a source: its name and picture size are given.
    VMFile(Range<long long> const& range, Rect<float> const& rect, weak_ptr<ThreadSafe const> project,
           std::string const& file, double mediaStart, double mediaDuration, unsigned int track);
    VMFile(VMFile const& other);

    std::string description() const override;
    VMFile* clone() const override;
    void receiveDispatcher(ConstMediaDispatcher* dispatcher) const override;
    void receiveDispatcher(MediaDispatcher* dispatcher) override;
    bool isInstanceOf(shared_ptr<Source const> source) const override;
    void xmlOfAttributes(XMLable::Options& options, int indent) const override;
    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

    float width() const override;
    float height() const override;
    std::string fileName() const override;
    std::string containerFileName() const override;
    unsigned int trackNumber() const;

private:
    std::string fileName_;
    Rect<float> rect_;
    unsigned int trackNumber_;
};

}  // namespace ZelmarMediaLib
