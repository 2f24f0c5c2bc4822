#include <tern7/core/query/read_sql/sql_template_match.h>

#include <algorithm>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

namespace {

using TForm = TSQLCapture::TForm;

/// Stands before the letter of a placeholder while a template is cut: in no UTF-8 text.
constexpr char Mark = '\xFF';

TKTokens CutOperand(std::string_view text) {
    static const TKVocabulary noWords;
    static const TKTokens::TNameQuotes noQuotes{};
    return {text, noWords, noQuotes};
}

/// The template with its placeholders as words of their own.
std::string MarkedTemplate(const TKSQLTemplate& sqlTemplate) {
    using TItemKind = TKSQLTemplate::TPiece;
    std::string marked;
    bool inLiteral = false;
    for (const TKSQLTemplate::TItem& item : sqlTemplate.Items()) {
        char letter = '\0';
        switch (item.kind) {
        case TItemKind::Text: {
            const std::string_view text = sqlTemplate.TextOf(item);
            if (CharCount(text, '\'') % 2 != 0) inLiteral = !inLiteral;
            marked += text;
            continue;
        }
        case TItemKind::Field:
            letter = 'f';
            break;
        case TItemKind::Value1:
            letter = '1';
            break;
        case TItemKind::Value2:
            letter = '2';
            break;
        case TItemKind::NoValue:
            continue;
        case TItemKind::Table:
        case TItemKind::MainTable:
            return {}; // names that the query alone knows
        }
        if (!inLiteral) marked += ' ';
        marked += {Mark, letter};
        if (!inLiteral) marked += ' ';
    }
    return marked;
}

bool IsParam(std::string_view raw) {
    if (raw.size() < 2 || raw[0] != ':') return false;
    return std::all_of(raw.begin() + 1, raw.end(), [](char c) {
        return IsLetter(c) || IsDigit(c) || c == '_' || c == '$' || c == '#' ||
               static_cast<unsigned char>(c) > 127;
    });
}

/// The same value in two places of a template must be the same text.
bool Capture(TSQLCapture& value, TSQLCapture found) {
    if (value.form != TForm::None) return value == found;
    value = std::move(found);
    return true;
}

} // namespace

TSQLOperand::TSQLOperand(std::string_view operandText)
    : text(operandText), tokens(CutOperand(operandText)) {}

std::string_view TSQLOperand::Piece(size_t from, size_t to) const {
    if (from >= to) return {};
    return text.substr(tokens.Begin(from), tokens.End(to - 1) - tokens.Begin(from));
}

TSQLTemplateMatch::TSQLTemplateMatch(const TKSQLTemplate& sqlTemplate) {
    const std::string marked = MarkedTemplate(sqlTemplate);
    const TSQLOperand cut(marked);
    for (size_t i = 0; i < cut.Count(); ++i)
        AddPiece(cut.Token(i), cut.Type(i));
    TakeShape();
}

void TSQLTemplateMatch::AddPiece(std::string_view token, TKTokenType type) {
    if (type == TKTokenType::Literal) return AddLiteral(UnquotedString(token));
    if (token[0] != Mark) {
        pieces.push_back({TKind::Exact, LowerCase(token), 0, {}});
    } else if (token[1] == 'f') {
        pieces.push_back({TKind::Field, {}, 0, {}});
    } else {
        pieces.push_back({TKind::Value, {}, token[1] - '0', {}});
    }
}

void TSQLTemplateMatch::AddLiteral(std::string_view content) {
    TPiece piece{TKind::Literal, {}, 0, {}};
    for (size_t mark = content.find(Mark); mark != std::string_view::npos;
         mark = content.find(Mark)) {
        const int value = content[mark + 1] == '2' ? 2 : 1;
        piece.parts.push_back({std::string(content.substr(0, mark)), value});
        content.remove_prefix(mark + 2);
    }
    piece.text = content;
    pieces.push_back(std::move(piece));
}

/// Takes "@f", or "not" around all or behind "@f", off the front.
void TSQLTemplateMatch::TakeShape() {
    if (EnclosedInNot()) {
        negated = true;
        pieces.pop_back();
        pieces.erase(pieces.begin(), pieces.begin() + 2);
    }
    if (pieces.empty() || pieces.front().kind != TKind::Field) return;
    pieces.erase(pieces.begin());
    if (!pieces.empty() && pieces.front().kind == TKind::Exact && pieces.front().text == "not") {
        negated = !negated;
        pieces.erase(pieces.begin());
    }
    usable = !pieces.empty() && pieces.front().kind == TKind::Exact;
}

