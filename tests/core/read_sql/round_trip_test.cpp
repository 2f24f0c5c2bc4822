// Random queries: the query's text, and the import of what is built, are built again as the same
// statement, in three syntaxes with any options.

#include <random>
#include <regex>

#include <gtest/gtest.h>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/query/read_sql/sql_report.h>

#include "../query/shop.h"

namespace tern7 {
namespace {

/// More tables than the shop has: links of all kinds, of two columns, a copy of a table, quoted
/// names.
class TWideShop : public TShop {
protected:
    TWideShop() {
        TDSTable* line = structure.AddTable("Order Details", "L");
        line->SetQuoted(true);
        Data(line, "order_id", "Line's order", TFieldType::ftInteger);
        Data(line, "Unit Price", "Price", TFieldType::ftCurrency);
        Data(line, "note", "Note", TFieldType::ftMemo);
        Field("L.Unit Price")->SetQuoted(true);
        TDSTable* boss = structure.AddTable("Employee", "B");
        Data(boss, "name", "Boss", TFieldType::ftString);
        Data(boss, "since", "Boss since", TFieldType::ftTime);
        TDSTable* area = structure.AddTable("Area", "Area");
        Data(area, "code", "Area code", TFieldType::ftSmallint);
        Data(area, "opened", "Opened", TFieldType::ftTimeStamp);
        structure.AddLink("O", "L")->AddPair("id", "order_id");
        structure.AddLink("B", "E", TDSLinkType::ltOuterRight)->AddPair("id", "boss_id");
        TDSLink* toArea = structure.AddLink("C", "Area", TDSLinkType::ltOuterFull);
        toArea->AddPair("land", "land");
        toArea->AddPair("code", "code");
        TDSField* full = structure.AddField(TKFieldKind::kfkVirtual, "C.name || ', ' || C.city",
                                            "Full name", nullptr);
        full->SetFieldType(TFieldType::ftString);
        full->AddAppliedOperators();
        AddSubQueryOperator();
        AddSubQueryOperator("NotInQuery", "@f not in (@1)");
        structure.SQLFormats().SetDate("yyyy-mm-dd");
        structure.SQLFormats().SetTime("hh:nn:ss");
        structure.SQLFormats().SetDateTime("yyyy-mm-dd hh:nn:ss");
    }
};

/// Makes up queries that ImportSQL has to give back; the same seed makes the same one.
class TMaker {
public:
    TMaker(TKCustomDBStructure& over, uint32_t seed) : structure(over), random(seed) {}

    void Fill(TKQuery& query) {
        query.SetSQLSyntax(static_cast<TSQLSyntax>(Below(3)));
        query.SetSQLOptions(IntToSQLOptions(static_cast<int>(Below(1 << SQLOptionCount))));
        TDSTable* main = structure.GetTable(static_cast<int>(Below(structure.GetTableCount())));
        query.SetMainTableName(main->TableAlias());
        Columns(query);
        Rows(query.Root(), 0);
    }

private:
    unsigned Below(int count) {
        return static_cast<unsigned>(random() % static_cast<unsigned>(count));
    }
    bool OneIn(int count) { return Below(count) == 0; }
    TDSField* AnyField() {
        return structure.GetField(static_cast<int>(Below(structure.GetFieldCount())));
    }

    void Columns(TKQuery& query) {
        TRFieldList& fields = query.QResult().ResultFields();
        const bool justSorting = OneIn(10);
        fields.SetJustSorting(justSorting);
        static const char* const formulas[] = {
            "sum(@1)",   "count(*)",
            "MAX(@1)",   "@1 + @2 * 3",
            "(@1 - @2)", "count(distinct @1)",
            "7 + 1",     "case when @1 is null then 'x, y' else @2 end"};
        for (unsigned count = Below(4); count > 0; --count) {
            TResultField* field = fields.Add();
            if (justSorting || OneIn(2)) {
                field->SetFields({AnyField()}, "@1");
            } else {
                const std::string formula = formulas[Below(8)];
                std::vector<TDSField*> used;
                if (formula.find("@1") != std::string::npos) used.push_back(AnyField());
                do
                    if (formula.find("@2") != std::string::npos) used.push_back(AnyField());
                while (used.size() == 2 && used[0] == used[1] && (used.pop_back(), true));
                field->SetFields(used, formula);
            }
            static const char* const captions[] = {"Name", "My column", "x_1", "Total", "B"};
            field->SetCaption(captions[Below(5)]);
            if (OneIn(5)) field->SetAlias({});
            if (!justSorting && !OneIn(3)) continue;
            field->SetSorting(OneIn(2) ? TSortingType::stAscending : TSortingType::stDescending);
            field->SetSortOrder(static_cast<int>(Below(3)));
        }
    }

    void Rows(TFilterBracket& bracket, int level) {
        bracket.SetLinkType(static_cast<TFilterLinkType>(Below(4)));
        for (unsigned count = Below(4); count > 0; --count) {
            if (level < 3 && OneIn(4))
                Rows(*bracket.AddBracket(), level + 1);
            else
                Condition(*bracket.AddCond());
            if (OneIn(10)) bracket.Rows().back()->SetEnabled(false);
        }
    }

