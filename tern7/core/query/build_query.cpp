#include <algorithm>
#include <optional>

#include <tern7/core/global/messages.h>
#include <tern7/core/query/condition_text.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/read_sql/sql_pieces.h>
#include <tern7/core/structure/structure.h>

namespace tern7 {

using namespace std::string_view_literals;

/// Builds the parts of a statement beside the query's present ones, which are replaced when all
/// went well: main table, columns with sort and group text, condition lines.
class TQueryBuild {
public:
    /// Without `boundValues` the text form. Tables and lines are written anew.
    TQueryBuild(TKQuery& owner, TBoundValues* boundValues, TRTableList& tableList,
                TKLineBuffer& conditionLines)
        : query(owner), result(owner.QResult()), structure(owner.RequireStruct()),
          revision(structure.Revision()),
          bracketConditions(result.SQLOptions().Contains(TSQLOption::soBracketConditions)),
          values(boundValues), isPlain(!boundValues && !owner.OnBuildSQL), writer(*result.writer),
          tables(tableList), lines(conditionLines) {
        writer.Begin(structure);
    }

    void Run() {
        tables.Clear();
        AddMainTable();
        if (!result.ResultFields().IsEmpty()) AddResultFields();
        Bracket(query.Root());
        lines.Finish();
        if (tables.IsEmpty()) throw EKQueryPanelError(std::string(messages::NotEnoughInformation));
    }

    void TakeSorting(std::string& orderByText, std::string& groupByText) {
        orderByText.clear();
        groupByText.clear();
        if (!sorting) return;
        orderByText.swap(sorting->orderBy);
        groupByText.swap(sorting->groupBy);
    }

    /// The condition lines alone, over the tables that the query was built with.
    void RunConditions() {
        if (!tables.IsEmpty()) writer.SetMainTable(tables[0].Table);
        Bracket(query.Root());
        lines.Finish();
    }

private:
    void AddMainTable() {
        const std::string& chosen = query.MainTableName();
        const std::string& name = chosen.empty() ? structure.DefaultMainTable() : chosen;
        if (name.empty()) return;
        TDSTable* table = structure.TableByName(true, name);
        if (!table) table = structure.TableByName(false, name);
        if (!table) throw EKDBStructError(FormatMessage(messages::NoSuchTable, {name}));
        Begin(table);
    }

    void Begin(TDSTable* table) {
        tables.Join(table, nullptr);
        writer.SetMainTable(table);
    }

    void AddTable(TDSTable* table) {
        if (tables.Contains(table)) return;
        if (tables.IsEmpty()) return Begin(table);
        // The tables of the list lie on shortest paths from the base, so the missing ones are the
        // last ones of this path.
        const std::vector<TDSTable*>& path =
            structure.GetPath(*tables[0].Table, *table, query.AvoidedJoins()).Tables();
        size_t missing = path.size() - 1;
        while (missing > 1 && !tables.Contains(path[missing - 1]))
            --missing;
        for (; missing < path.size(); ++missing)
            tables.Join(path[missing], path[missing - 1]->LinkByTable(path[missing]));
    }

    void AddTablesOf(const TDSField& field) {
        if (field.IsPlaceholder()) return;
        lastTable = field.Table();
        if (lastTable) return AddTable(field.Table());
        for (TDSTable* table : field.GetTables())
            AddTable(table);
    }

