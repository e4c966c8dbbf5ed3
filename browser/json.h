// An object of JSON, written member by member.
#pragma once

#include <concepts>
#include <string>
#include <string_view>

/// `text` in quotation marks.
std::string JsonQuoted(std::string_view text);

class JsonObject {
  public:
    JsonObject& Add(std::string_view name, const std::string& value) {
        return AddRaw(name, JsonQuoted(value));
    }
    JsonObject& Add(std::string_view name, const char* value) { return AddRaw(name, JsonQuoted(value)); }
    JsonObject& Add(std::string_view name, bool value) { return AddRaw(name, value ? "true" : "false"); }
    JsonObject& Add(std::string_view name, std::integral auto value) {
        return AddRaw(name, std::to_string(value));
    }
    JsonObject& Add(std::string_view name, double value);

    /// `json` is a value already.
    JsonObject& AddRaw(std::string_view name, const std::string& json);

    std::string Text() const { return text + "}"; }

  private:
    std::string text = "{";
};

/// The values as an array.
template <typename Values, typename Writer>
std::string JsonArray(const Values& values, Writer toJson) {
    std::string text = "[";
    for (const auto& value : values)
        text += (text.size() > 1 ? "," : "") + toJson(value);
    return text + "]";
}
