// One condition as SQL text. The replacements are sequential and literal, which can be seen when a
// value holds something that looks like a placeholder; the common case is written in one pass.

#include <tern7/core/query/condition_text.h>

#include <algorithm>

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
    // as it will stand there: dates in their SQL form
    const std::string value = condition.Query()->ExtractValue(condition, n);
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
        FormatMessage(messages::WrongValue, {condition.Field()->DisplayName(), condition.Value(n)}),
        condition);
}

std::string_view TConditionWriter::MainTableName() const {
    return mainTable ? std::string_view(mainTable->TableName()) : std::string_view();
}

void TConditionWriter::SetMainTable(const TDSTable* table) {
    if (table == mainTable) return;
    mainTable = table;
    DropForms();
}

void TConditionWriter::Begin(const TKCustomDBStructure& structure) {
    if (structure.Revision() == revision) return;
    revision = structure.Revision();
    mainTable = nullptr;
    DropForms();
}

void TConditionWriter::DropForms() {
    forms.clear();
    cells.assign(Cells + CellsTried, 0);
}

TConditionWriter::TForm TConditionWriter::MakeForm(const TDSField& field,
                                                   const TDSOperator& op) const {
    TForm form;
    form.field = &field;
    form.op = &op;
    form.table = field.Table();
    const bool quotedType = field.Structure().IsQuotedType(field.FieldType());
    form.keepsQuotes = quotedType || op.ValueType() == TOpValueType::vtSubQuery;
    form.valueCount = std::min(op.GetParamCount(), 2);
    const TKSQLTemplate& sqlTemplate = op.Template();
    for (int n = 1; n <= 2; ++n)
        form.bare[n - 1] =
            op.ValueType() != TOpValueType::vtSubQuery &&
            (!quotedType || (op.ValueType() != TOpValueType::vtList && sqlTemplate.ValueIsBare(n)));
    const TFieldType type = op.ExprType().value_or(field.FieldType());
    form.simple =
        sqlTemplate.IsSimple() && op.ValueType() == TOpValueType::vtScalar && !IsDateOrTime(type);

    size_t place = 0;
    std::string piece;
    for (const TKSQLTemplate::TItem& item : sqlTemplate.Items()) {
        piece.clear();
        switch (item.kind) {
        case TPiece::Text:
            form.texts[place] += sqlTemplate.TextOf(item);
            continue;
        case TPiece::Field:
            field.AppendSQLExpr(piece);
            break;
        case TPiece::Table:
            piece = field.GetTables().empty() ? "@t" : field.GetTables().front()->TableName();
            break;
        case TPiece::MainTable:
            piece = MainTableName();
            break;
        case TPiece::NoValue:
            break;
        case TPiece::Value1:
        case TPiece::Value2:
            if (place == 2) {
                form.simple = false;
                return form;
            }
            form.valueAt[place++] = item.kind == TPiece::Value1 ? 0 : 1;
            form.places = static_cast<uint8_t>(place);
            continue;
        }
        form.simple = form.simple && !HoldsAt(piece);
        form.texts[place] += piece;
    }
    for (std::string& text : form.texts) {
        if (!form.keepsQuotes) RemoveQuotes(text, 0);
        form.length += text.size();
    }
    return form;
}

const TConditionWriter::TForm* TConditionWriter::SimpleForm(const TFilterCond& condition) {
    if (!condition.recognized) return nullptr;
    const TForm* form = nullptr;
    if (condition.formHint < forms.size()) form = &forms[condition.formHint];
    if (!form || form->field != condition.field || form->op != condition.op)
        form = &FindForm(condition);
    if (!form->simple || (!condition.entered && form->valueCount > 0)) return nullptr;
    return !query.CheckValues || NeedsNoCheck(*form, condition) ? form : nullptr;
}

/// True when no value stands without quotes, or each that does is one number or word.
bool TConditionWriter::NeedsNoCheck(const TForm& form, const TFilterCond& condition) const {
    for (size_t n = 0; n < static_cast<size_t>(form.valueCount); ++n)
        if (form.bare[n] && !IsBareToken(condition.values[n].text.Get())) return false;
    return true;
}

