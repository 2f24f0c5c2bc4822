#include <tern7/core/query/read_sql/import_sorting.h>
#include <tern7/core/query/read_sql/import_sql.h>

#include <algorithm>

#include <tern7/core/global/limits.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_state.h>
#include <tern7/core/query/read_sql/report_reasons.h>

namespace tern7 {

namespace {

using TReport = TSQLReportKind;

bool HasNonAsciiChar(std::string_view text) {
    return std::any_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) > 127; });
}

/// Conditions below, and how many of them stand in brackets of their own.
struct TLeafCount {
    size_t all = 0, bracketed = 0;

    void Add(const TImportNode& node) {
        for (const TImportNode* each : node.nodes)
            Add(*each);
        if (node.IsGroup() || node.isJoin) return;
        ++all;
        bracketed += node.brackets > 0 ? 1 : 0;
    }
};

/// The first condition that needs more brackets around it than rows can stand in; none mostly.
const TImportNode* FirstTooDeep(const TImportNode& node, int level = 0) {
    if (node.NeedsBracket()) ++level;
    if (!node.IsGroup()) return level < MaxBracketLevel ? nullptr : &node;
    for (const TImportNode* each : node.nodes)
        if (const TImportNode* deep = FirstTooDeep(*each, level)) return deep;
    return nullptr;
}

} // namespace

const TSQLReport& TKQuery::ImportSQL(const TStrings& lines) {
    return ImportSQL(JoinStrings(lines, "\n"));
}

const TSQLReport& TKQuery::ImportSQL(std::string_view sql) {
    RequireStruct();
    RequireChangeable();
    const bool wasActive = active;
    SetActive(false); // and so it stays when the reading fails
    {
        const TBuilderStateScope loading(*this, TKBuilderState::stLoading);
        TSubSelectBudget budget(sql.size());
        TSQLImporter importer(*this, budget, false);
        importer.Parse(sql);
        ClearAll();
        StoreSQLReport(importer.Fill());
    }
    const std::weak_ptr<const char> alive = life;
    ReadingDone(wasActive);
    static const TSQLReport none;
    return alive.expired() ? none : SQLReport();
}

TSQLImporter::TSQLImporter(TKQuery& owner, TSubSelectBudget& subSelectBudget, bool nested)
    : query(owner), structure(owner.RequireStruct()), budget(subSelectBudget),
      recognition(owner, true),
      parser(structure.SQLFormats().QuoteSymbol1(), structure.SQLFormats().QuoteSymbol2(), nested),
      statement(parser.Statement()) {}

void TSQLImporter::Parse(std::string_view sql) {
    parser.TakeBracketNames(sql);
    parser.SetText(std::string(sql));
    parser.Parse();
    source = parser.Result().Source();
    const auto refuseDeep = [this](const TImportNode* condition) {
        const TImportNode* const deep = condition ? FirstTooDeep(*condition) : nullptr;
        if (!deep) return;
        parser.Tokens().GotoBookmark(deep->body.from);
        RaiseSQLError(messages::WrongSQL, source->PositionOf(parser.Tokens().GetTokOffset()));
    };
    refuseDeep(statement.where);
    for (const TImportTable& table : statement.tables)
        refuseDeep(table.on);
}

TSQLReport TSQLImporter::Fill() {
    joins = std::make_unique<TImportJoins>(parser, structure);
    joins->Find();
    syntaxes = joins->Syntaxes();
    joins->Decide(syntaxes.Choose(query.SQLSyntax()), rowsOfJoins, report);
    SetOptions();
    AddTables();
    AddColumns();
    AddSorting();
    FindRows();
    toldBeforeRows = report.Count();
    AddRows();
    query.SetSQLSyntax(syntaxes.Choose(query.SQLSyntax()));
    std::string failure = statement.tables.empty() ? std::string() : Build();
    if (failure.empty() && AskForAllTables()) failure = Build();
    if (failure.empty()) AskForWays();
    if (failure.empty() && AskForJoins()) failure = Build();
    for (const TImportLoss& loss : statement.losses)
        Report(TReport::rkDropped, loss.what, loss.all, reasons::NotSaid);
    const TSQLRest& rest = parser.Result().Rest;
    if (!rest.text.empty())
        report.Add(TReport::rkDropped, "rest", rest.text, source->OffsetOf(rest.text),
                   reasons::NotSaid);
    ReportOpenString();
    CheckGrouping();
    if (failure.empty())
        CheckJoins();
    else
        Report(TReport::rkDropped, "statement",
               {statement.tables.front().all.from, statement.tables.back().all.to}, failure);
    report.Place(*source);
    return std::move(report);
}

