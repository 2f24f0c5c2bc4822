// One condition with its constants as bound values. The template is walked piece by piece, so no
// value is ever looked at as SQL: a literal of the template that holds a value becomes one bound
// value, a value that stands without quotes becomes one of the field's type.

#include <optional>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/corekit/dates.h>
#include <tern7/core/corekit/numbers.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/query/condition_text.h>
#include <tern7/core/query/query.h>
#include <tern7/core/structure/structure.h>

namespace tern7 {

namespace {

using TKind = TBoundValue::TKind;
using TPiece = TKSQLTemplate::TPiece;

std::optional<std::string> HexToDecimal(std::string_view text) {
    const bool negative = !text.empty() && text[0] == '-';
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) text.remove_prefix(1);
    if (text.size() < 3 || text.size() > 17 || text[0] != '0' || LowerChar(text[1]) != 'x')
        return std::nullopt;
    uint64_t value = 0;
    for (char c : text.substr(2)) {
        const char lower = LowerChar(c);
        if (!IsDigit(c) && !(lower >= 'a' && lower <= 'f')) return std::nullopt;
        value = value * 16 + static_cast<uint64_t>(IsDigit(c) ? c - '0' : lower - 'a' + 10);
    }
    return (negative ? "-" : "") + std::to_string(value);
}

bool IsInteger(std::string_view text) {
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) text.remove_prefix(1);
    if (text.empty() || text.size() > 18) return false;
    for (char c : text)
        if (!IsDigit(c)) return false;
    return true;
}

TBoundValue BoundNumber(TFieldType type, std::string text) {
    if (text[0] == '+') text.erase(0, 1);
    if (IsInteger(text)) return {TKind::Integer, std::move(text)};
    return {type == TFieldType::ftFloat ? TKind::Float : TKind::Decimal, std::move(text)};
}

std::string Padded(int number, int width) {
    std::string text = std::to_string(number);
    if (static_cast<int>(text.size()) < width)
        text.insert(0, static_cast<size_t>(width) - text.size(), '0');
    return text;
}

TBoundValue BoundDate(const TKDateTime& value) {
    const std::string date =
        Padded(value.year, 4) + "-" + Padded(value.month, 2) + "-" + Padded(value.day, 2);
    std::string time =
        Padded(value.hour, 2) + ":" + Padded(value.minute, 2) + ":" + Padded(value.second, 2);
    if (value.millisecond != 0) time += "." + Padded(value.millisecond, 3);
    if (!value.hasTime) return {TKind::Date, date};
    if (!value.hasDate) return {TKind::Time, time};
    return {TKind::Timestamp, date + " " + time};
}

/// A value of the type as it would stand between quotes; `text` has the SQL form of dates already.
TBoundValue BoundQuoted(TFieldType type, std::string text) {
    if (type == TFieldType::ftBoolean && (text == "1" || text == "0"))
        return {TKind::Boolean, std::move(text)};
    const auto date = IsDateOrTime(type) ? ParseIsoDateTime(text) : std::nullopt;
    // a time in a date field, or the reverse, is no value of the type: the text stays
    if (date && (type == TFieldType::ftTime ? date->hasTime : date->hasDate))
        return BoundDate(*date);
    return {TKind::Text, std::move(text)};
}

std::string EscapedWildcards(std::string_view text) {
    std::string escaped;
    for (char c : text) {
        if (c == '%' || c == '_' || c == '!') escaped += '!';
        escaped += c;
    }
    return escaped;
}

[[noreturn]] void RaiseCanNotExecute(std::string_view text) {
    throw EKQueryPanelError(FormatMessage(messages::CanNotExecuteCondition, {text}));
}

void AppendFragment(std::string_view text, std::string& out) {
    if (!IsSafeFragment(text)) RaiseCanNotExecute(text);
    out += text;
}

class TBoundWriter {
public:
    TBoundWriter(const TKQuery& owner, std::string_view mainTableName, const TFilterCond& condition,
                 TBoundValues& boundValues, std::string& text)
        : query(owner), mainTable(mainTableName), cond(condition), type(condition.GetExprType()),
          keepsQuotes(condition.IsSubQueryOperator() ||
                      condition.Field()->Structure().IsQuotedType(condition.Field()->FieldType())),
          values(boundValues), out(text) {}

    void Write() {
        const TKSQLTemplate& sqlTemplate = cond.Operator()->Template();
        for (const TKSQLTemplate::TItem& item : sqlTemplate.Items()) {
            switch (item.kind) {
            case TPiece::Text:
                Text(sqlTemplate.TextOf(item));
                break;
            case TPiece::Field:
                Expression();
                break;
            case TPiece::Value1:
                Value(1);
                break;
            case TPiece::Value2:
                Value(2);
                break;
            case TPiece::NoValue:
                break;
            case TPiece::Table:
                if (!cond.Field()->GetTables().empty())
                    Text(cond.Field()->GetTables().front()->TableName());
                break;
            case TPiece::MainTable:
                Text(mainTable);
                break;
            }
        }
        if (inLiteral) RaiseCanNotExecute(sqlTemplate.Text());
    }

private:
    void Text(std::string_view text) {
        for (size_t i = 0; i < text.size(); ++i) {
            if (text[i] != '\'') {
                (inLiteral ? literal : out) += text[i];
            } else if (!inLiteral) {
                inLiteral = true;
                literal.clear();
                literalValues = 0;
            } else if (i + 1 < text.size() && text[i + 1] == '\'') {
                literal += '\'';
                ++i;
            } else {
                inLiteral = false;
                CloseLiteral();
            }
        }
    }