    void Condition(TFilterCond& row) {
        TDSField* field = AnyField();
        row.SetField(field);
        TDSOperator* op = field->GetOperator(static_cast<int>(Below(field->GetOperatCount())));
        if (nesting < 2 && OneIn(6))
            op = structure.OperatorByName(OneIn(2) ? "InQuery" : "NotInQuery");
        row.SetOperator(op);
        if (op->ValueType() == TOpValueType::vtSubQuery) return SubQuery(row);
        const bool isList = op->ValueType() == TOpValueType::vtList;
        const bool isQuoted = structure.IsQuotedType(field->FieldType());
        for (int n = 1; n <= row.ValueCount(); ++n) {
            TStrings items;
            for (unsigned count = isList ? 1 + Below(3) : 1; count > 0; --count)
                items.push_back(Value(*field));
            if (isList)
                row.SetValue(n, isQuoted ? ComposeCommaText(items) : JoinStrings(items, ", "));
            else
                row.SetValue(n, items[0]);
            row.SetValueIsParam(n, OneIn(6));
        }
    }

    std::string Value(const TDSField& field) {
        static const char* const texts[] = {
            "Berlin", "O'Hara", "a, b", "say \"x\"", "",  " x ", "100 %", ":p",   "two\nlines",
            "C.name", "(",      "--x",  ";",         "'", "and", "@1",    "a''b", "ünï"};
        static const char* const numbers[] = {"5", "-5", "0.25", "NULL", "0x1F", "1e3"};
        if (IsDateOrTime(field.FieldType()))
            return field.FieldType() == TFieldType::ftTime   ? "08:15:00"
                   : field.FieldType() == TFieldType::ftDate ? "2024-02-29"
                                                             : "2024-02-29 23:59:59";
        return structure.IsQuotedType(field.FieldType()) ? texts[Below(18)] : numbers[Below(6)];
    }

    void SubQuery(TFilterCond& row) {
        ++nesting;
        const std::unique_ptr<TKQuery> nested = row.Query()->NewNested();
        nested->SetSQLOptions(IntToSQLOptions(static_cast<int>(Below(1 << SQLOptionCount))));
        nested->QResult().ResultFields().Add()->SetFields({AnyField()}, "@1");
        Rows(nested->Root(), 1);
        row.SetSubQuery(nested->GetQueryString(), nested->SQLOptions());
        --nesting;
    }

    TKCustomDBStructure& structure;
    std::mt19937 random;
    int nesting = 0;
};

std::string Built(TKQuery& query) {
    query.BuildQuery();
    return query.QResult().GetSQL().Text();
}

/// Parameters are numbered as the rows stand, not as they were made.
std::string WithoutNumbers(const std::string& sql) {
    static const std::regex parameter(":Param[0-9]+");
    return std::regex_replace(sql, parameter, ":Param");
}

/// What another query makes of the text of this one.
std::string BuiltFromText(TKQuery& query) {
    TKQuery again(query.DbStruct());
    again.SetSQLSyntax(query.SQLSyntax());
    for (TKQuery* each : {&query, &again})
        each->SaveSQLOptions = each->SaveMainTable = true;
    const std::string text = query.GetQueryString();
    again.SetQueryString(text);
    EXPECT_EQ(again.GetQueryString(), text);
    return Built(again);
}

/// Empty when the statement comes back; else what came.
std::string ImportedOtherwise(TKCustomDBStructure& structure, const std::string& sql) {
    TKQuery again(&structure);
    const TSQLReport& report = again.ImportSQL(sql);
    std::string told;
    for (const TSQLReportEntry& entry : report.Entries())
        if (entry.kind != TSQLReportKind::rkRecognised) told += SQLReportLine(entry) + "\n";
    std::string text;
    try {
        text = Built(again);
    } catch (const EKTernError& error) {
        text = error.what();
    }
    return text == sql && told.empty() ? std::string() : text + "\n" + told;
}

using RoundTrip = TWideShop;

TEST_F(RoundTrip, TextAndImportGiveTheSameStatement) {
    constexpr uint32_t seeds = 3000;
    int failed = 0, built = 0;
    for (uint32_t seed = 1; seed <= seeds && failed < 3; ++seed) {
        TKQuery made(&structure);
        TMaker(structure, seed).Fill(made);
        std::string sql;
        try {
            sql = Built(made);
        } catch (const EKTernError& error) {
            ADD_FAILURE() << "seed " << seed << ": " << error.what();
            ++failed;
            continue;
        }
        ++built;
        ASSERT_EQ(WithoutNumbers(BuiltFromText(made)), WithoutNumbers(sql)) << "seed " << seed;
        if (ImportedOtherwise(structure, sql).empty()) continue;
        ++failed;
        ADD_FAILURE() << "seed " << seed << "\n"
                      << sql << "\n--- came back as\n"
                      << ImportedOtherwise(structure, sql);
    }
    EXPECT_GT(built, failed);
}

} // namespace
} // namespace tern7
