#include <tern7/core/parser/sql_parser.h>

#include <unordered_map>

#include <tern7/core/corekit/numbers.h>
#include <tern7/core/global/limits.h>
#include <tern7/core/global/messages.h>

namespace tern7 {

namespace {

// In the order of TWord, from wSelect on.
constexpr std::string_view ReservedWords[] = {"select", "from",  "join", "where",
                                              "order",  "group", "by"};
constexpr std::string_view OtherWords[] = {
    "distinct", "as",        "inner", "left",   "right", "full",    "outer",  "on",
    "not",      "and",       "or",    "=",      "<>",    "!=",      ">",      "<",
    ">=",       "<=",        "like",  "in",     "is",    "between", "having", "union",
    "except",   "intersect", "limit", "offset", "fetch", "desc",    "asc",    "(",
    ")",        ",",         ".",     "*",      "\""};

std::shared_ptr<const TKVocabulary> Words() {
    static const std::shared_ptr<const TKVocabulary> words = [] {
        auto vocabulary = std::make_shared<TKVocabulary>();
        for (std::string_view word : ReservedWords)
            vocabulary->Add(word, true);
        for (std::string_view word : OtherWords)
            vocabulary->Add(word, false);
        return vocabulary;
    }();
    return words;
}

/// A name written between quote characters as it is meant.
std::string Unquoted(std::string_view name) {
    const char close = name.back();
    const std::string_view inner = name.substr(1, name.size() - (name.size() > 1 ? 2 : 1));
    const char doubled[] = {close, close};
    return ReplaceStr(inner, std::string_view(doubled, 2), std::string_view(doubled, 1));
}

} // namespace

TKSQLParser::TKSQLParser()
    : source(std::make_shared<const TKSourceText>(std::string())), scanner(Words()),
      result(std::make_unique<TKParserResult>()) {
    static_assert(std::size(ReservedWords) == wBy);
    static_assert(std::size(ReservedWords) + std::size(OtherWords) == wDoubleQuote);
}

TKSQLParser::~TKSQLParser() = default;

void TKSQLParser::SetSQL(const TStrings& lines) {
    SetText(JoinStrings(lines, "\n"));
}

void TKSQLParser::SetText(std::string sql) {
    source = std::make_shared<const TKSourceText>(std::move(sql));
}

void TKSQLParser::Parse() {
    joiningWords = comparingWords = nullptr;
    scanner.SetSource(source);
    result->SetSource(source);
    RefuseDeepNesting();
    ProcessSelect();
    ProcessFrom();
    if (Is(wWhere)) ProcessWhere();
    if (Is(wGroup)) ProcessGroupBy();
    if (Is(wOrder)) ProcessOrderBy();
    KeepRest();
}

/// What reads the tree, or the nested selects, may be recursive.
void TKSQLParser::RefuseDeepNesting() {
    if (scanner.MaxDepth() <= MaxSubQueryLevel) return;
    std::vector<bool> isSelect; // by open bracket
    size_t selects = 0;
    for (; !scanner.EOS(); Step()) {
        if (Is(wOpen)) {
            isSelect.push_back(false);
        } else if (Is(wClose) && !isSelect.empty()) {
            selects -= isSelect.back() ? 1 : 0;
            isSelect.pop_back();
        } else if (Is(wSelect) && !isSelect.empty() && !isSelect.back()) {
            isSelect.back() = true;
            ++selects;
        }
        if (isSelect.size() > MaxBracketLevel || selects > MaxSubQueryLevel)
            Error(messages::WrongSQL);
    }
    scanner.FirstToken();
}

void TKSQLParser::KeepRest() {
    if (isRestNoted) scanner.GotoBookmark(noted);
    result->Rest.text = scanner.EOS() ? scanner.Behind() : scanner.Rest();
    if (!result->Rest.text.empty()) result->Rest.position = result->PositionOf(result->Rest.text);
}

std::string TKSQLParser::ProcessIdentifier() {
    std::string name;
    if (Take(wDoubleQuote)) {
        for (; !scanner.EOS() && !Is(wDoubleQuote); Step())
            name.append(scanner.GetRealStr());
    } else if (scanner.GetTokType() == TKTokenType::Name) {
        name = Unquoted(scanner.GetRealStr());
    } else {
        name = scanner.GetRealStr();
    }
    Step();
    return name;
}

std::string TKSQLParser::ProcessName() {
    std::string name = ProcessIdentifier();
    while (Take(wPoint))
        name.append(".").append(ProcessIdentifier());
    return name;
}

void TKSQLParser::ProcessSelect() {
    Require(wSelect);
    result->Distinct = Take(wDistinct);
    if (Take(wStar)) {
        result->AllFields = result->ResultFields.AllFields = true;
        return;
    }
    do
        ProcessResultField();
    while (Take(wComma));
}

void TKSQLParser::ProcessResultField() {
    const size_t start = scanner.GetBookmark();
    std::string expression = ProcessSQLExpr();
    const std::string_view written = scanner.ExtractPiece(start, scanner.GetBookmark(), false);
    std::string alias = Take(wAs) ? ProcessAlias() : std::string();
    AddResultField(std::move(expression), std::move(alias)).Source = written;
}

std::string TKSQLParser::ProcessSQLExpr() {
    std::string expression;
    int depth = 0;
    for (; !scanner.EOS(); Step()) {
        const bool isEnd = scanner.GetTokType() == TKTokenType::Keyword || Is(wComma) || Is(wAs);
        if (depth < 1 && isEnd) break;
        if (Is(wOpen)) ++depth;
        if (Is(wClose)) --depth;
        expression.append(scanner.GetRealStr());
    }
    return expression;
}

std::string TKSQLParser::ProcessAlias() {
    return ProcessIdentifier();
}

TSQLResultField& TKSQLParser::AddResultField(std::string expression, std::string alias) {
    auto field = std::make_unique<TSQLResultField>();
    field->SetSQLExpr(std::move(expression));
    field->Alias = std::move(alias);
    return *result->ResultFields.Add(std::move(field));
}

void TKSQLParser::ProcessFrom() {
    Require(wFrom);
    do
        ProcessTable();
    while (Take(wComma));
}

void TKSQLParser::ProcessTable() {
    SkipTokens(wOpen);
    TSQLTable& table = *result->Tables.Add(std::make_unique<TSQLTable>());
    table.SetTableName(ProcessName());
    SkipTokens(wClose);
    if (scanner.EOS() || Is(wComma) || IsClauseWord()) return;
    // Whatever else follows is an alias: "as" is none of the words that are known here.
    if (!IsJoinWord()) table.Alias = ProcessIdentifier();
    if (IsJoinWord()) ProcessTableJoins();
}

void TKSQLParser::ProcessTableJoins() {
    while (IsJoinWord()) {
        if (Take(wLeft) || Take(wRight) || Take(wFull))
            Take(wOuter);
        else
            Take(wInner);
        Require(wJoin);
        auto table = std::make_unique<TSQLTable>();
        table->SetTableName(ProcessName());
        if (!Is(wOn) && !scanner.EOS()) table->Alias = ProcessIdentifier();
        Require(wOn);
        ProcessBoolExpr(*result->NewBracket(nullptr)); // nobody asks for it
        result->Tables.Add(std::move(table));
        SkipTokens(wClose);
    }
}

void TKSQLParser::ProcessWhere() {
    Require(wWhere);
    TSQLBracket* root = &result->Where();
    ProcessBoolExpr(*root);
    while (root->Nodes().GetCount() == 1 && root->Nodes()[0]->AsBracket()) {
        root = root->Nodes()[0]->AsBracket();
        root->SetParent(nullptr);
    }
    result->SetWhere(*root);
}

void TKSQLParser::ProcessGroupBy() {
    Require(wGroup);
    if (!Is(wBy)) Error(messages::WrongSQL);
    std::string table, field;
    do {
        Step();
        ProcessField(table, field);
    } while (!scanner.EOS() && Is(wComma));
}

/// Kept as it is, though it looks wrong: the field comes out as "." and its name stays the current
/// token, so that a GROUP BY ends after its first item and hides an ORDER BY behind it. Statements
/// with GROUP BY have always been read without their sorting.
void TKSQLParser::ProcessField(std::string& table, std::string& field) {
    table = ProcessIdentifier();
    if (!Is(wPoint)) Error(messages::WrongSQL);
    field = ProcessIdentifier();
}

void TKSQLParser::ProcessOrderBy() {
    Require(wOrder);
    Require(wBy);
    if (scanner.GetTokType() == TKTokenType::Integer)
        ProcessOrderByNumbers();
    else
        ProcessOrderByNames();
}

void TKSQLParser::ProcessOrderByNumbers() {
    int position = 0;
    do {
        if (scanner.GetTokType() != TKTokenType::Integer) Error(messages::WrongSQL);
        const int number = XStrToInt(scanner.GetRealStr());
        if (number < 1 || number > result->ResultFields.GetCount()) Error(messages::WrongSQL);
        Step();
        ProcessDirection(*result->ResultFields[number - 1], ++position);
    } while (Take(wComma));
}

void TKSQLParser::ProcessOrderByNames() {
    std::unordered_map<std::string_view, TSQLResultField*, TTextHash, TTextEqual> byExpression;
    for (const auto& field : result->ResultFields)
        byExpression.emplace(field->SQLExpr(), field.get());
    int position = 0;
    do {
        if (scanner.EOS()) Error(messages::WrongSQL);
        const size_t start = scanner.GetBookmark();
        std::string name = ProcessIdentifier();
        if (Take(wPoint)) {
            if (scanner.EOS()) Error(messages::WrongSQL);
            name.append(".").append(ProcessIdentifier());
        }
        TSQLResultField* field = nullptr;
        if (result->ResultFields.AllFields) {
            field = &AddResultField(std::move(name), {});
            field->Source = scanner.ExtractPiece(start, scanner.GetBookmark(), false);
        } else if (const auto found = byExpression.find(name); found != byExpression.end()) {
            field = found->second;
        } else {
            Error(messages::WrongSQL);
        }
        ProcessDirection(*field, ++position);
    } while (Take(wComma));
}

/// Whatever stands in the place of a direction is stepped over; what is none is part of the rest.
void TKSQLParser::ProcessDirection(TSQLResultField& field, int sortIndex) {
    field.SortOrder = Is(wDesc) ? 2 : 1;
    field.SortIndex = sortIndex;
    if (scanner.EOS() || Is(wComma)) return;
    if (!Is(wDesc) && !Is(wAsc) && !isRestNoted) {
        isRestNoted = true;
        noted = scanner.GetBookmark();
    }
    Step();
}

bool TKSQLParser::IsJoinWord() const {
    return Is(wJoin) || Is(wInner) || Is(wLeft) || Is(wRight) || Is(wFull);
}

bool TKSQLParser::IsClauseWord() const {
    return Is(wWhere) || Is(wGroup) || Is(wOrder);
}

void TKSQLParser::Require(uint8_t word) {
    if (!Take(word)) Error(messages::WrongSQL);
}

void TKSQLParser::SkipTokens(uint8_t word) {
    while (Take(word)) {
    }
}

void TKSQLParser::Error(std::string_view message) const {
    RaiseSQLError(message, scanner.Source()->PositionOf(scanner.GetTokOffset()));
}

void RaiseSQLError(std::string_view message, TKTextPosition at) {
    throw ESQLParserError(std::string(message) + "\r\nLine:" + std::to_string(at.line), at.line,
                          at.column);
}

} // namespace tern7
