// One condition as SQL text. The replacements are sequential and literal, which can be seen when a
// value holds something that looks like a placeholder; the common case is written in one pass.

#include <tern7/core/query/condition_text.h>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/corekit/numbers.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/query/query.h>
#include <tern7/core/structure/structure.h>

namespace tern7 {

namespace {

using TPiece = TKSQLTemplate::TPiece;

bool HoldsAt(std::string_view text) {
    return text.find('@') != std::string_view::npos;
}

void RemoveQuotes(std::string& text, size_t from) {
    size_t to = text.find('\'', from);
    if (to == std::string::npos) return;
    for (size_t i = to; i < text.size(); ++i)
        if (text[i] != '\'') text[to++] = text[i];
    text.resize(to);
}

bool KeepsQuotes(const TFilterCond& condition) {
    return condition.IsSubQueryOperator() ||
           condition.Field()->Structure().IsQuotedType(condition.Field()->FieldType());
}

/// Appends a value as ExtractValue gives it; false when it holds an "@".
bool AppendValue(const TKQuery& query, const TFilterCond& condition, int n, std::string& out) {
    const size_t start = out.size();
    if (condition.IsListOperator() || condition.IsSubQueryOperator() ||
        IsDateOrTime(condition.GetExprType())) {
        out += query.ExtractValue(condition, n);
    } else {
        for (char c : condition.Value(n)) {
            if (c == '\'') out += c;
            out += c;
        }
    }
    return !HoldsAt(std::string_view(out).substr(start));
}

/// The template in one pass; false, with nothing appended, when that could differ from the
/// replacements one after the other.
bool AppendSimple(const TConditionContext& context, const TFilterCond& condition,
                  std::string& out) {
    const TKSQLTemplate& sqlTemplate = condition.Operator()->Template();
    if (!sqlTemplate.IsSimple() || condition.Param(1) || condition.Param(2)) return false;
    const size_t start = out.size();
    bool literal = true;
    for (const TKSQLTemplate::TItem& item : sqlTemplate.Items()) {
        const size_t pieceStart = out.size();
        switch (item.kind) {
        case TPiece::Text:
            out += sqlTemplate.TextOf(item);
            continue;
        case TPiece::Field:
            condition.Field()->AppendSQLExpr(out);
            break;
        case TPiece::Value1:
            literal = AppendValue(context.query, condition, 1, out);
            break;
        case TPiece::Value2:
            literal = AppendValue(context.query, condition, 2, out);
            break;
        case TPiece::NoValue:
            break;
        case TPiece::Table:
            if (condition.Field()->GetTables().empty())
                out += "@t";
            else
                out += condition.Field()->GetTables().front()->TableName();
            continue;
        case TPiece::MainTable:
            out += context.mainTable;
            break;
        }
        if (item.kind != TPiece::Value1 && item.kind != TPiece::Value2)
            literal = !HoldsAt(std::string_view(out).substr(pieceStart));
        if (!literal) {
            out.resize(start);
            return false;
        }
    }
    if (!KeepsQuotes(condition)) RemoveQuotes(out, start);
    return true;
}

/// Replaces every piece that holds the placeholder of a parameter, a whole literal or the bare
/// placeholder, by ":" and the parameter's name; the piece becomes the parameter's value format.
std::string ReplaceParam(const std::string& text, std::string_view placeholder, TSQLParam& param) {
    std::string result;
    const std::string name = ":" + param.Name();
    for (size_t i = 0; i < text.size();) {
        if (text.compare(i, placeholder.size(), placeholder) == 0) {
            param.SetValueFormat("@v");
            result += name;
            i += placeholder.size();
        } else if (text[i] == '\'') {
            size_t end = i + 1; // behind the literal
            while (end < text.size()) {
                if (text[end++] != '\'') continue;
                if (end >= text.size() || text[end] != '\'') break;
                ++end;
            }
            const std::string literal = text.substr(i, end - i);
            if (literal.find(placeholder) != std::string::npos) {
                param.SetValueFormat(ReplaceStr(UnquotedString(literal), placeholder, "@v"));
                result += name;
            } else {
                result += literal;
            }
            i = end;
        } else {
            result += text[i++];
        }
    }
    return result;
}

/// The steps one after the other, each a replacement of all occurrences.
std::string SequentialText(const TConditionContext& context, const TFilterCond& condition) {
    const TDSField& field = *condition.Field();
    std::string text = ReplaceStr(condition.Operator()->SQLName(), "@f", field.GetSQLExpr());
    if (!field.GetTables().empty())
        text = ReplaceStr(text, "@t", field.GetTables().front()->TableName());
    text = ReplaceStr(text, "@m", context.mainTable);
    const int count = condition.Operator()->GetParamCount();
    for (int n = 1; n <= count; ++n)
        text = ReplaceStr(text, "@" + std::to_string(n), context.query.ExtractValue(condition, n));
    if (condition.Param(1)) text = ReplaceParam(text, "@p1", *condition.Param(1));
    if (condition.Param(2)) text = ReplaceParam(text, "@p2", *condition.Param(2));
    if (!KeepsQuotes(condition)) RemoveQuotes(text, 0);
    return text;
}

bool IsSignedNumber(std::string_view text) {
    if (IsNumber(text)) return true;
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) text.remove_prefix(1);
    if (text.size() < 3 || text[0] != '0' || LowerChar(text[1]) != 'x') return false;
    for (char c : text.substr(2))
        if (!IsDigit(c) && !(LowerChar(c) >= 'a' && LowerChar(c) <= 'f')) return false;
    return true;
}

} // namespace

