#include <algorithm>
#include <unordered_set>

#include <tern7/core/structure/structure.h>

namespace tern7 {

namespace {

bool IsNameChar(char c) {
    return IsLetter(c) || IsDigit(c) || c == '_' || c == '#' || c == '$' ||
           static_cast<unsigned char>(c) > 127;
}

/// A name that stands before a point; `from` and `to` enclose name and point.
struct TPrefix {
    std::string_view name;
    size_t from, to;
};

/// Walks over the names of an expression that stand before a point, outside literals.
class TPrefixScanner {
public:
    TPrefixScanner(std::string_view expression, const TSQLFormats& formats)
        : text(expression), open(formats.QuoteSymbol1()), close(formats.QuoteSymbol2()) {}

    bool Next(TPrefix& prefix) {
        while (at < text.size()) {
            const size_t from = at;
            const std::string_view name = NextName();
            if (!name.empty() && at < text.size() && text[at] == '.') {
                prefix = {name, from, ++at};
                return true;
            }
        }
        return false;
    }

private:
    // Steps over one literal, quoted name, plain name or other character; gives a name.
    std::string_view NextName() {
        const char c = text[at];
        const size_t start = at++;
        if (c == '\'') {
            SkipTo('\'');
            return {};
        }
        if (c == '"' || (open && c == open)) {
            SkipTo(c == '"' ? '"' : close);
            return text.substr(start + 1, at - start - (Closed(start) ? 2 : 1));
        }
        if (!IsNameChar(c)) return {};
        while (at < text.size() && IsNameChar(text[at]))
            ++at;
        return text.substr(start, at - start);
    }
    void SkipTo(char end) { at = std::min(text.find(end, at), text.size() - 1) + 1; }
    bool Closed(size_t start) const {
        return at - start > 1 && (text[at - 1] == '"' || text[at - 1] == close);
    }

    std::string_view text;
    char open, close;
    size_t at = 0;
};

} // namespace

std::vector<TDSTable*> TKCustomDBStructure::TablesOfExpression(std::string_view expression) const {
    std::vector<TDSTable*> found;
    std::unordered_set<const TDSTable*> known;
    TPrefixScanner scanner(expression, SQLFormats());
    for (TPrefix prefix; scanner.Next(prefix);)
        if (TDSTable* named = TableByName(true, prefix.name); named && known.insert(named).second)
            found.push_back(named);
    return found;
}

const std::vector<TDSTable*>& TDSField::GetTables() const {
    static const std::vector<TDSTable*> none;
    if (kind == TKFieldKind::kfkData) return table ? table->self : none;
    if (!prefixTables) prefixTables = std::make_unique<TPrefixTables>();
    if (prefixTables->revision != structure.Revision()) {
        prefixTables->tables = structure.TablesOfExpression(fieldExpr);
        prefixTables->revision = structure.Revision();
    }
    return prefixTables->tables;
}

std::string TDSField::ExcludeTables() const {
    if (kind == TKFieldKind::kfkData) return fieldExpr;
    std::string text;
    size_t kept = 0;
    TPrefixScanner scanner(fieldExpr, structure.SQLFormats());
    for (TPrefix prefix; scanner.Next(prefix);)
        if (structure.TableByName(true, prefix.name)) {
            text.append(fieldExpr, kept, prefix.from - kept);
            kept = prefix.to;
        }
    return text.append(fieldExpr, kept);
}

} // namespace tern7
