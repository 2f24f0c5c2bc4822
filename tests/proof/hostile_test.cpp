// Values that try to be SQL find what equals them and change nothing.

#include <gtest/gtest.h>

#include "engines.h"
#include "sample.h"

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/global/errors.h>

namespace tern7::proof {

namespace {

// clang-format off
const std::string hostile[] = {
    "'", "''", "'''", "\"", "`", "' or '1'='1", "1 OR 1=1", "'; drop table settings; --",
    "x' -- y", "/* x", "*/", "--", "#", ";", "%", "_", "%%", "a%b", "a_b", "100%", "!", "!%",
    "\\", "\\'", "\\\\", "\\' or 1=1 -- ", "x\\", "line\nbreak", "cr\r\nlf", "\n", "tab\there",
    "☕", "👩‍🚀", "Ünï'cödé", "@1", "@f", "@p1", ":Param1", ":v1", "?", "$1", "@1 and @2",
    " leading", "trailing ", "a,b", "\"quoted\"", "NULL", "null", "0x41", "char(65)", "${x}",
    "%s"};
// clang-format on

/// A table of its own with the values and a neighbour of each that nearly equals it.
class THostile : public ::testing::Test {
protected:
    void Make(char quote) {
        engine->Execute("drop table if exists hostile");
        engine->Execute("create table hostile (id integer not null, v varchar(100))");
        engine->Execute("begin");
        for (const std::string& value : hostile) {
            Insert(value);
            Insert(value + "x");
        }
        engine->Execute("commit");
        structure.SQLFormats().SetQuoteSymbol1(quote);
        structure.SQLFormats().SetQuoteSymbol2(quote);
        TDSTable* table = structure.AddTable("hostile", "");
        for (const auto& [column, type] :
             {std::pair{"id", TFieldType::ftInteger}, std::pair{"v", TFieldType::ftString}}) {
            TDSField* field = structure.AddField(TKFieldKind::kfkData, column, column, table);
            field->SetFieldType(type);
        }
        query.SetMainTableName("hostile");
        condition = query.Root().AddCond();
        condition->SetField(structure.FieldByName(true, "v"));
        before = engine->Select("select * from hostile");
        settings = engine->Select("select * from settings");
        ASSERT_EQ(settings.size(), 5);
        ASSERT_EQ(before.size(), 2 * std::size(hostile));
    }

    void Insert(const std::string& value) {
        ++lastID;
        engine->Execute("insert into hostile values (?, ?)", {TCell(lastID), TCell(value)});
    }

    /// The condition finds the rows for which `holds`, in the forms that can be used.
    template <class Holds>
    void Expect(const char* op, const std::string& value, bool textForm, Holds holds,
                bool escapeWildcards = false) {
        condition->SetOperator(structure.OperatorByName(op));
        condition->SetValue(1, value);
        query.BuildQuery();
        TRows expected;
        for (const TRow& row : before)
            if (holds(std::get<std::string>(row[1]))) expected.push_back(row);
        EXPECT_EQ(SortedTexts(engine->Bound(query, escapeWildcards)), SortedTexts(expected))
            << op << " " << value << "\n"
            << query.QResult().GetBoundSQL().text;
        if (!textForm) return;
        EXPECT_EQ(SortedTexts(engine->Text(query)), SortedTexts(expected))
            << op << " " << value << "\n"
            << query.QResult().GetSQL().Text();
    }

    void Check(std::unique_ptr<TEngine> itsEngine, char quote, bool textForm) {
        if (!itsEngine) GTEST_SKIP() << "the variable of the server is not set";
        engine = std::move(itsEngine);
        Make(quote);
        for (const std::string& value : hostile) {
            Expect("Equal", value, textForm, [&](const std::string& v) { return v == value; });
            Expect("InList", ComposeCommaText({value, "other"}), textForm,
                   [&](const std::string& v) { return v == value; });
            condition->SetValue1IsParam(true);
            Expect("NotEqual", value, textForm, [&](const std::string& v) { return v != value; });
            condition->SetValue1IsParam(false);
            Expect(
                "Contains", value, false,
                [&](const std::string& v) { return v.find(value) != std::string::npos; }, true);
            Expect(
                "StartsWith", value, false,
                [&](const std::string& v) { return v.starts_with(value); }, true);
        }
        EXPECT_EQ(SortedTexts(engine->Select("select * from hostile")), SortedTexts(before));
        EXPECT_EQ(SortedTexts(engine->Select("select * from settings")), SortedTexts(settings));
        engine->Execute("drop table hostile");
    }

    std::unique_ptr<TEngine> engine;
    int64_t lastID = 0;
    TRows before, settings;
    TKCustomDBStructure structure;
    TKQuery query{&structure};
    TFilterCond* condition = nullptr;
};

} // namespace

TEST_F(THostile, ValuesOnSQLite) {
    const QTemporaryDir folder;
    Check(OpenSQLiteCopy(folder), '"', true);
}
TEST_F(THostile, ValuesOnPostgreSQL) {
    Check(OpenPostgreSQL(), '"', true);
}
TEST_F(THostile, ValuesOnMariaDB) {
    Check(OpenMariaDB(false), '"', true);
}
TEST_F(THostile, BoundValuesOnMariaDBInItsDefaultMode) {
    Check(OpenMariaDB(true), '`', false);
}

} // namespace tern7::proof
