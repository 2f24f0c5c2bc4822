#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <tern7/core/query/filter_row.h>
#include <tern7/core/query/read_sql/condition_recognition.h>
#include <tern7/core/query/read_sql/import_joins.h>
#include <tern7/core/query/read_sql/parse_sql.h>
#include <tern7/core/query/result_field.h>
#include <tern7/core/query/sql_param.h>

namespace tern7 {

/// A sub-select as a query text, when it could be read whole.
struct TImportedSubSelect {
    bool isWhole = false;
    std::string text;
    TSQLOptions options;
    TParamNames paramNames; // in lower case
    TSQLReport report;
};

/// Makes a query of a whole statement, so that the statement built from it gives the same rows, and
/// reports what is recognised, kept as text or dropped.
class TSQLImporter {
public:
    TSQLImporter(TKQuery& owner, TSubSelectBudget& subSelectBudget, bool nested);

    /// Reads the text and leaves the query alone. ESQLParserError.
    void Parse(std::string_view sql);
    /// Fills the query, which was cleared.
    TSQLReport Fill();
    /// True when the statement names tables that it does not have: those of one around it.
    bool HasUnknownNames() const { return hasUnknownNames; }
    /// The syntaxes in which the query gives the statement.
    TSyntaxes Syntaxes() const { return syntaxes; }

private:
    // options, tables, columns
    void SetOptions();
    std::optional<bool> BracketConditions() const;
    void AddTables();
    void AddColumns();
    void AddColumn(const TImportColumn& column);
    // rows
    void FindRows();
    void AddRows();
    void FillBracket(TFilterBracket& bracket, const TImportNode& group);
    void AddNode(TFilterBracket& bracket, const TImportNode& node);
    void AddCondition(TFilterBracket& bracket, const TImportNode& node);
    bool AddRecognised(TFilterBracket& bracket, const TImportNode& node, bool negated);
    bool AddToNone(TFilterBracket& bracket, const TImportNode& node, bool negated);
    const TImportedSubSelect& ReadSubSelect(std::string_view sql, const TImportNode& node);
    bool ImportSubQuery(const TRecognisedCondition& found, const TImportNode& node,
                        TFilterCond& row);
    void AddText(TFilterBracket& bracket, std::string text);
    void AddTextOf(TFilterBracket& bracket, const TImportNode& node);
    void NameParam(const TFilterCond& row, int n, const std::string& name, const TImportNode& node);
    TSQLCondition& MakeCondition(const TImportNode& node, bool negated);
    void DropTypeWords(TSQLCondition& condition);
    std::string ValueText(const TImportNode& node);
    // sorting and grouping
    void AddSorting();
    void SortAllFields();
    void ListAllFields();
    size_t LastTableOf(const TDSField& field) const;
    using TColumnsByAlias = std::unordered_map<std::string, const TResultField*>;
    std::string GroupText(TTokenRange item, const TColumnsByAlias& byAlias);
    void CheckGrouping();
    // what the query makes of it
    std::string Build();
    bool AskForAllTables();
    bool AskForWays();
    bool AskForJoins();
    std::unordered_set<const TDSLink*> BuiltLinks() const;
    bool IsBuiltInOrder() const;
    bool BringsRowsBack() const;
    void CheckJoins();

    void ReportOpenString();
    void Report(TSQLReportKind kind, std::string_view what, TTokenRange range,
                std::string_view reason = {});
    std::string Rewrite(TTokenRange range);

    TKQuery& query;
    const TKCustomDBStructure& structure;
    TSubSelectBudget& budget;
    TConditionRecognition recognition;
    TImportParser parser;
    TImportStatement& statement;
    struct TListedField {
        TDSField* field;
        size_t table; // its place in FROM
        int rank;     // 0 when it is not sorted
        bool descending;
    };
    std::unique_ptr<TImportJoins> joins;
    std::vector<TImportNode*> rowsOfJoins;
    std::vector<std::string> heldJoins; // conditions for joins that the query does not make
    std::unordered_set<const TDSLink*> held;
    TImportNode* rows = nullptr; // of WHERE, without the joins
    size_t toldBeforeRows = 0;
    std::vector<TListedField> listed; // of "select *"
    std::shared_ptr<const TKSourceText> source;
    TSQLReport report;
    TParamNames paramNames; // in lower case, those of sub-selects included
    std::unordered_map<size_t, TImportedSubSelect> subSelects; // by bookmark of their "("
    TSyntaxes syntaxes = TSyntaxes::All();
    bool hasUnknownNames = false;
};

} // namespace tern7
