#include "json.h"

#include <tern7/core/corekit/numbers.h>
#include <tern7/core/corekit/strings.h>

namespace tern7 {

void AppendJsonString(std::string& out, std::string_view text) {
    out += '"';
    for (char c : text) {
        switch (c) {
        case '"':
        case '\\':
            out += '\\';
            out += c;
            break;
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\t':
            out += "\\t";
            break;
        default:
            if (static_cast<unsigned char>(c) < ' ') {
                constexpr char digits[] = "0123456789abcdef";
                out += "\\u00";
                out += digits[c >> 4];
                out += digits[c & 15];
            } else {
                out += c;
            }
        }
    }
    out += '"';
}

void AppendJsonNumber(std::string& out, std::string_view number) {
    if (!IsNumber(number)) {
        AppendJsonString(out, number);
        return;
    }
    number = Trim(number);
    if (number[0] == '-') out += '-';
    if (number[0] == '-' || number[0] == '+') number.remove_prefix(1);
    // JSON wants a digit on both sides of a point, and no zero in front of another digit
    while (number.size() > 1 && number[0] == '0' && IsDigit(number[1]))
        number.remove_prefix(1);
    if (number[0] == '.') out += '0';
    for (size_t i = 0; i < number.size(); ++i) {
        out += number[i];
        const bool digitFollows = i + 1 < number.size() && IsDigit(number[i + 1]);
        if (number[i] == '.' && !digitFollows) out += '0';
    }
}

} // namespace tern7
