#pragma once

#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include <tern7/core/corekit/strings.h>
#include <tern7/core/global/errors.h>
#include <tern7/core/global/events.h>
#include <tern7/core/global/services.h>
#include <tern7/core/global/sql_options.h>
#include <tern7/core/query/filter_row.h>
#include <tern7/core/query/query_result.h>
#include <tern7/core/query/query_steps.h>
#include <tern7/core/query/query_view.h>
#include <tern7/core/structure/structure.h>

namespace tern7 {

class TSQLReport;
class TKQueryRecord;

/// How a query is shown: brackets as lines of their own, or and/or words before conditions.
enum class TQPStyle : uint8_t { psGroups, psAndOr };

/// A value that can not stand in the statement; names the row.
class EKWrongValueError : public EKQueryPanelError {
public:
    EKWrongValueError(const std::string& message, const TFilterCond& row)
        : EKQueryPanelError(message), condition(&row) {}
    const TFilterCond& Condition() const { return *condition; }

private:
    const TFilterCond* condition;
};

/// An expression of a result field that can not be read.
class EKExpressionError : public EKQueryPanelError {
public:
    EKExpressionError(const std::string& message, size_t at)
        : EKQueryPanelError(message), position(at) {}
    /// Offset in bytes of what can not be read.
    size_t Position() const { return position; }

private:
    size_t position;
};

/// A condition that takes no part although it is enabled, and why.
struct TUnfinishedRow {
    const TFilterCond* row;
    TUnfinished reason;
};

/// A query without its screen: the filter (a tree of rows under the root bracket), the result
/// (columns, tables, parameters), texts and options. Every change to it or to anything below it is
/// told here, in one place, which decides by state, Active and nesting what views and application
/// hear of it.
///
///     TKQuery query(&structure);
///     query.QResult().ResultFields().AddByExpression("City", TSortingType::stNoSort, "{City}");
///     TFilterCond* row = query.Root().AddCond();
///     row->SetField(structure.FieldByName(true, "City"));
///     row->SetOperator(structure.OperatorByName("Equal"));
///     row->SetValue(1, "Berlin");
///     query.BuildQuery();
///     std::string sql = query.QResult().GetSQL().Text();
class TKQuery : private TDSObserver {
    class TReplaying;

public:
    class THeldEvents;

    explicit TKQuery(TKCustomDBStructure* structure = nullptr);
    ~TKQuery() override;
    TKQuery(const TKQuery&) = delete;
    TKQuery& operator=(const TKQuery&) = delete;

    /// Not owned; none when it was destroyed. Another structure: rows and result fields are found
    /// again by ID and name.
    TKCustomDBStructure* DbStruct() const { return structure; }
    void SetDbStruct(TKCustomDBStructure* value);
    /// The structure; EKQueryPanelError "Database structure is not specified" without one.
    TKCustomDBStructure& RequireStruct() const;

    TFilterBracket& Root() { return *root; }
    const TFilterBracket& Root() const { return *root; }
    TQueryResult& QResult() { return *result; }
    const TQueryResult& QResult() const { return *result; }

    // --- texts and options
    const std::string& QueryName() const { return queryName; }
    void SetQueryName(std::string value);
    /// Alias or name of the table that the query starts from; empty: the structure's default.
    const std::string& MainTableName() const { return mainTableName; }
    void SetMainTableName(std::string value);
    /// Pairs of tables that are not joined directly, where the shortest way is not the one that is
    /// meant: joins lead around. Kept as they are, also while the structure lacks a table of them.
    const TAvoidedJoins& AvoidedJoins() const { return avoidedJoins; }
    void SetAvoidedJoins(TAvoidedJoins value);
    TSQLOptions SQLOptions() const { return result->SQLOptions(); }
    void SetSQLOptions(TSQLOptions value) { result->SetSQLOptions(value); }
    TSQLSyntax SQLSyntax() const { return result->SQLSyntax(); }
    void SetSQLSyntax(TSQLSyntax value) { result->SetSQLSyntax(value); }
    TStrings Description;
    TStrings UserData;
    TStrings Titles; ///< caption sections
    bool SaveTitles = true;
    bool SaveSQLOptions = false;
    /// Keep MainTableName and AvoidedJoins, when there are any, in the query text.
    bool SaveMainTable = false;
    /// Values that stand without quotes must be one number or word; see BuildQuery.
    bool CheckValues = true;
    /// Version of the text that was read last.
    double FormatVersion() const { return formatVersion; }
    void SetFormatVersion(double value) { formatVersion = value; }

