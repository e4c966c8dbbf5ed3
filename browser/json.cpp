#include "browser/json.h"

#include <cstdio>

std::string JsonQuoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char letter : text) {
        const auto code = static_cast<unsigned char>(letter);
        if (letter == '"' || letter == '\\') {
            quoted += '\\';
            quoted += letter;
        } else if (code < 0x20) {
            char escaped[8];
            std::snprintf(escaped, sizeof(escaped), "\\u%04x", code);
            quoted += escaped;
        } else {
            quoted += letter;
        }
    }
    return quoted + "\"";
}

JsonObject& JsonObject::Add(std::string_view name, double value) {
    char written[32];
    std::snprintf(written, sizeof(written), "%.6g", value);
    return AddRaw(name, written);
}

JsonObject& JsonObject::AddRaw(std::string_view name, const std::string& json) {
    if (text.size() > 1) text += ',';
    text += JsonQuoted(name) + ':' + json;
    return *this;
}
