#include <ZelmarMediaLib/datatypes/XMLable.h>

#include <ZelmarMediaLib/datatypes/IdentManager.h>

#include <ostream>

namespace ZelmarMediaLib {

namespace {

// The same blanks as genIndent(n), without making a string for every line.
void writeIndent(std::ostream& out, int n) {
    static char const blanks[] = "                                                                ";
    std::streamsize const chunk = static_cast<std::streamsize>(sizeof blanks - 1);
    for (std::streamsize left = n; left > 0; left -= chunk)
        out.write(blanks, left < chunk ? left : chunk);
}

}  // namespace

XMLIdentified::XMLIdentified() : ident_(IdentManager::instance()->newIdent()) {}

XMLIdentified::XMLIdentified(XMLIdentified const&) : ident_(IdentManager::instance()->newIdent()) {}

XMLIdentified& XMLIdentified::operator=(XMLIdentified const&) {
    return *this;
}

XMLIdentified::~XMLIdentified() {
    IdentManager::instance()->retireIdent(ident_);
}

void XMLable::toXML(Options& options, int indent, std::string extraAttributes) const {
    std::ostream& out = *options.stream;
    // The blank after the id and the one before the extra attributes are always written:
    // an element without attributes opens with `"  >`, and that spacing is the format.
    writeIndent(out, indent);
    out << '<';
    xmlName(options);
    out << " id=\"" << xmlIdent() << "\" ";
    xmlAttributes(options);
    out << ' ' << extraAttributes << ">\n";
    xmlBody(options, indent + 1);
    writeIndent(out, indent);
    out << "</";
    xmlName(options);
    out << ">\n";
}

void XMLable::toXML(std::ostream& out) const {
    Options options(&out);
    toXML(options, 0, "");
}

std::string XMLable::genIndent(int n) {
    return n > 0 ? std::string(static_cast<std::size_t>(n), ' ') : std::string();
}

}  // namespace ZelmarMediaLib
