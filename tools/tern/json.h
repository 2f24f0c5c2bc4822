#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace tern7 {

/// Appends the text as a JSON string.
void AppendJsonString(std::string& out, std::string_view text);
/// Appends a decimal number (sign, digits, point and exponent as they come) the way JSON wants it,
/// digit for digit; as a string when it is no such number.
void AppendJsonNumber(std::string& out, std::string_view number);

/// An object of JSON, a member at a time.
class TJsonObject {
public:
    explicit TJsonObject(std::string& target) : out(target) { out += '{'; }
    TJsonObject& Text(std::string_view key, std::string_view value) {
        Key(key);
        AppendJsonString(out, value);
        return *this;
    }
    TJsonObject& Bool(std::string_view key, bool value) {
        Key(key);
        out += value ? "true" : "false";
        return *this;
    }
    TJsonObject& Int(std::string_view key, int value) {
        Key(key);
        out += std::to_string(value);
        return *this;
    }
    /// The value of the key is to be appended next.
    void Key(std::string_view key) {
        if (!first) out += ',';
        first = false;
        AppendJsonString(out, key);
        out += ':';
    }
    void End() { out += '}'; }

private:
    std::string& out;
    bool first = true;
};

template <class Items, class Append>
void AppendJsonArray(std::string& out, const Items& items, const Append& append) {
    out += '[';
    bool first = true;
    for (const auto& item : items) {
        if (!std::exchange(first, false)) out += ',';
        append(item);
    }
    out += ']';
}

} // namespace tern7