    // --- building
    /// Fills the result's tables, conditions, sort and group text. On any error (EKQueryPanelError
    /// "No enough information for building query", EKWrongValueError, EKDBStructError) they are as
    /// they were. Linear in rows, columns and joined tables.
    void BuildQuery();
    /// The enabled conditions that the statement leaves out, nested queries not included.
    std::vector<TUnfinishedRow> UnfinishedRows() const;
    /// The parameters of this query and of the queries nested in it, in text order.
    std::vector<TSQLParam*> AllParams() const;
    /// By name, else by caption, over nested queries too; none when absent.
    TSQLParam* FindParam(std::string_view nameOrCaption) const;
    /// Value n as it is put into the template of its operator.
    std::string ExtractValue(const TFilterCond& condition, int n) const;
    /// Between the local form of a date or time and the structure's SQL form. A text that is no
    /// date comes back as it is.
    std::string ProcessDateValue(TFieldType type, std::string_view value, bool toSQL) const;
    /// Runs a call after which the services read and write dates in another local form. All values
    /// follow, those of rows that undo keeps and of nested queries included; no event is raised.
    void ChangeLocalForms(const std::function<void()>& change);
    /// The text of one condition; empty when it is unfinished.
    std::string ConditionText(const TFilterCond& condition) const;

    // --- rows
    /// Drops rows, result fields and parameters; name, texts and options stay.
    void ClearAll();
    /// Numbers the rows in the present style.
    void EnumerateRows();
    TQPStyle Style() const { return style; }
    void SetStyle(TQPStyle value);
    TFilterRow* RowByID(int id) { return root->RowByID(id); }

    // --- text form
    void SaveToStrings(TStrings& lines);
    /// EKQueryPanelError without a structure or for a damaged text; the query is as it was then.
    void LoadFromStrings(const TStrings& lines);
    std::string GetQueryString();
    void SetQueryString(std::string_view text);
    void SaveToFile(const std::string& fileName);
    void LoadFromFile(const std::string& fileName);
    /// What the last reading met without failing, in words: a newer version, another encoding.
    const TStrings& LoadWarnings() const { return loadWarnings; }

    // --- reading SQL
    /// Replaces rows and columns by what a SELECT statement says, as far as the structure knows its
    /// fields and operators; a condition that is not recognised becomes a row that keeps its text.
    /// Joins, grouping and aliases are not read. ESQLParserError for a syntax error; there are no
    /// rows then, and the query stays inactive. Linear in the text.
    void ParseSQL(const TStrings& lines);
    void ParseSQL(std::string_view sql);
    /// As ParseSQL, and complete: tables, aliases, joins, sorting and grouping are read, options,
    /// syntax, main table and parameter names taken over, so that the statement that the query
    /// builds gives the same rows, as far as the report names nothing that was dropped. On a syntax
    /// error (ESQLParserError) the query is as it was, but inactive.
    const TSQLReport& ImportSQL(const TStrings& lines);
    const TSQLReport& ImportSQL(std::string_view sql);
    /// What became of the SQL that was read last. ParseSQL tells only what it kept as text and what
    /// it did not read.
    const TSQLReport& SQLReport() const;

    // --- state and notification
    bool Active() const { return active; }
    /// Inactive: no events, views are not refreshed; active again: one refresh, then OnActive.
    void SetActive(bool value);
    TKBuilderState BuilderState() const { return state; }
    void SetBuilderState(TKBuilderState value) { state = value; }
    /// Between them views and OnChange wait; the outermost EndUpdate tells once what was missed.
    void BeginUpdate() { ++updateNesting; }
    void EndUpdate();
    void AddView(TKQueryView* view);
    void RemoveView(TKQueryView* view);
    /// Whoever keeps the steps, none without undo; not owned.
    TKQuerySteps* Steps() const { return steps; }
    void SetSteps(TKQuerySteps* keeper) { steps = keeper; }
    /// What a user does, as one step of that name where steps are kept. The application hears of it
    /// once.
    void RunStep(const std::string& name, const std::function<void()>& change);
    void CloseEditors();

