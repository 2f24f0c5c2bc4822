#include <tern7/core/query/row_text.h>

#include <algorithm>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/query/query.h>
#include <tern7/core/structure/structure.h>
#include <tern7/core/titles/default_titles.h>
#include <tern7/core/titles/titles.h>

namespace tern7 {

namespace {

TRowLabel Label(TRowLabelKind kind, std::string_view text) {
    TRowLabel label{kind, OneLine(text), {}};
    if (label.text != text) label.hint = text;
    return label;
}

TRowLabel WordLabel(TRowLabelKind kind, const std::string& word, const TFilterBracket& bracket) {
    TRowLabel label = Label(kind, word);
    label.bracket = &bracket;
    return label;
}

bool HoldsCondition(const TFilterRow& row) {
    return !row.IsBracket() || row.AsBracket()->GetFirstCondition();
}

/// True when no condition stands before (`step` -1) or behind (1) the row in its bracket.
bool IsOutermost(const TFilterRow& row, int step) {
    const TFilterBracket& parent = *row.Parent();
    for (int i = parent.GetRowIndex(&row) + step; i >= 0 && i < parent.GetRowCount(); i += step)
        if (HoldsCondition(*parent.GetRow(i))) return false;
    return true;
}

/// In the and/or style the root shows marks only when it is negated.
bool ShowsMarks(const TFilterBracket& bracket) {
    return bracket.Parent() || IsNegated(bracket.LinkType());
}

/// The field that a condition refers to and the structure does not have.
std::string KeptField(const TFilterCond& condition) {
    if (!condition.UnknownFieldName().empty()) return "(" + condition.UnknownFieldName() + ")";
    return condition.FieldID() >= 0 ? "(ID " + std::to_string(condition.FieldID()) + ")" : "";
}

/// The operator that the structure does not have, with the values that nothing else shows.
std::string KeptOperator(const TFilterCond& condition) {
    std::string text = condition.OperatorName();
    for (int n = 1; n <= 2; ++n) {
        if (condition.Value(n).empty()) continue;
        if (!text.empty()) text += n == 1 ? ": " : ", ";
        text += condition.Value(n);
    }
    return text.empty() ? text : "(" + text + ")";
}

} // namespace

std::string OneLine(std::string_view text, size_t limit) {
    std::string line;
    size_t characters = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const bool continues = (static_cast<unsigned char>(c) & 0xC0) == 0x80;
        if (!continues && ++characters > limit) return line + "\u2026";
        if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
            --characters;
        else
            line += c == '\n' || c == '\r' ? ' ' : c;
    }
    return line;
}

std::string_view UnfinishedText(TUnfinished reason) {
    switch (reason) {
    case TUnfinished::No:
        return {};
    case TUnfinished::NoField:
        return "no field is chosen";
    case TUnfinished::NoOperator:
        return "no operator is chosen";
    case TUnfinished::UnknownField:
        return "the structure does not have the field";
    case TUnfinished::UnknownOperator:
        return "the structure does not have the operator";
    case TUnfinished::NoSubQuery:
        return "there is no sub-query";
    case TUnfinished::NoValue:
        return "a value is missing";
    case TUnfinished::NotEntered:
        return "no value was entered yet";
    }
    return {};
}

TKRowTexts::TKRowTexts(const TStrings& titles) {
    const TKTitles captions(DefaultQueryTitles(), titles);
    auto take = [&](std::string& text, std::string_view key) { text = captions.Text(key); };
    take(headerLine, "ttlFilter");
    take(bracketLine, "ttlBracket");
    take(andWord, "ttlAnd");
    take(orWord, "ttlOr");
    take(parameterText, "ttlParameter");
    take(subQueryText, "ttlSubQueryCaption");
    constexpr std::string_view words[] = {"ttlAll", "ttlAny", "ttlNone", "ttlNotAll"};
    for (size_t i = 0; i < std::size(words); ++i)
        take(linkWords[i], words[i]);
}

void TKRowTexts::Refresh(const TKCustomDBStructure& structure) const {
    if (known == &structure && knownRevision == structure.Revision()) return;
    known = &structure;
    knownRevision = structure.Revision();
    listCaptions.Clear();
    fieldTexts.clear();
}

