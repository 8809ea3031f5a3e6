#include "support/XmlCheck.h"

#include <libxml/parser.h>

namespace ZelmarMediaLib {
namespace test {

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
