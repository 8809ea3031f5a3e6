#pragma once
// The file side of a picture media: the file and track that it shows, through a source or by a name of its own.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Rect.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>
#include <ZelmarMediaLib/timeline/FileRepresentation.h>

#include <string>

namespace ZelmarMediaLib {

class Source;
class ThreadSafe;

// Owned by a VMFile or an AbstractIMFile, which forward to it. With a source the names are
// asked of the source's statistics each time, so that they follow the source to a new file;
// without one the stored name stands for both.
class ZML_EXPORT VisualFileMedia : public virtual ZelmarObject, public FileRepresentation {
public:
    VisualFileMedia(weak_ptr<ThreadSafe const> project, shared_ptr<Source const> source, unsigned int track);
    // The rectangle is not kept: an owner that needs the size keeps it itself.
    VisualFileMedia(weak_ptr<ThreadSafe const> project, std::string const& file, Rect<float> const& rect,
                    unsigned int track);
    VisualFileMedia(VisualFileMedia const& other);
    ~VisualFileMedia() override;

    std::string description() const override;
    virtual VisualFileMedia* clone() const;
    // A track of a bundle names its own component file.
    std::string fileName() const override;
    // The bundle, or the file itself.
    std::string containerFileName() const override;

    unsigned int trackNumber() const;
    shared_ptr<Source const> source() const;

    // The naming rules of a source's track, which AMFile follows as well.
    static std::string trackFileName(Source const& source, unsigned int track);
    static std::string containerFileName(Source const& source);

private:
    VisualFileMedia& operator=(VisualFileMedia const&) = delete;

    weak_ptr<ThreadSafe const> project_;
    std::string fileName_;
    unsigned int trackNumber_;
    shared_ptr<Source const> source_;
};

}  // namespace ZelmarMediaLib