    TEvent<TKQuery&> OnActive;
    TEvent<TKQuery&> OnChange;
    TEvent<TKQuery&> OnParamListChange;
    TEvent<TFilterCond&, int> OnConditionChange;
    TEvent<TFilterCond&, std::string&> OnBuildSQL;
    TEvent<TFilterCond&, std::string&, std::string&> OnSetValue;
    TEvent<TDSField&, const std::string&, std::string&> OnChangeValue;
    TEvent<TDSField&, std::string&> OnCustomEdit;
    TEvent<TFilterCond&, std::string&> OnCustomValue;
    TEvent<TFilterCond&, std::string&> OnValueDblClick;
    TKServices Services;

    /// Expires with the query.
    std::weak_ptr<const char> Life() const { return life; }

    // --- nested queries
    /// An empty query over the same structure, with syntax, services, parameter names and the
    /// events about conditions and values of this one.
    std::unique_ptr<TKQuery> NewNested() const;
    TKQuery* Outer() const { return outer; }

    // --- the one place that hears of changes; called by rows, columns and parameters
    void RowsAdded(TFilterBracket& parent, int index, int count);
    void RowsRemoved(TFilterBracket& parent, int index, int count);
    void RowChanged(TFilterRow& row);
    void ValueEditorsChanged(TFilterRow& row);
    void ConditionChanged(TFilterCond& condition, int whatChanged);
    void ResultFieldsChanged();
    void ParametersListChanged();
    /// Something else that belongs to the query was changed.
    void Changed();

private:
    friend class TFilterRow;
    friend class TFilterBracket;
    friend class TFilterCond;
    friend class TResultField;
    friend class TRFieldList;
    friend class TQueryResult;
    friend class TQueryBuild;
    friend class TKQueryTextReader;
    friend class TKQueryRecord;
    friend class TKQueryRecording;
    friend std::vector<TFilterRow*> InsertRowsFromText(TFilterBracket&, int, std::string_view);
    void ReleaseReferences() override;
    void RestoreReferences() override;
    void StructureChanged() override;
    void StructureDestroyed() override;
    template <class Call>
    void TellViews(Call call);
    template <class Call>
    void RefreshViews(Call call);
    /// The row and all below it, depth first.
    template <class Call>
    static void ForEachRow(TFilterRow& row, Call call) {
        call(row);
        if (TFilterBracket* bracket = row.AsBracket())
            for (const auto& below : bracket->rows)
                ForEachRow<Call&>(*below, call);
    }
    template <class Call>
    void ForEachEnabledCondition(Call call) const {
        EnabledConditions<Call&>(*root, call);
    }
    template <class Call>
    static void EnabledConditions(const TFilterBracket& bracket, Call call) {
        for (const auto& row : bracket.rows) {
            if (!row->enabled) continue;
            if (const TFilterCond* condition = row->AsCond())
                call(*condition);
            else
                EnabledConditions<Call>(*row->AsBracket(), call);
        }
    }
    void EverythingChanged();
    bool Listening() const { return active && updateNesting == 0; }
    bool SendsEvents() const { return Listening() && eventsHeld == 0; }
    void SendConditionEvents();
    void SendPendingEvents();
    /// Where a change is recorded; none while it is replayed, or when nobody records.
    TKQueryRecord* Record() const { return replaying ? nullptr : record; }
    /// The same for a change after which other steps can not be taken back unless it is recorded.
    TKQueryRecord* RecordOfChange();
    /// A row or column that is not needed any more goes to the record, else it is freed.
    void Drop(std::unique_ptr<TFilterRow> row);
    void Drop(std::unique_ptr<TResultField> column);
    /// A row or column that was taken out is being freed.
    void Freed(const void* rowOrColumn);
    void ForgetEvents(const TFilterCond& condition);
    void AddDetached(TFilterRow& row);
    void InstantiateNested();
    void EnsureNumbered() const;
    /// EKQueryPanelError while the statement is being built: handlers must not change rows then.
    void RequireChangeable() const;
    void AttachRow(TFilterRow& row);
    void DetachRow(TFilterRow& row);
    void DropParams(const std::vector<std::unique_ptr<TFilterRow>>& rows);
    void BracketChanged(TFilterBracket& bracket);
    void SubQueryChanged(TFilterCond& condition);
    void ConvertDates(bool toStored);
    void StoreSQLReport(TSQLReport report);
    void SetSQLReport(std::shared_ptr<const TSQLReport> report);
    void ReadingDone(bool wasActive);

