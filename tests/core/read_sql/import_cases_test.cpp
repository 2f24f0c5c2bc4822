// Statements as people and programs write them, imported over the sample: the statement that comes
// back and what was lost, or the message. With TERN7_UPDATE_CASES=1 what was got is written back.

#include <cstdlib>

#include <gtest/gtest.h>

#include <tern7/core/query/query.h>
#include <tern7/core/query/read_sql/sql_report.h>

#include "support/import_cases.h"

namespace tern7 {
namespace {

std::string Imported(TKCustomDBStructure& structure, const std::string& sql) {
    TKQuery query(&structure);
    query.SetSQLOptions({});
    try {
        query.ImportSQL(TrimRight(sql));
    } catch (const ESQLParserError& error) {
        return "--- error\n" + ReplaceStr(error.what(), "\r\n", " ") + "\n";
    }
    std::string text = "--- statement\n";
    try {
        query.BuildQuery();
        for (const std::string& line : query.QResult().GetSQL().Lines())
            text += std::string(TrimRight(line)) + "\n";
    } catch (const EKTernError& error) {
        text += std::string("! ") + error.what() + "\n";
    }
    std::string losses;
    for (const TSQLReportEntry& entry : query.SQLReport().Entries())
        if (entry.kind != TSQLReportKind::rkRecognised) losses += SQLReportLine(entry) + "\n";
    return losses.empty() ? text : text + "--- report\n" + losses;
}

TEST(ImportCases, ComeBackAsWanted) {
    TKCustomDBStructure structure;
    structure.LoadFromFile(std::string(TERN7_TESTS_DIR) + "/../examples/sample/sample.str");
    const bool update = std::getenv("TERN7_UPDATE_CASES") != nullptr;
    size_t count = 0;
    for (const tests::TImportCaseFile& file : tests::ReadImportCases()) {
        std::string renewed;
        for (const tests::TImportCase& each : file.cases) {
            SCOPED_TRACE(file.path + ": " + each.name);
            const std::string got = Imported(structure, each.sql);
            if (!update) {
                EXPECT_EQ(TrimRight(got), TrimRight(each.wanted));
            }
            renewed += "=== " + each.name + "\n" + each.sql + got + "\n";
            ++count;
        }
        if (update) WriteWholeFile(file.path, renewed);
    }
    EXPECT_GT(count, 30u);
}

} // namespace
} // namespace tern7