const TConditionWriter::TForm& TConditionWriter::FindForm(const TFilterCond& condition) {
    const uint64_t key = reinterpret_cast<uintptr_t>(condition.field) * 31 +
                         reinterpret_cast<uintptr_t>(condition.op);
    const size_t first = (key * 0x9E3779B97F4A7C15u) >> (64 - CellBits);
    size_t cell = first;
    const auto isOther = [&](const TForm& form) {
        return form.field != condition.field || form.op != condition.op;
    };
    while (cell < first + CellsTried && cells[cell] != 0 && isOther(forms[cells[cell] - 1u]))
        ++cell;
    if (cell == first + CellsTried) cell = first;
    if (cells[cell] == 0 || isOther(forms[cells[cell] - 1u]))
        PutForm(cell, MakeForm(*condition.field, *condition.op));
    condition.formHint = static_cast<uint16_t>(cells[cell] - 1);
    return forms[condition.formHint];
}

void TConditionWriter::PutForm(size_t cell, TForm form) {
    if (cells[cell] == 0) {
        forms.push_back(std::move(form));
        cells[cell] = static_cast<uint16_t>(forms.size());
    } else {
        forms[cells[cell] - 1u] = std::move(form);
    }
}

bool TConditionWriter::AppendSimple(const TForm& form, const TFilterCond& condition,
                                    std::string_view before, TKLineWriter& out) {
    size_t length = before.size() + form.length;
    bool plain = true;
    for (size_t place = 0; place < form.places; ++place) {
        const TFilterCond::TValue& value = condition.values[form.valueAt[place]];
        if (value.param) return false;
        plain = plain && value.text.IsPlain();
        length += value.text.Get().size();
    }
    if (!plain) return AppendDoubled(form, condition, before, out);
    char* to = PutShort(PutShort(out.Room(length), before), form.texts[0]);
    for (size_t place = 0; place < form.places; ++place) {
        to = PutShort(to, condition.values[form.valueAt[place]].text.Get());
        if (!form.texts[place + 1].empty()) to = PutShort(to, form.texts[place + 1]);
    }
    out.Wrote(to);
    return true;
}

/// The same for values with quotes, which are doubled. Another way when these would have to go
/// again, or the first of two values holds what may be the placeholder of the second.
bool TConditionWriter::AppendDoubled(const TForm& form, const TFilterCond& condition,
                                     std::string_view before, TKLineWriter& out) {
    for (size_t place = 0; place < form.places; ++place) {
        const std::string& value = condition.values[form.valueAt[place]].text.Get();
        if ((!form.keepsQuotes && value.find('\'') != std::string::npos) ||
            (form.valueCount > 1 && HoldsAt(value)))
            return false;
    }
    out.Append(before);
    out.Append(form.texts[0]);
    for (size_t place = 0; place < form.places; ++place) {
        out.Append(ReplaceStr(condition.values[form.valueAt[place]].text.Get(), "'", "''"));
        out.Append(form.texts[place + 1]);
    }
    return true;
}

/// The steps one after the other, each a replacement of all occurrences.
std::string TConditionWriter::SequentialText(const TFilterCond& condition) const {
    const TDSField& field = *condition.Field();
    std::string text = ReplaceStr(condition.Operator()->SQLName(), "@f", field.GetSQLExpr());
    if (!field.GetTables().empty())
        text = ReplaceStr(text, "@t", field.GetTables().front()->TableName());
    text = ReplaceStr(text, "@m", MainTableName());
    const int count = condition.Operator()->GetParamCount();
    for (int n = 1; n <= count; ++n)
        text = ReplaceStr(text, "@" + std::to_string(n), query.ExtractValue(condition, n));
    if (condition.Param(1)) text = ReplaceParam(text, "@p1", *condition.Param(1));
    if (condition.Param(2)) text = ReplaceParam(text, "@p2", *condition.Param(2));
    if (!KeepsQuotes(condition)) RemoveQuotes(text, 0);
    return text;
}

void TConditionWriter::Append(const TFilterCond& condition, std::string& out) {
    if (!condition.IsRecognized()) {
        out += condition.SQLText();
        return;
    }
    if (query.CheckValues)
        for (int n = 1; n <= condition.ValueCount(); ++n)
            CheckBareValue(condition, n);
    out += SequentialText(condition);
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
    TStrings items;
    if (isDate || KeepsQuotes(condition)) {
        items = ParseCommaText(value);
        if (isDate)
            for (std::string& item : items)
                item = ProcessDateValue(type, item, true);
    }
    if (!KeepsQuotes(condition))
        return ReplaceStr(isDate ? ComposeCommaText(items) : value, "'", "''");
    for (std::string& item : items)
        item = QuotedString(item);
    return JoinStrings(items, ",");
}

} // namespace tern7