std::string TKRowTexts::FieldText(const TDSField& field) const {
    const TKCustomDBStructure& structure = field.Structure();
    Refresh(structure);
    std::string& text = fieldTexts[&field];
    if (text.empty()) {
        const bool shared = structure.IsNameShared(field);
        text = shared && field.Table() ? field.GetFullName() : field.DisplayName();
    }
    if (!ShowGroupName || !field.Group()) return text;
    return field.GetGroupName() + " " + text;
}

std::string TKRowTexts::ListText(const TFilterCond& condition, int n) const {
    const std::string& value = condition.Value(n);
    const TDSField* field = condition.Field();
    const auto* editor = field ? field->ValueEditorAs<TDSListEditor>() : nullptr;
    if (editor) Refresh(field->Structure());
    const bool boolean = !editor && condition.GetExprType() == TFieldType::ftBoolean;
    auto caption = [&](std::string_view item) -> std::string_view {
        if (editor) return listCaptions.CaptionOf(*editor, item);
        if (boolean && item == "1" && !TrueText.empty()) return TrueText;
        if (boolean && item == "0" && !FalseText.empty()) return FalseText;
        return item;
    };
    if (!condition.IsListOperator()) return std::string(caption(value));
    std::string text;
    for (const std::string& item : ParseCommaText(value)) {
        if (!text.empty()) text += ", ";
        text += caption(item);
    }
    return text;
}

std::string TKRowTexts::ValueText(const TFilterCond& condition, int n) const {
    if (condition.IsSubQueryOperator()) return subQueryText;
    if (condition.ValueIsParam(n)) return parameterText;
    if (!condition.ValueCaption(n).empty()) return condition.ValueCaption(n);
    return ListText(condition, n);
}

TRowLabel TKRowTexts::ValueLabel(const TFilterCond& condition, int n) const {
    TRowLabelKind kind = TRowLabelKind::rlValue;
    if (condition.IsSubQueryOperator())
        kind = TRowLabelKind::rlSubQuery;
    else if (condition.ValueIsParam(n))
        kind = TRowLabelKind::rlParameter;
    TRowLabel label = Label(kind, ValueText(condition, n));
    label.valueNumber = n;
    const TSQLParam* param = condition.Param(n);
    if (kind == TRowLabelKind::rlParameter && param)
        label.hint = param->Caption() + "\n" + param->ValueFormat();
    if (kind == TRowLabelKind::rlSubQuery && condition.SubQuery().empty())
        label.hint = condition.Value(n); // SQL as it was written
    return label;
}

void TKRowTexts::AddCondition(std::vector<TRowLabel>& labels, const TFilterCond& condition) const {
    const TDSField* field = condition.Field();
    const TDSOperator* op = condition.Operator();
    const std::string& sql = condition.SQLText();
    const auto addKept = [&](const std::string& text) {
        if (!text.empty()) labels.push_back(Label(TRowLabelKind::rlKept, text));
    };
    labels.push_back(Label(TRowLabelKind::rlField, field ? FieldText(*field) : std::string()));
    if (!sql.empty())
        labels.back().hint = sql;
    else if (field && field->IsPlaceholder())
        addKept(KeptField(condition));
    if (!field && !op) return;
    labels.push_back(Label(TRowLabelKind::rlOperator, op ? op->DisplayName() : std::string()));
    if (!sql.empty())
        labels.back().hint = sql;
    else if (op && op->IsPlaceholder())
        addKept(KeptOperator(condition));
    addKept(sql);
    // beside its SQL text they would mean nothing
    const int values = sql.empty() ? condition.ValueCount() : 0;
    for (int n = 1; n <= values; ++n) {
        if (n == 2) labels.push_back(Label(TRowLabelKind::rlValueJoiner, condition.ValueFormat()));
        labels.push_back(ValueLabel(condition, n));
    }
}