    TKCustomDBStructure* structure = nullptr;
    TKQuery* outer = nullptr;
    std::shared_ptr<TParamNames> paramNames = std::make_shared<TParamNames>();
    std::unique_ptr<TQueryResult> result;
    std::unique_ptr<TFilterBracket> root;
    std::unordered_set<TFilterRow*> detachedRows;
    std::unordered_set<TResultField*> detachedFields;
    std::vector<TKQueryView*> views;
    std::string queryName;
    std::string mainTableName;
    TAvoidedJoins avoidedJoins;
    double formatVersion = 3.3;
    TStrings loadWarnings;
    std::shared_ptr<const TSQLReport> sqlReport;
    TQPStyle style = TQPStyle::psGroups;
    TKBuilderState state = TKBuilderState::stIdle;
    bool active = true;
    int updateNesting = 0;
    int paramsHeld = 0; // a condition tells of its own change first
    int eventsHeld = 0;
    TKQueryRecord* record = nullptr;
    TKQuerySteps* steps = nullptr;
    bool replaying = false;
    struct TPendingCondition {
        TFilterCond* condition;
        int whatChanged;
    };
    std::deque<TPendingCondition> pendingConditions;                   // while events are held
    std::shared_ptr<const char> life = std::make_shared<const char>(); // handlers may end it
    mutable bool numbersKnown = false;
    bool nestedPending = false; // a sub-query text may hold parameters that have no name yet
    bool changePending = false;
    bool viewsPending = false;
    bool paramsPending = false;
};

/// Keeps the changes of a step together: BeginUpdate while it lives. What a handler raises at its
/// end passes on, unless another exception is under way. The query may go meanwhile.
class TKQueryUpdate {
public:
    explicit TKQueryUpdate(TKQuery& owner) : TKQueryUpdate(&owner) {}
    /// None: nothing happens.
    explicit TKQueryUpdate(TKQuery* owner) : query(owner) {
        if (!query) return;
        life = query->Life();
        query->BeginUpdate();
    }
    ~TKQueryUpdate() noexcept(false);
    TKQueryUpdate(const TKQueryUpdate&) = delete;
    TKQueryUpdate& operator=(const TKQueryUpdate&) = delete;

private:
    TKQuery* query;
    std::weak_ptr<const char> life;
    const int exceptions = std::uncaught_exceptions();
};

/// While it lives the events of the application wait, OnConditionChange too; views are told as
/// ever. The query may go meanwhile.
class TKQuery::THeldEvents {
public:
    explicit THeldEvents(TKQuery& owner) : query(owner), life(owner.life) { ++query.eventsHeld; }
    ~THeldEvents() {
        if (!sent && !life.expired()) --query.eventsHeld;
    }
    THeldEvents(const THeldEvents&) = delete;
    THeldEvents& operator=(const THeldEvents&) = delete;
    /// Those that waited, once each, unless others still hold them. Without this call they wait for
    /// the next change.
    void Send() {
        sent = true;
        if (life.expired()) return;
        --query.eventsHeld;
        query.SendPendingEvents();
    }

private:
    TKQuery& query;
    std::weak_ptr<const char> life;
    bool sent = false;
};

/// While it lives changes are those of a record that is replayed.
class TKQuery::TReplaying {
public:
    explicit TReplaying(TKQuery& owner) : query(owner) { query.replaying = true; }
    ~TReplaying() { query.replaying = false; }
    TReplaying(const TReplaying&) = delete;
    TReplaying& operator=(const TReplaying&) = delete;

private:
    TKQuery& query;
};

/// The saved queries of a folder: the names and files of all "*.qry" files in it, by file name.
/// Files that can not be read are left out.
void ReadQueries(const std::string& folder, TStrings& names, TStrings& files);

} // namespace tern7