    void AddResultFields() {
        const TRFieldList& fields = result.ResultFields();
        result.ResultFields().GenerateNumbers();
        const bool byName =
            fields.JustSorting() || result.SQLOptions().Contains(TSQLOption::soSortByNames);
        struct TSorted {
            int order;
            std::string text;
        };
        std::vector<TSorted> sorted;
        bool anyAggregate = false;
        std::string plainExpressions;
        for (const auto& field : fields) {
            RequireKnownFields(*field);
            for (const TDSField* source : field->Fields().Items())
                AddTablesOf(*source);
            const bool aggregate = field->GetAgregate();
            anyAggregate = anyAggregate || aggregate;
            if (!aggregate)
                for (const TDSField* source : field->Fields().Items()) {
                    source->AppendSQLExpr(plainExpressions);
                    plainExpressions += ", ";
                }
            if (field->Sorting() == TSortingType::stNoSort) continue;
            std::string text = byName ? SortExpression(*field) : std::to_string(field->Number());
            text += field->Sorting() == TSortingType::stAscending ? " ASC" : " DESC";
            sorted.push_back({field->SortOrder(), std::move(text)});
        }
        std::stable_sort(sorted.begin(), sorted.end(),
                         [](const TSorted& a, const TSorted& b) { return a.order < b.order; });
        std::string& orderBy = sorting.emplace().orderBy;
        for (const TSorted& entry : sorted) {
            if (!orderBy.empty()) orderBy += ", ";
            orderBy += entry.text;
        }
        if (anyAggregate && !plainExpressions.empty())
            sorting->groupBy = plainExpressions.substr(0, plainExpressions.size() - 2);
    }

    static std::string SortExpression(const TResultField& field) {
        return field.GetDSFieldCount() > 0 ? field.GetDSField(0)->GetSQLExpr() : field.GetSQLExpr();
    }

    static void RequireKnownFields(const TResultField& field) {
        for (const TDSField* source : field.Fields().Items())
            if (!source || source->IsPlaceholder())
                throw EKQueryPanelError(FormatMessage(messages::FieldNotFound, {field.Caption()}));
    }

    /// True when the bracket wrote something. What was written ahead for rows that then write
    /// nothing is taken back, so one walk is enough.
    bool Bracket(const TFilterBracket& bracket) {
        const std::string_view joint = JoinsByAnd(bracket.LinkType()) ? " AND\n("sv : " OR\n("sv;
        bool any = false;
        for (const auto& row : bracket.Rows()) {
            if (!row->GetEnabled()) continue;
            if (const TFilterCond* condition = row->AsCond()) {
                const TConditionWriter::TForm* form =
                    isPlain ? writer.SimpleForm(*condition) : nullptr;
                if (!form && condition->Unfinished() != TUnfinished::No) continue;
                if (!any) Open(bracket);
                Condition(*condition, form, any ? joint : joint.substr(joint.size() - 2));
            } else {
                const TKLineWriter::TMark mark = lines.Mark();
                if (any)
                    lines.Append(joint.substr(0, joint.size() - 2));
                else
                    Open(bracket);
                if (!Bracket(*row->AsBracket())) {
                    lines.Rollback(mark);
                    continue;
                }
            }
            any = true;
        }
        if (any) lines.AddLine(")");
        return any;
    }

    void Open(const TFilterBracket& bracket) {
        lines.AddLine(IsNegated(bracket.LinkType()) ? " NOT ("sv : " ("sv);
    }

    /// `before` ends the line before and opens the condition's bracket, which not all have. With a
    /// form the condition is finished and mostly written in one go.
    void Condition(const TFilterCond& condition, const TConditionWriter::TForm* form,
                   std::string_view before) {
        const TDSTable* table = form ? form->table : nullptr;
        if (!table || table != lastTable) {
            AddTablesOf(condition);
            if (form && !writer.HasForms()) form = writer.SimpleForm(condition);
        }
        const size_t bracket = bracketConditions ? 1 : 0;
        lines.StartLineBehind(before.size() - 1);
        before.remove_suffix(1 - bracket);
        if (!form || !writer.AppendSimple(*form, condition, before, lines)) {
            lines.Append(before);
            lines.Append(TextOf(condition));
        }
        if (bracketConditions) lines.Append(")");
    }

    void AddTablesOf(const TFilterCond& condition) {
        const TDSField* field = condition.Field();
        if (field && !(lastTable && field->Table() == lastTable)) AddTablesOf(*field);
        if (!condition.IsRecognized())
            for (TDSTable* table : TablesOfText(structure, condition.SQLText()))
                AddTable(table);
    }

