#include "tools/json_text.h"

#include <nlohmann/json.hpp>

std::string JsonText(const nlohmann::ordered_json& json) {
    return json.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}