    void Expression() {
        if (inLiteral) {
            cond.Field()->AppendSQLExpr(literal);
            return;
        }
        if (cond.Field()->Kind() == TKFieldKind::kfkVirtual)
            AppendFragment(cond.Field()->GetSQLExpr(), out);
        else
            cond.Field()->AppendSQLExpr(out);
    }

    void Value(int n) {
        if (inLiteral) {
            ++literalValues;
            soleValue = n;
            const bool like = IsAfterLike() && values.EscapeWildcards();
            literal += like ? EscapedWildcards(SQLForm(n)) : SQLForm(n);
        } else if (cond.IsSubQueryOperator() && n == 1) {
            SubQuery();
        } else if (cond.Param(n)) {
            Param(SQLForm(n));
        } else if (cond.IsListOperator()) {
            List(n);
        } else {
            Bare(SQLForm(n));
        }
    }

    /// Value n with dates in the SQL form; of a parameter the value that it has now.
    std::string SQLForm(int n) const {
        const TSQLParam* param = cond.Param(n);
        const std::string value = param ? param->Value() : cond.Value(n);
        return IsDateOrTime(type) && (param || !cond.IsListOperator())
                   ? query.ProcessDateValue(type, value, true)
                   : value;
    }

    bool IsAfterLike() const {
        const std::string_view before = TrimRight(out);
        return before.size() >= 4 && SameText(before.substr(before.size() - 4), "like");
    }

    void CloseLiteral() {
        if (literalValues == 0) {
            // a literal of the template's own
            out += keepsQuotes ? QuotedString(literal) : literal;
            return;
        }
        const bool escape = values.EscapeWildcards() && IsAfterLike();
        const bool whole = literalValues == 1 && literal == SQLForm(soleValue);
        if (!whole)
            values.Bind(out, {TKind::Text, std::move(literal)});
        else if (keepsQuotes)
            values.Bind(out, BoundQuoted(type, std::move(literal)));
        else if (cond.Param(soleValue))
            Param(std::move(literal));
        else
            Bare(std::move(literal));
        if (escape) out += " ESCAPE '!'";
    }

    /// A value without quotes: a number is bound, a word stands as it is, anything else is a text.
    void Bare(std::string text) {
        text = std::string(Trim(text));
        if (const auto decimal = HexToDecimal(text))
            values.Bind(out, {TKind::Integer, *decimal});
        else if (IsNumber(text))
            values.Bind(out, BoundNumber(type, std::move(text)));
        else if (IsBareToken(text))
            out += text;
        else
            values.Bind(out, {TKind::Text, std::move(text)});
    }

    /// The value of a parameter: never SQL, whatever it says.
    void Param(std::string text) {
        if (!keepsQuotes && IsNumber(Trim(text)))
            values.Bind(out, BoundNumber(type, std::string(Trim(text))));
        else
            values.Bind(out, BoundQuoted(type, std::move(text)));
    }

    void List(int n) {
        bool first = true;
        for (std::string& item : ParseCommaText(cond.Value(n))) {
            if (!first) out += ", ";
            first = false;
            if (IsDateOrTime(type)) item = query.ProcessDateValue(type, item, true);
            if (keepsQuotes)
                values.Bind(out, BoundQuoted(type, std::move(item)));
            else
                Bare(std::move(item));
        }
    }

    void SubQuery() {
        if (!cond.SubQuery().empty())
            out += NestedBoundStatement(cond, values);
        else
            AppendFragment(cond.Value(1), out);
    }

    const TKQuery& query;
    std::string_view mainTable;
    const TFilterCond& cond;
    TFieldType type;
    bool keepsQuotes;
    TBoundValues& values;
    std::string& out;
    bool inLiteral = false;
    std::string literal;
    int literalValues = 0;
    int soleValue = 1;
};

} // namespace

std::string_view BoundKindToStr(TBoundValue::TKind kind) {
    switch (kind) {
    case TKind::Null:
        return "null";
    case TKind::Integer:
        return "integer";
    case TKind::Float:
        return "float";
    case TKind::Decimal:
        return "decimal";
    case TKind::Boolean:
        return "boolean";
    case TKind::Date:
        return "date";
    case TKind::Time:
        return "time";
    case TKind::Timestamp:
        return "timestamp";
    case TKind::Text:
        return "text";
    }
    return "text";
}

void TBoundValues::Bind(std::string& out, TBoundValue value) {
    if (value.text.find('\0') != std::string::npos)
        throw EKQueryPanelError(std::string(messages::NulInValue));
    values.push_back(std::move(value));
    switch (style) {
    case TPlaceholderStyle::Question:
        out += '?';
        break;
    case TPlaceholderStyle::Named:
        out += ":v" + std::to_string(values.size());
        break;
    case TPlaceholderStyle::Numbered:
        out += "$" + std::to_string(values.size());
        break;
    }
}

void AppendBoundCondition(TConditionWriter& textWriter, const TKQuery& query,
                          const TFilterCond& condition, TBoundValues& values, std::string& out) {
    if (!condition.IsRecognized()) {
        AppendFragment(condition.SQLText(), out);
        return;
    }
    if (query.CheckValues) {
        const int count = condition.ValueCount();
        for (int n = 1; n <= count; ++n)
            CheckBareValue(condition, n);
    }
    if (query.OnBuildSQL) {
        std::string text;
        textWriter.Append(condition, text);
        std::string changed = text;
        query.OnBuildSQL(const_cast<TFilterCond&>(condition), changed);
        if (changed != text) {
            AppendFragment(changed, out);
            return;
        }
    }
    TBoundWriter(query, textWriter.MainTableName(), condition, values, out).Write();
}

} // namespace tern7
