#include "tools/xml_text.h"

#include <sstream>

pugi::xml_node AppendElement(pugi::xml_node parent, const char* name,
                             std::initializer_list<XmlAttribute> attributes, const std::string& text) {
    pugi::xml_node element = parent.append_child(name);
    for (const XmlAttribute& attribute : attributes)
        element.append_attribute(attribute.name) = attribute.value.c_str();
    if (!text.empty()) element.text() = text.c_str();
    return element;
}

std::string XmlText(const pugi::xml_document& document, const char* indent) {
    std::ostringstream text;
    document.save(text, indent, pugi::format_indent | pugi::format_no_declaration);
    return text.str();
}
