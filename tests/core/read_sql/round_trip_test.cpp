// Random queries: what is built is imported and built again as the same text, in three syntaxes
// with any options.

#include <algorithm>
#include <functional>
#include <optional>
#include <random>

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
        for (const auto& [name, text] :
             {std::pair("InQuery", "@f in (@1)"), std::pair("NotInQuery", "@f not in (@1)")}) {
            TDSOperator* op = structure.AddOperator(name);
            op->SetSQLName(text);
            op->SetValueType(TOpValueType::vtSubQuery);
        }
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

/// Takes rows and columns away as long as the check goes on failing.
void MakeSmaller(TKQuery& query, const std::function<bool(TKQuery&)>& fails) {
    const auto still = [&] {
        try {
            return fails(query);
        } catch (const EKTernError&) {
            return false;
        }
    };
    const std::function<void(TFilterBracket&)> shrink = [&](TFilterBracket& bracket) {
        for (int i = bracket.GetRowCount(); i-- > 0;) {
            auto taken = bracket.TakeRow(bracket.GetRow(i));
            if (!still()) bracket.InsertRow(i, std::move(taken));
        }
        for (const auto& row : bracket.Rows())
            if (row->IsBracket()) shrink(*row->AsBracket());
    };
    shrink(query.Root());
    TRFieldList& fields = query.QResult().ResultFields();
    for (int i = fields.GetCount(); i-- > 0;) {
        auto taken = fields.TakeField(i);
        if (!still()) fields.PutField(i, std::move(taken));
    }
    for (int i = 0; i < SQLOptionCount; ++i) {
        const TSQLOptions options = query.SQLOptions();
        TSQLOptions less = options;
        less.Exclude(static_cast<TSQLOption>(i));
        query.SetSQLOptions(less);
        if (!still()) query.SetSQLOptions(options);
    }
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

/// The rows that take part, as ParseSQL promises to keep them: a bracket of one row is that row, a
/// parameter has no name, a pattern that is one is looked for anywhere. Nothing when a negation of
/// one row would have to be told from that of its operator.
std::optional<std::string> Shape(const TFilterBracket& bracket);

std::optional<std::string> Shape(const TFilterCond& row) {
    std::string name = row.IsRecognized() ? row.OperatorName() : "?" + row.SQLText();
    const bool isLike =
        row.IsRecognized() && row.Operator()->SQLName().find("like") != std::string::npos;
    if (isLike && row.Param(1)) name = name.starts_with("Not") ? "NotContains" : "Contains";
    std::string text = std::to_string(row.FieldID()) + " " + name;
    if (row.IsSubQueryOperator()) {
        const std::optional<std::string> inner = Shape(row.NestedQuery()->Root());
        return inner ? std::optional(text + " " + *inner) : std::nullopt;
    }
    for (int n = 1; n <= row.ValueCount(); ++n)
        text += "|" + (row.Param(n) ? std::string(":") : row.Value(n));
    return text;
}

std::optional<std::string> Shape(const TFilterBracket& bracket) {
    TStrings rows;
    for (const auto& row : bracket.Rows()) {
        if (!row->GetEnabled()) continue;
        if (row->AsCond() && row->AsCond()->Unfinished() != TUnfinished::No) continue;
        const std::optional<std::string> shape =
            row->IsBracket() ? Shape(*row->AsBracket()) : Shape(*row->AsCond());
        if (!shape) return std::nullopt;
        if (!shape->empty()) rows.push_back(*shape);
    }
    if (rows.size() == 1 && IsNegated(bracket.LinkType())) return std::nullopt;
    if (rows.size() < 2) return JoinStrings(rows, "");
    static const char* const words[] = {"all", "any", "none", "notall"};
    return std::string("[") + words[static_cast<int>(bracket.LinkType())] + " " +
           JoinStrings(rows, " ") + "]";
}

/// Fields, formulas and sorting.
std::string ColumnsOf(const TKQuery& query) {
    std::string text;
    for (const auto& field : query.QResult().ResultFields()) {
        for (char c : field->Formula())
            if (c != ' ') text += c;
        for (const TDSField* used : field->Fields().Items())
            text += " " + std::to_string(used->ID());
        text += " " + std::to_string(static_cast<int>(field->Sorting())) + "\n";
    }
    return text + query.QResult().OrderByText();
}

using RoundTrip = TWideShop;

TEST_F(RoundTrip, ParseSQLKeepsRowsAndColumns) {
    constexpr uint32_t seeds = 2000;
    int checked = 0;
    for (uint32_t seed = 1; seed <= seeds && !HasFailure(); ++seed) {
        TKQuery made(&structure), again(&structure);
        TMaker(structure, seed).Fill(made);
        made.SetSQLSyntax(TSQLSyntax::ssSQL2);
        TSQLOptions options = made.SQLOptions();
        options.Exclude(TSQLOption::soSortByNames);
        made.SetSQLOptions(options);
        made.QResult().ResultFields().SetJustSorting(false);
        const std::string sql = Built(made);
        const std::optional<std::string> shape = Shape(made.Root());
        if (!shape || !made.QResult().GroupByText().empty()) continue;
        ++checked;
        SCOPED_TRACE("seed " + std::to_string(seed) + "\n" + sql);
        again.SetSQLOptions(options);
        again.ParseSQL(sql);
        EXPECT_EQ(Shape(again.Root()), shape);
        again.SetMainTableName(made.MainTableName());
        again.BuildQuery();
        EXPECT_EQ(ColumnsOf(again), ColumnsOf(made));
        EXPECT_TRUE(again.SQLReport().Entries().empty());
    }
    EXPECT_GT(checked, 500);
}

TEST_F(RoundTrip, ImportGivesTheSameStatement) {
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
        if (ImportedOtherwise(structure, sql).empty()) continue;
        ++failed;
        MakeSmaller(made, [&](TKQuery& less) {
            return !ImportedOtherwise(structure, Built(less)).empty();
        });
        sql = Built(made);
        ADD_FAILURE() << "seed " << seed << "\n"
                      << sql << "\n--- came back as\n"
                      << ImportedOtherwise(structure, sql);
    }
    EXPECT_GT(built, failed);
}

} // namespace
} // namespace tern7
