// Writing XML.
#pragma once

#include <initializer_list>
#include <pugixml.hpp>
#include <string>

struct XmlAttribute {
    XmlAttribute(const char* ofName, std::string ofValue) : name(ofName), value(std::move(ofValue)) {}
    XmlAttribute(const char* ofName, int ofValue) : name(ofName), value(std::to_string(ofValue)) {}

    const char* name;
    std::string value;
};

/// The new last child of `parent`, with `text` in it.
pugi::xml_node AppendElement(pugi::xml_node parent, const char* name,
                             std::initializer_list<XmlAttribute> attributes, const std::string& text = "");

/// Each element in a line of its own, as deep as `indent` says.
std::string XmlText(const pugi::xml_document& document, const char* indent);