bool TSQLTemplateMatch::EnclosedInNot() const {
    const auto is = [this](size_t i, std::string_view word) {
        return pieces[i].kind == TKind::Exact && pieces[i].text == word;
    };
    if (pieces.size() < 4 || !is(0, "not") || !is(1, "(")) return false;
    int depth = 0;
    for (size_t i = 1; i < pieces.size(); ++i) {
        depth += is(i, "(") ? 1 : is(i, ")") ? -1 : 0;
        if (depth == 0) return i + 1 == pieces.size();
    }
    return false;
}

bool TSQLTemplateMatch::Match(const TSQLOperand& operand, std::string_view leftText,
                              bool bareValues, TSQLCapture (&values)[2]) const {
    size_t at = 0;
    for (size_t i = 1; i < pieces.size(); ++i) {
        const TPiece& piece = pieces[i];
        if (piece.kind == TKind::Exact) {
            if (at == operand.Count() || !SameText(operand.Token(at), piece.text)) return false;
            ++at;
            continue;
        }
        const size_t end = RunEnd(operand, at, i + 1);
        const std::string_view raw = operand.Piece(at, end);
        const bool isLiteral = end == at + 1 && operand.Type(at) == TKTokenType::Literal;
        if (piece.kind == TKind::Field) {
            if (!SameSQLText(raw, leftText)) return false;
        } else if (!MatchPlace(piece, raw, isLiteral, bareValues, values)) {
            return false;
        }
        at = end;
    }
    return at == operand.Count();
}

/// Where the run that begins at `from` ends: before the first token outside of brackets that the
/// piece behind it begins with, or at the end.
size_t TSQLTemplateMatch::RunEnd(const TSQLOperand& operand, size_t from, size_t piece) const {
    if (piece == pieces.size() || pieces[piece].kind != TKind::Exact) return operand.Count();
    const std::string& behind = pieces[piece].text;
    int depth = 0;
    for (size_t i = from; i < operand.Count(); ++i) {
        const std::string_view token = operand.Token(i);
        if (depth == 0 && SameText(token, behind)) return i;
        depth += token == "(" ? 1 : token == ")" ? -1 : 0;
    }
    return operand.Count();
}

bool TSQLTemplateMatch::MatchPlace(const TPiece& piece, std::string_view raw, bool isLiteral,
                                   bool bareValues, TSQLCapture (&values)[2]) const {
    if (raw.empty()) return false;
    if (piece.kind == TKind::Value) {
        TSQLCapture& value = values[piece.value - 1];
        if (IsParam(raw)) return Capture(value, {TForm::Param, std::string(raw.substr(1)), raw});
        return Capture(value, {TForm::Bare, std::string(raw), raw});
    }
    if (isLiteral) {
        const std::string content = UnquotedString(raw);
        const bool isClosed = content.size() + 2 <= raw.size();
        if (isClosed) return MatchContent(piece, content, TForm::Literal, raw, values);
    }
    const bool isWholeValue =
        piece.parts.size() == 1 && piece.parts[0].before.empty() && piece.text.empty();
    if (isWholeValue && IsParam(raw))
        return Capture(values[piece.parts[0].value - 1],
                       {TForm::Param, std::string(raw.substr(1)), raw});
    if (!bareValues || raw[0] == '=' || raw[0] == '<' || raw[0] == '>') return false;
    return MatchContent(piece, raw, TForm::Bare, raw, values);
}

bool TSQLTemplateMatch::MatchContent(const TPiece& piece, std::string_view content,
                                     TSQLCapture::TForm form, std::string_view raw,
                                     TSQLCapture (&values)[2]) {
    if (piece.parts.empty()) return content == piece.text;
    size_t at = 0; // where the present value begins
    for (size_t i = 0; i < piece.parts.size(); ++i) {
        const std::string& before = piece.parts[i].before;
        if (i == 0) {
            if (!content.starts_with(before)) return false;
            at = before.size();
            continue;
        }
        const size_t hit = content.find(before, at);
        if (hit == std::string_view::npos) return false;
        const std::string text(content.substr(at, hit - at));
        if (!Capture(values[piece.parts[i - 1].value - 1], {form, text, raw})) return false;
        at = hit + before.size();
    }
    const std::string_view rest = content.substr(at);
    if (!rest.ends_with(piece.text)) return false;
    const std::string text(rest.substr(0, rest.size() - piece.text.size()));
    return Capture(values[piece.parts.back().value - 1], {form, text, raw});
}

} // namespace tern7
