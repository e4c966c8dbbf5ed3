#include "tools/json_text.h"

#include <iomanip>
#include <sstream>

std::string JsonQuoted(std::string_view text) {
    std::ostringstream quoted;
    quoted << '"' << std::hex << std::setfill('0');
    for (const char c : text) {
        if (static_cast<unsigned char>(c) < ' ')
            quoted << "\\u" << std::setw(4) << static_cast<int>(c);
        else if (c == '"' || c == '\\')
            quoted << '\\' << c;
        else
            quoted << c;
    }
    quoted << '"';
    return quoted.str();
}
