// Statements read back through ParseSQL.

#include <algorithm>

#include <gtest/gtest.h>

#include <tern7/core/query/query_record.h>
#include <tern7/core/query/query_text.h>
#include <tern7/core/query/read_sql/sql_report.h>
#include <tern7/core/structure/default_operators.h>

#include "../query/shop.h"

namespace tern7 {
namespace {

class ParseSQL : public TShop {
protected:
    ParseSQL() { AddSubQueryOperator(); }

    /// The rows as "[all Field Operator value1|value2, text {...}]", parameters as ":Name".
    std::string Read(std::string where) {
        query.ParseSQL("select C.name from Customer C where " + where);
        return Rows(query.Root());
    }
    static std::string Rows(const TFilterBracket& bracket) {
        static const char* const words[] = {"all", "any", "none", "notall"};
        std::string text = std::string("[") + words[static_cast<int>(bracket.LinkType())];
        for (const auto& row : bracket.Rows())
            text += " " + (row->IsBracket() ? Rows(*row->AsBracket()) : Row(*row->AsCond()));
        return text + "]";
    }
    static std::string Row(const TFilterCond& row) {
        if (!row.IsRecognized()) return "{" + row.SQLText() + "}";
        std::string text = row.Field()->GetSQLExpr() + " " + row.OperatorName();
        for (int n = 1; n <= row.ValueCount(); ++n)
            text +=
                (n == 1 ? " " : "|") + (row.Param(n) ? ":" + row.Param(n)->Name() : row.Value(n));
        return text;
    }
};

struct TRead {
    const char* where;
    const char* rows;
};

TEST_F(ParseSQL, Recognises) {
    const TRead cases[] = {
        {"C.city = 'Berlin'", "[all C.city Equal Berlin]"},
        {"C.city='O''Hara'", "[all C.city Equal O'Hara]"},
        {"c . City  =  ''", "[all C.city Equal ]"},
        {"C.city != 'x'", "[all C.city NotEqual x]"},
        {"not(C.city = 'x')", "[all C.city NotEqual x]"},
        {"not not C.city = 'x'", "[all C.city Equal x]"},
        {"C.city >'x'", "[all C.city GreaterThan x]"},
        {"C.city > 'x'", "[all C.city GreaterThan x]"},
        {"C.city is NULL", "[all C.city IsNull]"},
        {"C.city = \"x\"", "[all C.city Equal x]"},
        // the highest template first: contains before starts with
        {"C.name like '%ab%'", "[all C.name Contains ab]"},
        {"C.name LIKE 'ab%'", "[all C.name StartsWith ab]"},
        {"C.name like '%'", "[all C.name StartsWith ]"},
        {"C.name not like 'ab%'", "[all C.name NotStartsWith ab]"},
        {"not (C.name like '%a''b%')", "[all C.name NotContains a'b]"},
        // values of unquoted types, quoted or bare
        {"C.id = 5", "[all C.id Equal 5]"},
        {"C.id = '5'", "[all C.id Equal 5]"},
        {"C.id >= -5", "[all C.id GreaterOrEqual -5]"},
        {"C.id>5", "[all C.id GreaterThan 5]"},
        {"C.id between 1 AND '5'", "[all C.id Between 1|5]"},
        {"O.placed between '2024-01-01' and '2024-12-31'",
         "[all O.placed Between 2024-01-01|2024-12-31]"},
        {"C.id in (1, 2,3)", "[all C.id InList 1, 2,3]"},
        {"C.id in ('1', '2')", "[all C.id InList 1,2]"},
        {"C.city in ('a b','c,d','e''f','g\"h', '')",
         "[all C.city InList \"a b\",\"c,d\",e'f,\"g\"\"h\",]"},
        {"O.amount * 1.19 > 5", "[all O.amount * 1.19 GreaterThan 5]"},
        // parameters
        {"C.city = :p and C.id = :q", "[all C.city Equal :Param1 C.id Equal :Param2]"},
        {"C.city = ':p'", "[all C.city Equal :p]"},
        {"C.id between :a and 3", "[all C.id Between :Param1|3]"},
        {"C.city in (:list)", "[all C.city InList :Param1]"},
        {"C.name like :p", "[all C.name Contains :Param1]"},
        {"C.name not like :p", "[all C.name NotContains :Param1]"},
        // a pattern of no template, as it is written
        {"C.name like 'a_b'", "[all C.name Contains 'a_b']"},
        {"C.name not like 'a_b'", "[all C.name NotContains 'a_b']"},
        // brackets
        {"C.id = 1 and C.id = 2 or C.id = 3", "[any [all C.id Equal 1 C.id Equal 2] C.id Equal 3]"},
        {"not (C.id = 1 or C.id = 2) and C.id = 3",
         "[all [none C.id Equal 1 C.id Equal 2] C.id Equal 3]"},
        {"not (C.id = 1 and C.id = 2)", "[notall C.id Equal 1 C.id Equal 2]"},
    };
    for (const TRead& each : cases)
        EXPECT_EQ(Read(each.where), each.rows) << each.where;
}

TEST_F(ParseSQL, KeepsTheTextOfWhatItDoesNotRecognise) {
    const TRead cases[] = {
        {"length(C.name) > 5", "{length(C.name) > 5}"},
        {"C.city is not null", "{C.city is not null}"},
        {"((C.city is not null))", "{C.city is not null}"},
        {"NOT (C.city is null)", "{NOT (C.city is null)}"},
        {"C.city = C.name", "{C.city = C.name}"},
        {"C.city = 5", "{C.city = 5}"},
        {"C.id = O.customer_id", "{C.id = O.customer_id}"},
        {"C.id = 'not a number'", "{C.id = 'not a number'}"},
        {"C.id in (1, 2 + 3)", "{C.id in (1, 2 + 3)}"},
        {"C.id in (:a, 3)", "{C.id in (:a, 3)}"},
        {"C.city in ('a', null)", "{C.city in ('a', null)}"},
        {"C.city in ('a',)", "{C.city in ('a',)}"},
        {"C.city between 'x@2' and 'y'", "{C.city between 'x@2' and 'y'}"},
        {"C.id = (select max(X.n) from X)", "{C.id = (select max(X.n) from X)}"},
        {"X.n = 'v' and X.n = :p", "{X.n = 'v'} {X.n = :p}"},
    };
    for (const TRead& each : cases) {
        EXPECT_EQ(Read(each.where), std::string("[all ") + each.rows + "]") << each.where;
        EXPECT_EQ(query.SQLReport().Entries().front().kind, TSQLReportKind::rkKeptAsText);
        EXPECT_EQ(query.QResult().GetParamCount(), 0) << each.where;
    }
    // the text, and its tables, are in the statement again
    Read("C.city = 'x' and length(O.note) > 5 and exists (select 1 from E) = true");
    EXPECT_EQ(SQL(), "SELECT C.name as Name\nFROM Customer C\n     INNER JOIN Orders O ON "
                     "(C.id=O.customer_id)\nWHERE\n (\nC.city = 'x' AND\nlength(O.note) > 5 AND\n"
                     "exists (select 1 from E) = true\n)");
}

TEST_F(ParseSQL, NeverTurnsANegationRound) {
    structure.DeleteOperatorByName("NotContains");
    EXPECT_EQ(Read("C.name not like 'a_b'"), "[all C.name NotStartsWith 'a_b']");
    structure.DeleteOperatorByName("NotStartsWith");
    EXPECT_EQ(Read("C.name not like 'a_b'"), "[all {C.name not like 'a_b'}]");
    structure.DeleteOperatorByName("Contains");
    EXPECT_EQ(Read("C.name like '%a'"), "[all C.name StartsWith '%a']");
}

TEST_F(ParseSQL, ReadsSubQueries) {
    EXPECT_EQ(Read("C.id in (select O.id from Orders O where O.amount > 5 and O.paid in "
                   "(select E.name from Employee E))"),
              "[all C.id InQuery select O.id from Orders O where O.amount > 5 and O.paid in "
              "(select E.name from Employee E)]");
    const TFilterCond& row = *query.Root().GetFirstCondition();
    ASSERT_TRUE(row.NestedQuery());
    EXPECT_EQ(Rows(row.NestedQuery()->Root()),
              "[all O.amount GreaterThan 5 O.paid InQuery select E.name from Employee E]");
    // names of parameters are this query's own, so the statement is built anew
    Read("C.city = :x and C.id in (select O.id from Orders O where O.amount > :y)");
    EXPECT_EQ(SQL(), "SELECT C.name as Name\nFROM Customer C\nWHERE\n (\nC.city = :Param1 AND\n"
                     "C.id in (SELECT O.id as Order_number FROM Orders O WHERE ( O.amount >:Param2 "
                     "))\n)");
    // what can not be read whole stays text
    EXPECT_EQ(Read("C.id in (select O.id from Orders O limit 3)"),
              "[all {C.id in (select O.id from Orders O limit 3)}]");
    EXPECT_EQ(Read("C.id in (select O.id from Orders O group by id)"),
              "[all {C.id in (select O.id from Orders O group by id)}]");
}

TEST_F(ParseSQL, ReadsColumnsAndSorting) {
    query.ParseSQL("select C.city as X, sum( O.amount ), case when E.name is null then 'a  b' end "
                   "from Customer C order by 3 desc, 1");
    std::string columns;
    for (const auto& field : query.QResult().ResultFields())
        columns += field->Caption() + "|" + field->Formula() + "|" +
                   std::to_string(static_cast<int>(field->Sorting())) +
                   std::to_string(field->SortOrder()) + "\n";
    EXPECT_EQ(columns,
              "City|@1|12\nAmount|sum(@1)|00\nName|case when @1 is null then 'a  b' end|21\n");
    EXPECT_FALSE(query.QResult().ResultFields().JustSorting());

    query.ParseSQL("select * from Customer C order by C.city desc");
    EXPECT_TRUE(query.QResult().ResultFields().JustSorting());
    EXPECT_EQ(SQL(), "SELECT *\nFROM Customer C\nORDER BY C.city DESC");
}

TEST_F(ParseSQL, SaysWhatTheParserIgnored) {
    query.ParseSQL(TStrings{"select C.name", "from Customer C", "where C.id = 1  limit 3"});
    ASSERT_EQ(query.SQLReport().Entries().size(), 1u);
    const TSQLReportEntry& entry = query.SQLReport().Entries()[0];
    EXPECT_EQ(SQLReportLine(entry), "3:17: dropped: rest: limit 3 (the parser does not read it)");
    EXPECT_EQ(query.LoadWarnings(), TStrings{SQLReportLine(entry)});
    EXPECT_TRUE(query.Active());
}

TEST_F(ParseSQL, AFailureLeavesTheQueryEmptyIdleAndInactive) {
    Add("City", "Equal", "x");
    int changes = 0;
    query.OnChange = [&](TKQuery&) { ++changes; };
    EXPECT_THROW(query.ParseSQL("select a from t where (a = 1"), ESQLParserError);
    EXPECT_FALSE(query.Active());
    EXPECT_EQ(query.BuilderState(), TKBuilderState::stIdle);
    EXPECT_EQ(query.Root().GetRowCount(), 0);
    query.SetActive(true);
    query.ParseSQL("select a from t where a = 1");
    EXPECT_TRUE(query.Active());
    EXPECT_EQ(changes, 0);

    TKQuery homeless;
    EXPECT_THROW(homeless.ParseSQL("select a from t"), EKQueryPanelError);
}

TEST_F(ParseSQL, AFailedImportLeavesTheQueryAsItWas) {
    Add("City", "Equal", "x");
    query.SetMainTableName("O");
    EXPECT_THROW(query.ImportSQL("select a from t where a ="), ESQLParserError);
    EXPECT_FALSE(query.Active());
    EXPECT_EQ(query.BuilderState(), TKBuilderState::stIdle);
    EXPECT_EQ(Rows(query.Root()), "[all C.city Equal x]");
    EXPECT_EQ(query.MainTableName(), "O");
}

TEST_F(ParseSQL, ImportKeepsNamesOfParameters) {
    query.ImportSQL(
        "select c.name from customer c where c.id = :Param2 and c.city = :town and "
        "c.id in (select o.id from orders o where o.amount > :least) and c.name = :TOWN");
    EXPECT_EQ(Rows(query.Root()), "[all C.id Equal :Param2 C.city Equal :town C.id InQuery  "
                                  "C.name Equal :Param4]");
    TStrings names;
    for (const TSQLParam* param : query.AllParams())
        names.push_back(param->Name());
    EXPECT_EQ(names, (TStrings{"Param2", "town", "least", "Param4"}));
    EXPECT_TRUE(query.SQLReport().AnyDropped()); // one name for two values
}

TEST_F(ParseSQL, ImportAsksNoHandler) {
    int asked = 0;
    query.OnBuildSQL = [&](TFilterCond&, std::string&) { ++asked; };
    query.ImportSQL("select name from Customer where city = 'x'");
    EXPECT_EQ(asked, 0);
    query.BuildQuery();
    EXPECT_EQ(asked, 1);
}

TEST_F(ParseSQL, NamesOfParametersAreKeptInTheQueryText) {
    query.ImportSQL("select c.name from customer c where c.city = :town and c.id in (select o.id "
                    "from orders o where o.amount > :least) and c.id = :Param1");
    const std::string sql = SQL();
    EXPECT_NE(sql.find(":least"), std::string::npos);
    TKQuery again(&structure);
    again.SetSQLOptions({});
    again.SetQueryString(query.GetQueryString());
    again.BuildQuery();
    EXPECT_EQ(again.QResult().GetSQL().Text(), sql);
    // what is put in later does not take a name that is in use
    InsertRowsFromText(again.Root(), 0, query.GetQueryString());
    TStrings names;
    for (const TSQLParam* param : again.AllParams())
        names.push_back(LowerCase(param->Name()));
    std::sort(names.begin(), names.end());
    EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
}

/// Every default operator with every field type, as the writer writes it in any syntax.
TEST_F(ParseSQL, EveryOperatorComesBackForEveryFieldType) {
    TDSField* field = Field("C.city");
    int form = 0;
    for (int type = 0; type < FieldTypeCount; ++type) {
        field->SetFieldType(static_cast<TFieldType>(type));
        for (const TDefaultOperator& op : DefaultOperators) {
            for (const bool isParam : {false, true}) {
                query.ClearAll();
                query.SetSQLSyntax(static_cast<TSQLSyntax>(form % 3));
                query.SetSQLOptions(IntToSQLOptions(form++ % 64));
                Add("C.city", op.name, "5", "7");
                Add("C.id", "Equal", "1");
                TFilterCond& row = *query.Root().GetFirstCondition();
                row.SetValue1IsParam(isParam);
                const std::string rows = Rows(query.Root()), sql = SQL();
                query.ParseSQL(sql);
                // which pattern a parameter holds can not be seen in the text
                if (!isParam || op.sqlTemplate.find("'%@1") != std::string_view::npos ||
                    op.sqlTemplate.find("like") == std::string_view::npos) {
                    EXPECT_EQ(Rows(query.Root()), rows) << op.name << " of type " << type;
                }
                query.SetMainTableName("C");
                EXPECT_EQ(SQL(), sql) << op.name << " of type " << type;
                // bare where the writer puts quotes, and in quotes where it does not
                if (isParam || structure.IsQuotedType(field->FieldType())) continue;
                query.ParseSQL(ReplaceStr(ReplaceStr(sql, "5", "'5'"), "7", "'7'"));
                if (op.sqlTemplate.find('%') == std::string_view::npos) {
                    EXPECT_EQ(Rows(query.Root()), rows) << op.name << " of type " << type;
                }
            }
        }
    }
}

TEST_F(ParseSQL, AnImportedStatementIsOneStepThatGoesBack) {
    query.Root().AddCond()->SetField(Field("C.city"));
    const TSQLOptions options = query.SQLOptions();
    const std::string before = query.GetQueryString();
    TKQueryRecord record(query);
    {
        TKQueryRecording recording(query, record);
        query.ImportSQL("select C.name from Customer C, Orders O where (C.id = O.customer_id)");
    }
    const std::string imported = query.GetQueryString();
    EXPECT_NE(query.SQLSyntax(), TSQLSyntax::ssSQL2);
    record.Undo();
    EXPECT_EQ(query.SQLSyntax(), TSQLSyntax::ssSQL2);
    EXPECT_EQ(query.SQLOptions(), options);
    EXPECT_EQ(query.GetQueryString(), before);
    record.Redo();
    EXPECT_NE(query.SQLSyntax(), TSQLSyntax::ssSQL2);
    EXPECT_EQ(query.GetQueryString(), imported);
}

} // namespace
} // namespace tern7
