#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tern7 {

/// A condition template cut at its placeholders once, so that writing a condition is one pass.
class TKSQLTemplate {
public:
    enum class TPiece : uint8_t {
        Text,
        Field,
        Value1,
        Value2,
        NoValue, // a third or later value: conditions have two
        Table,
        MainTable
    };
    struct TItem {
        TPiece kind;
        uint32_t from = 0, length = 0; // the text of a Text piece
    };

    TKSQLTemplate() = default;
    explicit TKSQLTemplate(std::string newText) { SetText(std::move(newText)); }
    void SetText(std::string text);

    const std::string& Text() const { return text; }
    int ParamCount() const { return paramCount; }
    const std::vector<TItem>& Items() const { return items; }
    std::string_view TextOf(const TItem& item) const {
        return std::string_view(text).substr(item.from, item.length);
    }
    /// True when one pass over the pieces gives what the replacements one after the other give, as
    /// long as no inserted text holds an "@" itself.
    bool IsSimple() const { return simple; }
    /// True when value n stands outside quotes somewhere in the text.
    bool ValueIsBare(int n) const { return (bareValues >> n) & 1; }

private:
    std::string text;
    std::vector<TItem> items;
    int paramCount = 0;
    bool simple = true;
    unsigned bareValues = 0; // bit n: value n
};

} // namespace tern7
