// Every statement over the sample's structure runs: each field with each of its operators, each
// pair of tables that has a path, in each syntax.

#include <gtest/gtest.h>

#include "engines.h"
#include "query_generator.h"

namespace tern7::proof {

namespace {

constexpr TSQLSyntax syntaxes[] = {TSQLSyntax::ssSQL1, TSQLSyntax::ssSQL2, TSQLSyntax::ssOracle};

std::string AnyValue(const TDSField& field, const TDSOperator& op) {
    switch (KindOf(field.FieldType())) {
    case TKindOfType::Text:
        return "O'Hara's 100% \"x\"";
    case TKindOfType::Boolean:
        return "1";
    case TKindOfType::Date:
        return "2024-02-29";
    case TKindOfType::Time:
        return "12:30:00";
    case TKindOfType::Timestamp:
        return op.ValueType() == TOpValueType::vtList ? "\"2024-02-29 12:30:00\""
                                                      : "2024-02-29 12:30:00";
    default:
        return "-12.5";
    }
}

/// The statement in both forms is one that the database takes; it need not fetch the rows.
void ExpectPrepared(const TEngine& engine, TKQuery& query) {
    query.BuildQuery();
    if (!CanBeExecuted(query)) return;
    for (const std::string& text :
         {query.QResult().GetSQL().Text(), query.QResult().GetBoundSQL().text})
        try {
            engine.Prepare(text);
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what() << "\n" << text;
        }
}

} // namespace

TEST(Sweep, EachFieldWithEachOfItsOperators) {
    const auto engine = OpenSQLite(TSample::Shared().Address());
    TKCustomDBStructure& structure = TSample::Shared().Imported();
    int statements = 0;
    for (const auto& field : structure.Fields())
        for (TDSOperator* op : field->Operators())
            for (const TSQLSyntax syntax : syntaxes) {
                TKQuery query(&structure);
                query.SetSQLSyntax(syntax);
                // alternately a column and all of them
                TRFieldList& columns = query.QResult().ResultFields();
                if (++statements % 2) columns.Insert(0, field->DisplayName() + " x", {field.get()});
                TFilterCond* condition = query.Root().AddCond();
                condition->SetField(field.get());
                condition->SetOperator(op);
                condition->SetValue(1, AnyValue(*field, *op));
                condition->SetValue(2, AnyValue(*field, *op));
                if (op->ValueType() == TOpValueType::vtSubQuery) {
                    condition->SetValue(1, "");
                    const auto nested = query.NewNested();
                    nested->QResult().ResultFields().Insert(0, "x", {field.get()});
                    condition->SetSubQuery(nested->GetQueryString());
                }
                ASSERT_EQ(condition->Unfinished(), TUnfinished::No) << op->Name();
                ExpectPrepared(*engine, query);
            }
    EXPECT_GT(statements, 3000);
}

TEST(Sweep, EachPairOfTablesWithAPath) {
    const auto engine = OpenSQLite(TSample::Shared().Address());
    int pairs = 0;
    for (const auto& structure : TSample::Shared().Structures())
        for (int i = 0; i < structure->GetTableCount(); ++i)
            for (int k = 0; k < structure->GetTableCount(); ++k) {
                TKQuery query(structure.get());
                query.SetSQLOptions(IntToSQLOptions((i + 3 * k) % (1 << SQLOptionCount)));
                query.SetSQLSyntax(syntaxes[(i + k) % 3]);
                TRFieldList& columns = query.QResult().ResultFields();
                for (const int table : {i, k})
                    for (const auto& field : structure->Fields())
                        if (field->Table() == structure->GetTable(table)) {
                            columns.Insert(columns.GetCount(), "Column", {field.get()},
                                           TSortingType::stDescending);
                            break;
                        }
                try {
                    query.BuildQuery();
                } catch (const EKDBStructError& error) {
                    ASSERT_STREQ(error.what(), "Can not find path between tables");
                    continue;
                }
                ++pairs;
                ExpectPrepared(*engine, query);
            }
    EXPECT_GT(pairs, 1000);
}

} // namespace tern7::proof
