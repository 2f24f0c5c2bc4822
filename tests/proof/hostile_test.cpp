// Values that try to be SQL find what equals them and change nothing.

#include <gtest/gtest.h>

#include "engines.h"
#include "sample.h"

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/global/errors.h>

namespace tern7::proof {

namespace {

const std::string hostile[] = {"'",           "''",
                               "'''",         "\"",
                               "`",           "' or '1'='1",
                               "1 OR 1=1",    "'; drop table settings; --",
                               "x' -- y",     "/* x",
                               "*/",          "--",
                               "#",           ";",
                               "%",           "_",
                               "%%",          "a%b",
                               "a_b",         "100%",
                               "!",           "!%",
                               "\\",          "\\'",
                               "\\\\",        "\\' or 1=1 -- ",
                               "x\\",         "line\nbreak",
                               "cr\r\nlf",    "\n",
                               "tab\there",   "☕",
                               "👩‍🚀", "Ünï'cödé",
                               "@1",          "@f",
                               "@p1",         ":Param1",
                               ":v1",         "?",
                               "$1",          "@1 and @2",
                               " leading",    "trailing ",
                               "a,b",         "\"quoted\"",
                               "NULL",        "null",
                               "0x41",        "char(65)",
                               "${x}",        "%s"};

/// A table of its own with the values and a neighbour of each that nearly equals it.
class THostile : public ::testing::Test {
protected:
    void Make(TEngine& itsEngine, char quote) {
        engine = &itsEngine;
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

    void Check(bool textForm) {
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

    TEngine* engine = nullptr;
    int64_t lastID = 0;
    TRows before, settings;
    TKCustomDBStructure structure;
    TKQuery query{&structure};
    TFilterCond* condition = nullptr;
};

} // namespace

TEST_F(THostile, ValuesOnSQLite) {
    QTemporaryDir folder;
    const std::string file = folder.filePath(QStringLiteral("hostile.db")).toStdString();
    RunProgram(SampleFolder() + "/make_sample_db", {file});
    const auto itsEngine = OpenSQLite("sqlite:" + file, TKConnection::TMode::ReadWrite);
    Make(*itsEngine, '"');
    Check(true);
}

TEST_F(THostile, ValuesOnPostgreSQL) {
    const auto itsEngine = OpenPostgreSQL();
    if (!itsEngine) GTEST_SKIP() << "TERN7_TEST_POSTGRESQL is not set";
    Make(*itsEngine, '"');
    Check(true);
}

TEST_F(THostile, ValuesOnMariaDB) {
    const auto itsEngine = OpenMariaDB(false);
    if (!itsEngine) GTEST_SKIP() << "TERN7_TEST_MARIADB is not set";
    Make(*itsEngine, '"');
    Check(true);
}

TEST_F(THostile, BoundValuesOnMariaDBInItsDefaultMode) {
    const auto itsEngine = OpenMariaDB(true);
    if (!itsEngine) GTEST_SKIP() << "TERN7_TEST_MARIADB is not set";
    Make(*itsEngine, '`');
    Check(false);
}

/// Numbers stand without quotes: whatever is more than a number or a word is refused.
TEST_F(THostile, NumbersAreNumbers) {
    const auto itsEngine = OpenSQLite(TSample::Shared().Address());
    TKCustomDBStructure& sample = TSample::Shared().Imported();
    TKQuery orders(&sample);
    TFilterCond* row = orders.Root().AddCond();
    row->SetField(sample.FieldByName(false, "orders.order_id"));
    for (const char* op : {"Equal", "InList", "Between", "GreaterThan"})
        for (const char* value : {"1 OR 1=1", "1; drop table orders", "1)", "(1", "'1'", "1--",
                                  "order_id=1", "1 union"}) {
            row->SetOperator(sample.OperatorByName(op));
            row->SetValue(1, value);
            row->SetValue(2, "2");
            EXPECT_THROW(orders.BuildQuery(), EKQueryPanelError) << op << " " << value;
        }
}

TEST_F(THostile, NulIsRefusedWithAMessage) {
    TKCustomDBStructure& sample = TSample::Shared().Imported();
    TKQuery customers(&sample);
    TFilterCond* row = customers.Root().AddCond();
    row->SetField(sample.FieldByName(false, "customers.name"));
    for (const char* op : {"Equal", "Contains", "InList", "NotEqual"})
        for (const bool parameter : {false, true}) {
            row->SetOperator(sample.OperatorByName(op));
            row->SetValue(1, std::string("a\0b", 3));
            row->SetValue1IsParam(parameter);
            customers.BuildQuery();
            try {
                customers.QResult().GetBoundSQL();
                ADD_FAILURE() << op;
            } catch (const EKQueryPanelError& error) {
                EXPECT_STREQ(error.what(), "A value holds a NUL character");
            }
        }
}

} // namespace tern7::proof
