// Every statement over the sample's structure runs: each field with each of its operators, each
// pair of tables that has a path, in each syntax. Both forms give the same rows, to the last one.

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

/// A copy of the sample with three rows in each table, for the old join syntax makes products of
/// whole chains of tables.
class Sweep : public ::testing::Test {
protected:
    Sweep() {
        TKCustomDBStructure& structure = TSample::Shared().Imported();
        for (int i = 0; i < structure.GetTableCount(); ++i) {
            const std::string table = QuotedString(structure.GetTable(i)->TableName(), '"');
            engine->Execute("delete from " + table + " where rowid not in (select rowid from " +
                            table + " limit 3)");
        }
    }

    void ExpectRuns(TKQuery& query) {
        query.BuildQuery();
        if (!CanBeExecuted(query)) return;
        ++executed;
        try {
            const TRows rows = engine->Text(query);
            anyRows += !rows.empty();
            EXPECT_EQ(SortedTexts(engine->Bound(query)), SortedTexts(rows))
                << query.QResult().GetSQL().Text();
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what() << "\n" << query.QResult().GetSQL().Text();
        }
    }

    QTemporaryDir folder;
    std::unique_ptr<TEngine> engine = OpenSQLiteCopy(folder);
    int executed = 0, anyRows = 0;
};

} // namespace

TEST_F(Sweep, EachFieldWithEachOfItsOperators) {
    TKCustomDBStructure& structure = TSample::Shared().Imported();
    for (const auto& field : structure.Fields())
        for (TDSOperator* op : field->Operators())
            for (const TSQLSyntax syntax : syntaxes) {
                TKQuery query(&structure);
                query.SetSQLSyntax(syntax);
                // alternately a column and all of them
                TRFieldList& columns = query.QResult().ResultFields();
                if (executed % 2) columns.Insert(0, field->DisplayName() + " x", {field.get()});
                TFilterCond* condition = query.Root().AddCond();
                condition->SetField(field.get());
                condition->SetOperator(op);
                if (op->ValueType() == TOpValueType::vtSubQuery) {
                    const auto nested = query.NewNested();
                    nested->QResult().ResultFields().Insert(0, "x", {field.get()});
                    condition->SetSubQuery(nested->GetQueryString());
                } else {
                    condition->SetValue(1, AnyValue(*field, *op));
                    condition->SetValue(2, AnyValue(*field, *op));
                }
                ASSERT_EQ(condition->Unfinished(), TUnfinished::No) << op->Name();
                ExpectRuns(query);
            }
    EXPECT_GT(executed, 3000);
    EXPECT_GT(anyRows, 1000);
}

TEST_F(Sweep, EachPairOfTablesWithAPath) {
    for (const auto& structure : TSample::Shared().Structures()) {
        std::map<const TDSTable*, TDSField*> firstFields;
        for (const auto& field : structure->Fields())
            firstFields.try_emplace(field->Table(), field.get());
        for (int i = 0; i < structure->GetTableCount(); ++i)
            for (int k = 0; k < structure->GetTableCount(); ++k) {
                TKQuery query(structure.get());
                query.SetSQLOptions(IntToSQLOptions((i + 3 * k) % (1 << SQLOptionCount)));
                query.SetSQLSyntax(syntaxes[(i + k) % 3]);
                TRFieldList& columns = query.QResult().ResultFields();
                for (const int table : {i, k})
                    columns.Insert(columns.GetCount(), "Column",
                                   {firstFields.at(structure->GetTable(table))},
                                   TSortingType::stDescending);
                try {
                    ExpectRuns(query);
                } catch (const EKDBStructError& error) {
                    ASSERT_STREQ(error.what(), "Can not find path between tables");
                }
            }
    }
    EXPECT_GT(executed, 1000);
    EXPECT_GT(anyRows, 500);
}

} // namespace tern7::proof
