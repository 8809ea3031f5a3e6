#pragma once
// An object that prints itself as one XML element: name, attributes and body, laid out to the byte.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/XMLIdentified.h>

#include <iosfwd>
#include <string>

namespace ZelmarMediaLib {

// XMLIdentified is a virtual base so that an object reaching it along several paths has one number.
class ZML_EXPORT XMLable : public virtual XMLIdentified {
public:
    // Passed by reference through the whole writing; every writer prints straight to the stream.
    struct Options {
        Options(std::ostream* streamTo = nullptr, std::string const& baseDirectoryOfPaths = std::string())
            : stream(streamTo), baseDirectory(baseDirectoryOfPaths) {}

        std::ostream* stream;
        // Empty: paths are written as they stand; otherwise absolute paths are made relative to it.
        std::string baseDirectory;
    };

    XMLable() = default;
    XMLable(XMLable const&) = default;
    XMLable& operator=(XMLable const&) { return *this; }
    ~XMLable() override = default;

    // indent blanks, "<", name, ` id="N" `, attributes, " ", extra, ">\n", body at
    // indent + 1, indent blanks, "</", name, ">\n". There is no short form.
    virtual void toXML(Options& options, int indent, std::string extraAttributes) const;
    virtual void xmlName(Options& options) const = 0;
    virtual void xmlAttributes(Options& options) const = 0;
    virtual void xmlBody(Options& options, int indent) const = 0;

    // Writes the element at indent 0, with no extra attributes and no base directory.
    void toXML(std::ostream& out) const;

    // One level of nesting is one blank.
    static std::string genIndent(int n);
};

}  // namespace ZelmarMediaLib