bool IsBareToken(std::string_view text) {
    text = Trim(text);
    if (text.empty()) return false;
    if (IsSignedNumber(text)) return true;
    if (IsDigit(text[0])) return false;
    for (char c : text)
        if (!IsLetter(c) && !IsDigit(c) && c != '_' && static_cast<unsigned char>(c) < 128)
            return false;
    return true;
}

void CheckBareValue(const TFilterCond& condition, int n) {
    if (!condition.ValueIsBare(n)) return;
    const std::string& value = condition.Value(n);
    bool fine;
    if (condition.IsListOperator()) {
        // the comma text stands as it is: quotes around an item would make it a name
        const TStrings items = ParseCommaText(value);
        fine = !items.empty() && value.find('"') == std::string::npos;
        for (const std::string& item : items)
            fine = fine && IsBareToken(item);
    } else {
        fine = IsBareToken(value);
    }
    if (fine) return;
    throw EKWrongValueError(
        FormatMessage(messages::WrongValue, {condition.Field()->DisplayName(), value}), condition);
}

void AppendConditionText(const TConditionContext& context, const TFilterCond& condition,
                         std::string& out) {
    if (!condition.IsRecognized()) {
        out += condition.SQLText();
        return;
    }
    if (context.query.CheckValues) {
        const int count = condition.ValueCount();
        for (int n = 1; n <= count; ++n)
            CheckBareValue(condition, n);
    }
    if (!AppendSimple(context, condition, out)) out += SequentialText(context, condition);
}

std::string NestedStatement(const TFilterCond& condition) {
    TKQuery* nested = condition.NestedQuery();
    if (!nested) return {};
    nested->BuildQuery();
    return nested->QResult().GetSQL().OnOneLine();
}

std::string TKQuery::ExtractValue(const TFilterCond& condition, int n) const {
    if (n < 1 || n > 2) return {};
    std::string value = condition.Param(n) ? "@p" + std::to_string(n) : condition.Value(n);
    const TDSOperator* op = condition.Operator();
    if (!op || n > op->GetParamCount() || condition.Param(n)) return value;
    if (op->ValueType() == TOpValueType::vtSubQuery)
        return n == 1 && value.empty() ? NestedStatement(condition) : value;

    const TFieldType type = condition.GetExprType();
    const bool isDate = IsDateOrTime(type);
    if (op->ValueType() != TOpValueType::vtList) {
        if (isDate) value = ProcessDateValue(type, value, true);
        return ReplaceStr(value, "'", "''");
    }
    if (!condition.Field() || !structure->IsQuotedType(condition.Field()->FieldType()))
        return ReplaceStr(value, "'", "''");
    std::string list;
    for (const std::string& item : ParseCommaText(value)) {
        if (!list.empty()) list += ',';
        list += QuotedString(isDate ? ProcessDateValue(type, item, true) : item);
    }
    return list;
}

} // namespace tern7
