#include "support/XmlCheck.h"

#include <ZelmarMediaLib/datatypes/XMLable.h>

#include <libxml/parser.h>

#include <sstream>

namespace ZelmarMediaLib {
namespace test {

std::string xml(XMLable const& object, std::string const& baseDirectory) {
    std::ostringstream out;
    XMLable::Options options(&out, baseDirectory);
    object.toXML(options, 0, "");
    return out.str();
}

std::string id(XMLable const& object) {
    return std::to_string(object.xmlIdent());
}

bool isWellFormedXml(std::string const& text, std::string* error) {
    xmlDocPtr document = xmlReadMemory(text.data(), static_cast<int>(text.size()), "written.xml", nullptr,
                                       XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    if (!document) {
        if (error) {
            xmlErrorPtr last = xmlGetLastError();
            *error = last && last->message ? last->message : "unknown parse error";
        }
        return false;
    }
    xmlFreeDoc(document);
    return true;
}

}  // namespace test
}  // namespace ZelmarMediaLib
