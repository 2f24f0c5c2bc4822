#include "row_report.h"

#include <utility>

#include <tern7/core/query/query.h>
#include <tern7/core/query/row_text.h>

#include "streams.h"

namespace tern7 {

namespace {

/// Calls for every row below a bracket, depth first; of a bracket that is off only with `all`.
template <class Call>
void ForEachRow(const TFilterBracket& bracket, bool all, const Call& call) {
    for (const auto& row : bracket.Rows()) {
        if (!all && !row->GetEnabled()) continue;
        call(*row);
        if (const TFilterBracket* inner = row->AsBracket()) ForEachRow(*inner, all, call);
    }
}

/// Finds what is to be told in a query and then in the queries nested in it.
class TRowReport {
public:
    explicit TRowReport(const TKQuery& outermost) : query(&outermost) {}
    TStrings LeftOut() {
        FindLeftOut();
        return std::move(lines);
    }
    TStrings Unknown() {
        FindUnknown();
        return std::move(lines);
    }

private:
    void FindLeftOut() {
        const TKRowTexts texts(query->Titles);
        for (const TUnfinishedRow& unfinished : query->UnfinishedRows())
            Add(Title(*unfinished.row) + " is left out, " +
                std::string(UnfinishedText(unfinished.reason)) + ": " +
                texts.Sentence(*unfinished.row, query->Style()));
        InNestedQueries(false, [this] { FindLeftOut(); });
    }

    void FindUnknown() {
        const std::string& mainTable = query->MainTableName();
        const TKCustomDBStructure& structure = query->RequireStruct();
        if (!mainTable.empty() && !structure.TableByName(true, mainTable) &&
            !structure.TableByName(false, mainTable))
            Add(around + "main table: unknown table " + QuotedString(mainTable, '\"'));
        for (const TAvoidedJoin& join : query->AvoidedJoins())
            for (const std::string& alias : {join.alias1, join.alias2})
                if (!structure.TableByName(true, alias))
                    Add(around + "avoided join: unknown table " + QuotedString(alias, '\"'));
        FindUnknownFields();
        ForEachRow(query->Root(), true, [this](const TFilterRow& row) {
            if (const TFilterCond* condition = row.AsCond()) FindUnknown(*condition);
        });
        InNestedQueries(true, [this] { FindUnknown(); });
    }

    void FindUnknownFields() {
        const TRFieldList& list = query->QResult().ResultFields();
        for (int i = 0; i < list.GetCount(); ++i)
            for (int n = 0; n < list[i]->GetDSFieldCount(); ++n)
                if (IsUnknown(list[i]->GetDSField(n)))
                    Add(around + "RField" + std::to_string(i) + " " +
                        QuotedString(list[i]->Caption(), '\"') + ": unknown field " +
                        std::to_string(list[i]->GetDSFieldID(n)));
    }

    void FindUnknown(const TFilterCond& condition) {
        const std::string title = Title(condition);
        if (!condition.SQLText().empty()) {
            Add(title + ": unrecognized condition " + QuotedString(condition.SQLText(), '\"'));
            return;
        }
        if (IsUnknown(condition.Field()))
            Add(title + ": unknown field " +
                (condition.UnknownFieldName().empty()
                     ? std::to_string(condition.FieldID())
                     : QuotedString(condition.UnknownFieldName(), '\"')));
        const TDSOperator* op = condition.Operator();
        if (!condition.OperatorName().empty() &&
            (!op || op == query->RequireStruct().PlaceholderOperator()))
            Add(title + ": unknown operator " + QuotedString(condition.OperatorName(), '\"'));
    }

    bool IsUnknown(const TDSField* field) const {
        return !field || field == query->RequireStruct().PlaceholderField();
    }

    template <class Call>
    void InNestedQueries(bool all, const Call& call) {
        ForEachRow(query->Root(), all, [&](const TFilterRow& row) {
            const TFilterCond* condition = row.AsCond();
            if (!condition || !condition->IsSubQueryOperator()) return;
            const TKQuery* nested = condition->NestedQuery();
            if (!nested) return;
            const TKQuery* const outer = std::exchange(query, nested);
            const std::string before = std::exchange(around, Title(*condition) + " / ");
            call();
            query = outer;
            around = before;
        });
    }

    std::string Title(const TFilterRow& row) const {
        return around + "Row" + std::to_string(row.RowID());
    }
    void Add(std::string line) { lines.push_back(std::move(line)); }

    const TKQuery* query;
    std::string around; // titles of the conditions that hold the query
    TStrings lines;
};

} // namespace

TStrings LeftOutRows(const TKQuery& query) {
    return TRowReport(query).LeftOut();
}

bool TellLeftOutRows(const TKQuery& query) {
    const TStrings rows = LeftOutRows(query);
    for (const std::string& row : rows)
        Complain(row);
    return !rows.empty();
}

TStrings UnknownParts(const TKQuery& query) {
    return TRowReport(query).Unknown();
}

} // namespace tern7