void TSQLImporter::Report(TSQLReportKind kind, std::string_view what, TTokenRange range,
                          std::string_view reason) {
    const std::string_view text = parser.Written(range);
    report.Add(kind, what, text, source->OffsetOf(text), reason);
}

/// A string that is not closed takes all that follows it.
void TSQLImporter::ReportOpenString() {
    const std::string_view text = parser.Tokens().OpenString();
    if (!text.empty())
        report.Add(TReport::rkKeptAsText, "text", text, source->OffsetOf(text), reasons::NotClosed);
}

std::string TSQLImporter::Rewrite(TTokenRange range) {
    return joins->Names().Rewrite(range);
}

// --- options, tables, columns

std::optional<bool> TSQLImporter::BracketConditions() const {
    TLeafCount count;
    if (statement.where) count.Add(*statement.where);
    if (count.all > 0) return count.bracketed == count.all;
    return joins->BracketConditions();
}

void TSQLImporter::SetOptions() {
    TSQLOptions options = query.SQLOptions();
    const auto set = [&options](TSQLOption option, bool value) {
        value ? options.Include(option) : options.Exclude(option);
    };
    const auto any = [this](bool (*property)(const TImportColumn&)) {
        return std::any_of(statement.columns.begin(), statement.columns.end(), property);
    };
    set(TSQLOption::soSelectDistinct, statement.distinct);
    if (any([](const TImportColumn& column) { return column.hasAlias; }))
        set(TSQLOption::soQuoteAliases,
            any([](const TImportColumn& column) { return column.isAliasQuoted; }));
    if (any([](const TImportColumn& column) { return HasNonAsciiChar(column.alias); }))
        options.Exclude(TSQLOption::soASCIIRFields);
    if (statement.anyJoinWord && statement.tables.size() > 2)
        set(TSQLOption::soBracketJoins, statement.bracketJoins);
    if (const std::optional<bool> brackets = BracketConditions())
        set(TSQLOption::soBracketConditions, *brackets);
    query.SetSQLOptions(options);
}

void TSQLImporter::AddTables() {
    query.SetMainTableName({});
    query.SetAvoidedJoins({});
    for (size_t i = 0; i < statement.tables.size(); ++i) {
        const TImportTable& table = statement.tables[i];
        const TDSTable* const known = joins->Names().TableOf(i);
        if (!known) {
            Report(TReport::rkDropped, table.name.empty() ? "derived table" : "table", table.all,
                   table.name.empty() ? reasons::NotSaid : reasons::NoTable);
            continue;
        }
        if (query.MainTableName().empty()) query.SetMainTableName(known->TableAlias());
        const bool areHintsKnown = parser.Written(table.hints) == known->Hints();
        if (!areHintsKnown && !table.hints.IsEmpty())
            Report(TReport::rkDropped, "hint", table.hints, reasons::NotSaid);
    }
}

void TSQLImporter::AddColumns() {
    for (const TImportColumn& column : statement.columns)
        AddColumn(column);
}

void TSQLImporter::AddColumn(const TImportColumn& column) {
    TRFieldList& fields = query.QResult().ResultFields();
    joins->Names().TakePlainColumn();
    const std::string text = Rewrite(column.expression);
    const bool isUnknown = joins->Names().TakeUnknown();
    const bool isText = joins->Names().TakePlainColumn() || isUnknown;
    hasUnknownNames = hasUnknownNames || isUnknown;
    TResultField& field = *fields.AddBySQLExpr(column.alias, TSortingType::stNoSort, text);
    // a literal that looks like a placeholder would be replaced
    if (ComparableText(field.GetSQLExpr()) != ComparableText(text)) field.SetFields({}, text);
    if (column.alias.empty() || fields.CheckUniqAlias(column.alias)) field.SetAlias(column.alias);
    Report(isText ? TReport::rkKeptAsText : TReport::rkRecognised, "column", column.expression,
           isText ? reasons::UnknownNames : std::string_view());
    if (const std::string_view obstacle = joins->Names().TakeObstacle(); !obstacle.empty())
        Report(TReport::rkDropped, "column", column.expression, obstacle);
    if (field.Alias() != column.alias)
        Report(TReport::rkDropped, "alias", column.expression, reasons::AliasChanged);
}

} // namespace tern7
