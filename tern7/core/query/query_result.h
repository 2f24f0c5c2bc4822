#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <tern7/core/corekit/line_buffer.h>
#include <tern7/core/global/sql_options.h>
#include <tern7/core/query/bound_value.h>
#include <tern7/core/query/result_field.h>
#include <tern7/core/query/result_table.h>
#include <tern7/core/query/sql_param.h>

namespace tern7 {

class TKCustomDBStructure;
class TBoundValues;
class TConditionWriter;
class TKQuery;

/// The columns, tables, condition lines and parameters of a query, and the statement they make.
/// TKQuery::BuildQuery fills tables, conditions, sort and group text; GetSQL writes the statement.
class TQueryResult {
public:
    explicit TQueryResult(TKQuery& query);
    ~TQueryResult();

    TKQuery& Query() const { return query; }
    TKCustomDBStructure* DbStruct() const;

    TRFieldList& ResultFields() { return resultFields; }
    const TRFieldList& ResultFields() const { return resultFields; }
    TRTableList& ResultTables() { return resultTables; }
    const TRTableList& ResultTables() const { return resultTables; }
    const TKLineBuffer& Conditions() const { return conditions; }
    const std::string& OrderByText() const { return orderByText; }
    const std::string& GroupByText() const { return groupByText; }
    void SetOrderByText(std::string text) { orderByText = std::move(text); }
    void SetGroupByText(std::string text) { groupByText = std::move(text); }
    void ClearConditions() { conditions.Clear(); }
    /// True when the last GetFromClause left join conditions to WHERE.
    bool OldStyleJoins() const { return oldStyleJoins; }

    TSQLOptions SQLOptions() const { return options; }
    void SetSQLOptions(TSQLOptions value);
    TSQLSyntax SQLSyntax() const { return syntax; }
    void SetSQLSyntax(TSQLSyntax value);
    /// Copies a list into ResultFields.
    void SetResultFields(const TRFieldList& list);
    /// The structure was replaced: built parts are dropped.
    void DbStructChanged();

    /// The whole statement, one clause or part of a clause a line. The buffer belongs to this
    /// object and is overwritten by the next call. EKQueryPanelError "Query was not built properly"
    /// without tables.
    const TKLineBuffer& GetSQL();
    /// The same with every constant of a condition as a bound value. With `escapeWildcards` the
    /// wildcards in values of LIKE conditions stand for themselves (an ESCAPE clause is added).
    /// EKQueryPanelError "Can not execute condition: %s" for text of a condition that can not be
    /// executed safely, and for values with NUL.
    TBoundSQL GetBoundSQL(TPlaceholderStyle style = TPlaceholderStyle::Question,
                          bool escapeWildcards = false);

    std::string GetSelectClause();
    const TKLineBuffer& GetFromClause();
    /// Appends the join conditions that belong into WHERE; true if there was one.
    bool AddOldStyleInnerJoins(TKLineBuffer& target) const;
    /// The join conditions alone; lines joined by CR LF, none behind the last.
    std::string GetJoinConditions() const;
    /// The text in brackets when soBracketConditions is set.
    std::string AdjustCondition(std::string_view text) const;
    void AddCondition(std::string_view text);

    // --- parameters
    const TSQLParamList& Params() const { return params; }
    int GetParamCount() const { return params.GetCount(); }
    TSQLParam* GetParam(int i) const { return params.GetItem(i); }
    /// A parameter for the condition's first value that is flagged and has none; for its second
    /// when that has been given already.
    TSQLParam* AddParameter(TFilterCond& condition);
    TSQLParam* AddParameter(TFilterCond& condition, int valueNumber);
    TSQLParam* FindParameter(std::string_view name) const;
    TSQLParam* FindParameterByCondition(const TFilterCond& condition) const;
    void DeleteParameters(TFilterCond& condition);
    void DeleteParameter(TSQLParam* param);
    void ClearParams();
    /// Gives a parameter another name; false when one of this query, or of a query nested in it or
    /// around it, has that name.
    bool RenameParameter(TSQLParam& param, std::string name);
    int ParamNumberBase() const { return paramNumberBase; }
    void SetParamNumberBase(int value) { paramNumberBase = value; }
    /// The generated captions of a condition's parameters follow its field.
    void UpdateParamCaptions(TFilterCond& condition);
    /// Length of the longest SQL expression of a field of the structure.
    size_t LongestFieldExpr() const;

private:
    friend class TKQuery;
    friend class TQueryBuild;
    friend class TFilterCond;
    friend std::string NestedBoundStatement(const TFilterCond& condition, TBoundValues& values);
    TKLineBuffer BoundLines(TBoundValues& values);
    void RequireSafeColumns() const;
    void RemoveParameter(TSQLParam* param);
    void AppendStatement(TKLineBuffer& out, const TKLineBuffer& conditionLines);
    std::vector<std::unique_ptr<TSQLParam>> TakeParams(const std::vector<TSQLParam*>& wanted);
    void PutParam(std::unique_ptr<TSQLParam> param);
    std::string NewParamName();

    TKQuery& query;
    TRFieldList resultFields{this};
    TRTableList resultTables;
    TKLineBuffer fromLines;
    std::string orderByText;
    TKLineBuffer conditions;
    TKLineBuffer spareConditions; // room for the next build, as the next
    TRTableList spareTables;
    std::unique_ptr<TConditionWriter> writer;
    std::string groupByText;
    bool oldStyleJoins = false;
    TSQLOptions options = DefaultSQLOptions;
    TSQLSyntax syntax = TSQLSyntax::ssSQL2;
    TKLineBuffer sql;
    TSQLParamList params;
    int paramNumberBase = 0;
    mutable uint64_t longestRevision = 0; // see LongestFieldExpr
    mutable size_t longestFieldExpr = 0;
};

} // namespace tern7
