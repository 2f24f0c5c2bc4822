// Formulas of result fields in their two readable forms: with field names in braces, as users write
// them, and as SQL expressions.

#include <algorithm>
#include <optional>

#include <tern7/core/corekit/strings.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/result_field.h>
#include <tern7/core/structure/structure.h>

namespace tern7 {

namespace {

/// Placeholders of one digit are the ones that can be told from the text behind them.
constexpr size_t maxPlaceholders = 9;

/// Collects the fields of a formula, the same field under the same placeholder.
class TFormulaFields {
public:
    /// The text that stands for the field; fields beyond the placeholders stand as their expression
    /// and are kept for their tables.
    std::string Use(TDSField* field) {
        const auto it = std::find(fields.begin(), fields.end(), field);
        const size_t at = static_cast<size_t>(it - fields.begin());
        if (it == fields.end()) fields.push_back(field);
        return at < maxPlaceholders ? "@" + std::to_string(at + 1) : field->GetSQLExpr();
    }
    std::vector<TDSField*> Take() { return std::move(fields); }

private:
    std::vector<TDSField*> fields;
};

/// Position behind the literal or quoted name that begins at `i`.
size_t SkipQuoted(std::string_view text, size_t i) {
    const char quote = text[i];
    for (++i; i < text.size(); ++i) {
        if (text[i] != quote) continue;
        if (i + 1 >= text.size() || text[i + 1] != quote) return i + 1;
        ++i;
    }
    return text.size();
}

bool HoldsPlaceholder(std::string_view text) {
    for (size_t at = text.find('@'); at != std::string_view::npos; at = text.find('@', at + 1))
        if (at + 1 < text.size() && IsDigit(text[at + 1])) return true;
    return false;
}

bool IsWordChar(char c) {
    return IsLetter(c) || IsDigit(c) || c == '_' || c == '$' || static_cast<unsigned char>(c) > 127;
}

struct TToken {
    size_t from, to;
};

std::vector<TToken> SplitTokens(std::string_view text) {
    std::vector<TToken> tokens;
    for (size_t i = 0; i < text.size();) {
        if (IsSpace(text[i])) {
            ++i;
            continue;
        }
        const size_t from = i;
        if (text[i] == '\'' || text[i] == '"' || text[i] == '`')
            i = SkipQuoted(text, i);
        else if (IsWordChar(text[i]))
            while (i < text.size() && IsWordChar(text[i]))
                ++i;
        else
            ++i;
        tokens.push_back({from, i});
    }
    return tokens;
}

std::string BracedName(std::string_view name) {
    return "{" + ReplaceStr(name, "}", "}}") + "}";
}

std::string TableFieldName(const TDSField& field) {
    return field.Table() ? field.Table()->DisplayName() + "." + field.DisplayName()
                         : field.DisplayName();
}

/// The fields that a name in braces can mean by display names.
std::vector<TDSField*> FieldsByReadableName(const TKCustomDBStructure& structure,
                                            std::string_view name) {
    std::vector<TDSField*> found = structure.FieldsByDisplayName(name);
    for (size_t point = name.find('.'); found.empty() && point != std::string_view::npos;
         point = name.find('.', point + 1)) {
        for (TDSField* field : structure.FieldsByDisplayName(name.substr(point + 1)))
            if (field->Table() && SameText(field->Table()->DisplayName(), name.substr(0, point)))
                found.push_back(field);
    }
    return found;
}

TDSField* FindByReadableName(const TKCustomDBStructure& structure, std::string_view name,
                             size_t position) {
    const std::vector<TDSField*> found = FieldsByReadableName(structure, name);
    if (found.size() == 1) return found.front();
    if (TDSField* field = structure.FieldByName(false, name)) return field;
    throw EKExpressionError(FormatMessage(messages::FieldNotFound, {name}), position);
}

/// The name by which the field can be found again.
std::string ReadableName(const TKCustomDBStructure& structure, const TDSField& field) {
    if (!structure.IsNameShared(field)) return field.DisplayName();
    const std::string name = TableFieldName(field);
    return FieldsByReadableName(structure, name).size() == 1 ? name : field.GetCompoundName();
}

} // namespace

std::string TResultField::GetExpression() const {
    const TKCustomDBStructure* structure = owner->DbStruct();
    std::string text;
    for (size_t i = 0; i < formula.size(); ++i) {
        const int n = formula[i] == '@' && i + 1 < formula.size() ? formula[i + 1] - '0' : 0;
        if (n < 1 || n > 9 || n > fields.GetCount()) {
            text += formula[i];
            continue;
        }
        const TDSField* field = fields.GetItem(n - 1);
        text += structure && field ? BracedName(ReadableName(*structure, *field)) : "{}";
        ++i;
    }
    return text;
}

void TResultField::ProcessExpression(std::string_view expression) {
    const TKCustomDBStructure& structure = owner->Query()->RequireStruct();
    TFormulaFields used;
    std::string text;
    std::optional<size_t> literalPlaceholder; // the literal that holds one
    for (size_t i = 0; i < expression.size();) {
        if (expression[i] == '\'') {
            const size_t end = SkipQuoted(expression, i);
            if (!literalPlaceholder && HoldsPlaceholder(expression.substr(i, end - i)))
                literalPlaceholder = i;
            text += expression.substr(i, end - i);
            i = end;
            continue;
        }
        if (expression[i] != '{') {
            text += expression[i++];
            continue;
        }
        const size_t from = i++;
        std::string name;
        for (;; ++i) {
            if (i >= expression.size())
                throw EKExpressionError(FormatMessage(messages::FieldNotFound, {name}), from);
            if (expression[i] == '}') {
                if (i + 1 >= expression.size() || expression[i + 1] != '}') break;
                ++i;
            }
            name += expression[i];
        }
        ++i;
        text += used.Use(FindByReadableName(structure, name, from));
    }
    const std::vector<TDSField*> fieldsUsed = used.Take();
    if (literalPlaceholder && !fieldsUsed.empty())
        throw EKExpressionError(FormatMessage(messages::PlaceholderInLiteral, {expression}),
                                *literalPlaceholder);
    SetFields(fieldsUsed, std::move(text));
}

void TResultField::ProcessSQLExpr(std::string_view sql) {
    const TKCustomDBStructure& structure = owner->Query()->RequireStruct();
    if (TDSField* field = structure.FieldBySQLExpr(sql)) {
        SetFields({field}, "@1");
        return;
    }
    if (HoldsPlaceholder(sql)) { // in a literal, where it would be taken for one of the formula's
        SetFields({}, std::string(sql));
        return;
    }
    const size_t longest = owner->Result()->LongestFieldExpr();
    const std::vector<TToken> tokens = SplitTokens(sql);
    auto first = [&](size_t i) { return i < tokens.size() ? sql[tokens[i].from] : '\0'; };

    TFormulaFields used;
    std::string text;
    size_t copied = 0;
    for (size_t i = 0; i < tokens.size();) {
        TDSField* match = nullptr;
        size_t matchEnd = i;
        // not in the middle of a longer name
        const bool atStart = i == 0 || first(i - 1) != '.';
        size_t length = 0;
        for (size_t end = i; atStart && end < tokens.size(); ++end) {
            length += tokens[end].to - tokens[end].from;
            if (length > longest) break;
            if (first(end + 1) == '.') continue;
            const size_t from = tokens[i].from;
            if (TDSField* field =
                    structure.FieldBySQLExpr(sql.substr(from, tokens[end].to - from))) {
                match = field;
                matchEnd = end + 1;
            }
        }
        if (!match) {
            ++i;
            continue;
        }
        text += sql.substr(copied, tokens[i].from - copied);
        text += used.Use(match);
        copied = tokens[matchEnd - 1].to;
        i = matchEnd;
    }
    text += sql.substr(copied);
    SetFields(used.Take(), std::move(text));
}

size_t TQueryResult::LongestFieldExpr() const {
    const TKCustomDBStructure& structure = query.RequireStruct();
    if (longestRevision != structure.Revision()) {
        longestFieldExpr = 0;
        for (const auto& field : structure.Fields())
            longestFieldExpr = std::max(longestFieldExpr, field->GetSQLExpr().size());
        longestRevision = structure.Revision();
    }
    return longestFieldExpr;
}

} // namespace tern7