    std::string TextOf(const TFilterCond& condition) {
        std::string text;
        if (values) {
            AppendBoundCondition(writer, query, condition, *values, text);
        } else {
            writer.Append(condition, text);
            if (!isPlain) query.OnBuildSQL(const_cast<TFilterCond&>(condition), text);
        }
        if (!isPlain) RequireSameStructure();
        return text;
    }

    /// The tables found so far, and templates, are those of the structure as it was.
    void RequireSameStructure() const {
        if (query.DbStruct() != &structure || structure.Revision() != revision)
            throw EKQueryPanelError(std::string(messages::StructureChangedWhileBuilding));
    }

    TKQuery& query;
    TQueryResult& result;
    TKCustomDBStructure& structure;
    uint64_t revision; // of the structure
    bool bracketConditions;
    TBoundValues* values;
    bool isPlain; // text form that no one changes
    TConditionWriter& writer;
    TRTableList& tables;
    const TDSTable* lastTable = nullptr; // is in the list
    TKLineWriter lines;
    struct TSorting {
        std::string orderBy, groupBy;
    };
    std::optional<TSorting> sorting; // none without result fields
};

namespace {

/// stBuilding while it lives: handlers must not change rows then.
class TBuildingState {
public:
    explicit TBuildingState(TKQuery& owner) : query(owner), before(owner.BuilderState()) {
        query.SetBuilderState(TKBuilderState::stBuilding);
    }
    ~TBuildingState() { query.SetBuilderState(before); }
    TBuildingState(const TBuildingState&) = delete;
    TBuildingState& operator=(const TBuildingState&) = delete;

private:
    TKQuery& query;
    TKBuilderState before;
};

} // namespace

void TKQuery::BuildQuery() {
    RequireStruct();
    RequireChangeable();
    InstantiateNested();
    const TBuildingState building(*this);
    // beside the present parts, which stay where they are when something fails
    TQueryBuild build(*this, nullptr, result->spareTables, result->spareConditions);
    build.Run();
    result->resultTables.Swap(result->spareTables);
    result->conditions.Swap(result->spareConditions);
    build.TakeSorting(result->orderByText, result->groupByText);
}

std::string TKQuery::ConditionText(const TFilterCond& condition) const {
    std::string text;
    if (condition.Unfinished() != TUnfinished::No) return text;
    TConditionWriter& writer = *result->writer;
    if (BuilderState() != TKBuilderState::stBuilding) { // else it is in use, for other tables
        writer.Begin(*structure);
        const TRTableList& tables = result->ResultTables();
        if (!tables.IsEmpty()) writer.SetMainTable(tables[0].Table);
    }
    writer.Append(condition, text);
    return text;
}

TBoundSQL TQueryResult::GetBoundSQL(TPlaceholderStyle style, bool escapeWildcards) {
    TBoundValues values(style, escapeWildcards);
    TBoundSQL bound;
    bound.text = BoundLines(values).Text();
    bound.values = values.Take();
    return bound;
}

TKLineBuffer TQueryResult::BoundLines(TBoundValues& values) {
    if (resultTables.IsEmpty()) throw EKQueryPanelError(std::string(messages::NotBuiltProperly));
    RequireSafeColumns();
    const TBuildingState building(query);
    TRTableList tables = resultTables;
    TKLineBuffer boundConditions, statement;
    TQueryBuild(query, &values, tables, boundConditions).RunConditions();
    AppendStatement(statement, boundConditions);
    return statement;
}

void TQueryResult::RequireSafeColumns() const {
    auto require = [](const std::string& text) {
        if (!IsSafeFragment(text))
            throw EKQueryPanelError(FormatMessage(messages::CanNotExecuteCondition, {text}));
    };
    for (const auto& field : resultFields) {
        require(field->Formula());
        for (const TDSField* source : field->Fields().Items())
            if (source && source->Kind() == TKFieldKind::kfkVirtual) require(source->FieldExpr());
    }
}

std::string NestedBoundStatement(const TFilterCond& condition, TBoundValues& values) {
    TKQuery& nested = *condition.NestedQuery();
    nested.BuildQuery();
    return nested.QResult().BoundLines(values).OnOneLine();
}

} // namespace tern7
