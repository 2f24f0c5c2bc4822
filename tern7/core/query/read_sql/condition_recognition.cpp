#include <tern7/core/query/read_sql/condition_recognition.h>

#include <algorithm>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/corekit/numbers.h>
#include <tern7/core/query/condition_text.h>
#include <tern7/core/query/query.h>

namespace tern7 {

namespace {

using TForm = TSQLCapture::TForm;

/// Case aside; "@" below every other character.
bool SortsHigher(std::string_view a, std::string_view b) {
    const auto rank = [](char c) {
        return c == '@' ? 0 : 1 + static_cast<unsigned char>(LowerChar(c));
    };
    return std::lexicographical_compare(b.begin(), b.end(), a.begin(), a.end(),
                                        [&](char x, char y) { return rank(x) < rank(y); });
}

/// The same moment, which the SQL form may say with a time of day of zero.
bool SaysTheSame(std::string_view rebuilt, std::string_view written) {
    if (!rebuilt.starts_with(written)) return false;
    rebuilt.remove_prefix(written.size());
    return std::none_of(rebuilt.begin(), rebuilt.end(),
                        [](char c) { return IsLetter(c) || (IsDigit(c) && c != '0'); });
}

bool BeginsWithSelect(const TSQLCapture& capture) {
    return StartsText(capture.raw, "select") &&
           (capture.raw.size() == 6 || !IsLetter(capture.raw[6]));
}

/// What a bare word or number says of a column that holds true and false: the one form in quotes
/// that every engine takes.
std::optional<std::string> BooleanValue(std::string_view word) {
    if (word == "1" || SameText(word, "true")) return "1";
    if (word == "0" || SameText(word, "false")) return "0";
    return std::nullopt;
}

/// The items of a list as a statement writes it, none when they are not all literals, or words that
/// say true or false where those are allowed. Says whether an item is more than a number.
std::optional<TStrings> ListItems(std::string_view list, bool booleans, bool& anyText) {
    const TSQLOperand cut(list);
    TStrings items;
    for (size_t i = 0; i < cut.Count(); i += 2) {
        const std::string_view token = cut.Token(i);
        if (i + 1 < cut.Count() && cut.Token(i + 1) != ",") return std::nullopt;
        if (i + 2 == cut.Count()) return std::nullopt; // ends with a comma
        if (cut.Type(i) != TKTokenType::Literal) {
            std::optional<std::string> boolean = BooleanValue(token);
            if (!booleans || !boolean) return std::nullopt;
            items.push_back(std::move(*boolean));
            continue;
        }
        items.push_back(UnquotedString(token));
        if (items.back().size() + 2 > token.size()) return std::nullopt; // not closed
        anyText = anyText || !IsNumber(items.back());
    }
    if (items.empty()) return std::nullopt;
    return items;
}

} // namespace

/// One condition on its way through the templates.
struct TConditionRecognition::TTry {
    const TSQLCondition& condition;
    TRecognisedCondition found;
    TSQLOperand operand;
    TSQLCapture captures[2];
    bool bareValues; // the field's values stand without quotes
    bool booleans;   // they say true or false, in quotes or not
};

TConditionRecognition::TConditionRecognition(const TKQuery& owner, bool completeReading)
    : query(owner), structure(owner.RequireStruct()), complete(completeReading) {
    std::vector<TDSOperator*> operators;
    operators.reserve(static_cast<size_t>(structure.GetOperatCount()));
    for (int i = 0; i < structure.GetOperatCount(); ++i)
        operators.push_back(structure.GetOperator(i));
    std::stable_sort(operators.begin(), operators.end(), [](TDSOperator* a, TDSOperator* b) {
        return SortsHigher(a->SQLName(), b->SQLName());
    });
    for (TDSOperator* op : operators) {
        TSQLTemplateMatch match(op->Template());
        if (!match.IsUsable()) continue;
        const std::string word = match.OperatorWord();
        patterns[word].push_back({std::move(match), op});
    }
}

TRecognisedCondition TConditionRecognition::Recognise(const TSQLCondition& condition) const {
    TTry attempt{condition, {}, TSQLOperand(condition.Value()), {}, false, false};
    TDSField* const field = structure.FieldBySQLExpr(condition.Field());
    attempt.found.field = field;
    attempt.booleans = complete && field && field->Kind() == TKFieldKind::kfkData &&
                       field->FieldType() == TFieldType::ftBoolean &&
                       structure.IsQuotedType(field->FieldType());
    attempt.bareValues = !field || !structure.IsQuotedType(field->FieldType()) || attempt.booleans;
    attempt.found.op = LosesQuotes(attempt) ? nullptr : OperatorBySQLCond(attempt);
    return std::move(attempt.found);
}

/// A literal of the field's own expression would come back without its quotes.
bool TConditionRecognition::LosesQuotes(const TTry& attempt) const {
    const TDSField* const field = attempt.found.field;
    return field && !structure.IsQuotedType(field->FieldType()) &&
           !attempt.condition.IsSubQuery() &&
           attempt.condition.Field().find('\'') != std::string_view::npos;
}

TDSOperator* TConditionRecognition::OperatorBySQLCond(TTry& attempt) const {
    const std::string_view word = attempt.condition.Operator();
    const bool negated = attempt.condition.Not();
    TDSOperator* op = nullptr;
    // @f != '@1' and not(@f = '@1') say @f <> '@1'
    const bool isUnequal = word == "!=" && !negated;
    const bool isNotEqual = word == "=" && negated && !complete;
    if (isUnequal || isNotEqual) op = FirstFitting(attempt, "<>", false);
    if (!op) op = FirstFitting(attempt, word, negated);
    if (!op && word == "like") op = LikeOperator(attempt);
    return op;
}

TDSOperator* TConditionRecognition::FirstFitting(TTry& attempt, std::string_view word,
                                                 bool negated) const {
    const auto group = patterns.find(std::string(word));
    if (group == patterns.end()) return nullptr;
    for (const TPattern& pattern : group->second) {
        const bool takesSubQuery = pattern.op->ValueType() == TOpValueType::vtSubQuery;
        if (pattern.match.IsNegated() != negated || takesSubQuery != attempt.condition.IsSubQuery())
            continue;
        attempt.captures[0] = attempt.captures[1] = {};
        if (pattern.match.Match(attempt.operand, attempt.condition.Field(), attempt.bareValues,
                                attempt.captures) &&
            TakeValues(attempt, *pattern.op))
            return pattern.op;
    }
    return nullptr;
}

/// A pattern that no template has is looked for as it is written; a parameter holds a pattern.
TDSOperator* TConditionRecognition::LikeOperator(TTry& attempt) const {
    const std::string_view written = attempt.condition.Value();
    if (attempt.condition.IsSubQuery() || written.empty()) return nullptr;
    const bool isParam = written[0] == ':' && attempt.operand.Count() == 2;
    if (complete && !isParam) return nullptr;
    const bool negated = attempt.condition.Not();
    TDSOperator* op = structure.OperatorByName(negated ? "notcontains" : "contains");
    if (!op) op = structure.OperatorByName(negated ? "notstartswith" : "startswith");
    if (!op) return nullptr;
    attempt.captures[0] = {isParam ? TForm::Param : TForm::Bare,
                           std::string(isParam ? written.substr(1) : written), written};
    attempt.captures[1] = {};
    return TakeValues(attempt, *op) ? op : nullptr;
}

bool TConditionRecognition::TakeValues(TTry& attempt, TDSOperator& op) const {
    for (int n = 1; n <= 2; ++n) {
        attempt.found.values[n - 1].clear();
        attempt.found.params[n - 1].clear();
    }
    if (op.ValueType() == TOpValueType::vtSubQuery) {
        attempt.found.subSelect = attempt.captures[0].raw;
        return BeginsWithSelect(attempt.captures[0]);
    }
    const int count = std::min(op.GetParamCount(), 2);
    for (int n = 1; n <= count; ++n)
        if (!TakeValue(attempt, op, n)) return false;
    return true;
}

bool TConditionRecognition::TakeValue(TTry& attempt, const TDSOperator& op, int n) const {
    const TSQLCapture& capture = attempt.captures[n - 1];
    std::string& value = attempt.found.values[n - 1];
    if (capture.form == TForm::Param) {
        attempt.found.params[n - 1] = capture.text;
        return true;
    }
    if (!attempt.found.field) {
        value = capture.text;
        return true;
    }
    if (op.ValueType() == TOpValueType::vtList)
        return TakeList(capture, op, *attempt.found.field, attempt.booleans, value);
    if (!attempt.booleans || capture.form != TForm::Bare || op.Template().ValueIsBare(n))
        return TakeScalar(capture, op, *attempt.found.field, n, value);
    const std::optional<std::string> boolean = BooleanValue(capture.raw);
    value = boolean.value_or(std::string());
    return boolean.has_value();
}

/// A number in quotes is a text, unless it is compared with a column that makes it a number.
bool TConditionRecognition::ComparesAsText(const TDSField& field) const {
    return complete && field.Kind() == TKFieldKind::kfkVirtual;
}

bool TConditionRecognition::TakeScalar(const TSQLCapture& capture, const TDSOperator& op,
                                       const TDSField& field, int n, std::string& value) const {
    value = capture.text;
    const bool isQuoted = structure.IsQuotedType(field.FieldType());
    if (!isQuoted && capture.form == TForm::Literal) {
        // without quotes a text would come back as a name, '%5%' as %5%
        if (!IsNumber(value) || ComparesAsText(field)) return false;
        if (complete && UnquotedString(capture.raw) != value) return false;
    }
    const bool isBare = !isQuoted || op.Template().ValueIsBare(n);
    if (isBare && (Trim(value).empty() || (query.CheckValues && !IsBareToken(value)))) return false;
    return TakeDate(op.ExprType().value_or(field.FieldType()), value);
}

bool TConditionRecognition::TakeList(const TSQLCapture& capture, const TDSOperator& op,
                                     const TDSField& field, bool booleans,
                                     std::string& value) const {
    bool anyText = false;
    std::optional<TStrings> items = ListItems(capture.raw, booleans, anyText);
    const bool isQuoted = structure.IsQuotedType(field.FieldType());
    if (isQuoted ? !items : items && (anyText || ComparesAsText(field))) return false;
    if (!items) {
        value = capture.text;
        items = ParseCommaText(value);
    } else if (!isQuoted) {
        value = JoinStrings(*items, ",");
    }
    if (!isQuoted) {
        const auto isBare = [](const std::string& item) { return IsBareToken(item); };
        return !query.CheckValues || (std::all_of(items->begin(), items->end(), isBare) &&
                                      value.find('"') == std::string::npos);
    }
    const TFieldType type = op.ExprType().value_or(field.FieldType());
    for (std::string& item : *items)
        if (!TakeDate(type, item)) return false;
    value = ComposeCommaText(*items);
    return true;
}

/// The local form of a date or time.
bool TConditionRecognition::TakeDate(TFieldType type, std::string& value) const {
    if (!IsDateOrTime(type)) return true;
    std::string local = query.ProcessDateValue(type, value, false);
    if (complete && !SaysTheSame(query.ProcessDateValue(type, local, true), value)) return false;
    value = std::move(local);
    return true;
}

} // namespace tern7