void TKRowTexts::AddBracketLine(std::vector<TRowLabel>& labels,
                                const TFilterBracket& bracket) const {
    const std::string_view line = bracket.Parent() ? bracketLine : headerLine;
    const std::string& word = BracketWord(bracket.LinkType());
    auto addText = [&](std::string_view text) {
        if (!Trim(text).empty()) labels.push_back(Label(TRowLabelKind::rlText, Trim(text)));
    };
    // a caption that lost its "@" still gets its label
    addText(GetBeforeSep(line, "@"));
    labels.push_back(WordLabel(TRowLabelKind::rlBracketWord, word, bracket));
    addText(GetAfterSep(line, "@"));
}

void TKRowTexts::AddOpening(std::vector<TRowLabel>& labels, const TFilterCond& condition) const {
    // from inside out: the brackets that begin here, up to the one in which something precedes
    std::vector<const TFilterBracket*> opened;
    const TFilterRow* row = &condition;
    while (row->Parent() && IsOutermost(*row, -1)) {
        row = row->Parent();
        if (ShowsMarks(*row->AsBracket())) opened.push_back(row->AsBracket());
    }
    if (const TFilterBracket* joined = row->Parent())
        labels.push_back(
            WordLabel(TRowLabelKind::rlBoolWord, BoolWord(joined->LinkType()), *joined));
    std::reverse(opened.begin(), opened.end());
    for (const TFilterBracket* bracket : opened) {
        const TFilterLinkType type = bracket->LinkType();
        if (IsNegated(type))
            labels.push_back(WordLabel(TRowLabelKind::rlBracketWord, BracketWord(type), *bracket));
        labels.push_back(Label(TRowLabelKind::rlOpen, "("));
    }
}

void TKRowTexts::AddClosing(std::vector<TRowLabel>& labels, const TFilterCond& condition) const {
    const TFilterRow* row = &condition;
    while (row->Parent() && IsOutermost(*row, 1)) {
        row = row->Parent();
        if (ShowsMarks(*row->AsBracket())) labels.push_back(Label(TRowLabelKind::rlClose, ")"));
    }
}

std::vector<TRowLabel> TKRowTexts::Labels(const TFilterRow& row, TQPStyle style) const {
    std::vector<TRowLabel> labels;
    const TFilterCond* condition = row.AsCond();
    const bool marks = style == TQPStyle::psAndOr;
    if (condition) {
        if (marks) AddOpening(labels, *condition);
        AddCondition(labels, *condition);
        if (marks) AddClosing(labels, *condition);
    } else if (!marks) {
        AddBracketLine(labels, *row.AsBracket());
    }
    return labels;
}

std::string TKRowTexts::Isolate(const std::string& text) const {
    return IsolateTexts ? "\u2068" + text + "\u2069" : text;
}

std::string TKRowTexts::SentencePiece(const TRowLabel& label) const {
    switch (label.kind) {
    case TRowLabelKind::rlField:
    case TRowLabelKind::rlValue:
    case TRowLabelKind::rlKept:
        return Isolate(label.text);
    default:
        return label.text;
    }
}

std::string TKRowTexts::Sentence(const TFilterRow& row, TQPStyle style) const {
    if (row.IsBracket() && style == TQPStyle::psGroups) {
        std::string line = row.Parent() ? bracketLine : headerLine;
        const std::string& word = BracketWord(row.AsBracket()->LinkType());
        const size_t at = line.find('@');
        if (at == std::string::npos)
            line += " " + word;
        else
            line.replace(at, 1, word);
        return OneLine(line);
    }
    std::string text;
    bool opened = true; // nothing before, or "("
    for (const TRowLabel& label : Labels(row, style)) {
        // the two labels before it only say that the text was not recognised
        if (label.kind == TRowLabelKind::rlKept && !row.AsCond()->SQLText().empty()) text += ':';
        if (!opened && label.kind != TRowLabelKind::rlClose) text += ' ';
        if (!label.text.empty())
            text += SentencePiece(label);
        else if (label.kind == TRowLabelKind::rlValue &&
                 row.AsCond()->Unfinished() == TUnfinished::No)
            text += "\"\""; // an empty text that counts as a value
        else
            text += EmptyLabelText;
        if (label.kind == TRowLabelKind::rlParameter && !label.hint.empty())
            text += " (" + Isolate(OneLine(GetBeforeSep(label.hint, "\n"))) + ")";
        opened = label.kind == TRowLabelKind::rlOpen;
    }
    return text;
}

} // namespace tern7
