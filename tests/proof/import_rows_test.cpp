// Statements that a writer made up, as people write them, give the same rows when they were
// imported and built again, unless the report says that something was dropped. TERN7_STATEMENTS
// sets how many (3,000), TERN7_FIRST_STATEMENT the seed of the first.

#include <optional>

#include <gtest/gtest.h>

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include "engines.h"
#include "statement_writer.h"

#include <tern7/core/corekit/strings.h>
#include <tern7/core/query/read_sql/sql_report.h>
#include <tern7/sql/qt_text.h>

namespace tern7::proof {

namespace {

std::string EmptyFile(const QString& path) {
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    return FromQt(path);
}

class ImportRows : public ::testing::Test {
protected:
    ImportRows()
        : engine("sqlite:" + EmptyFile(folder.filePath(QStringLiteral("small.db"))),
                 {"pragma case_sensitive_like = on"}, TKConnection::TMode::ReadWrite) {
        for (const std::string& statement : WriterDatabase())
            engine.Execute(statement);
        for (uint32_t i = 0; i < std::size(structures); ++i)
            FillWriterStructure(structures[i], i);
    }

    /// The rows; none when the database does not take the statement.
    std::optional<std::vector<std::string>> Rows(const std::string& sql) const {
        try {
            return SortedTexts(engine.Select(sql, WriterParameters()));
        } catch (const std::exception&) {
            return std::nullopt;
        }
    }

    void Check(uint32_t seed);

    QTemporaryDir folder;
    TEngine engine;
    TKCustomDBStructure structures[12];
    int executed = 0, complete = 0, failed = 0;
};

void ImportRows::Check(uint32_t seed) {
    TKCustomDBStructure& structure = structures[seed % std::size(structures)];
    const std::string sql = TStatementWriter(structure, seed).Statement();
    const auto expected = Rows(sql);
    if (!expected) return;
    ++executed;
    TKQuery query(&structure);
    query.SetSQLOptions({});
    std::string built;
    try {
        query.ImportSQL(sql);
        if (query.SQLReport().AnyDropped()) return;
        ++complete;
        query.BuildQuery();
        built = query.QResult().GetSQL().Text();
    } catch (const std::exception& error) {
        built += error.what();
    }
    if (Rows(built) == expected) return;
    ++failed;
    std::string told;
    for (const TSQLReportEntry& entry : query.SQLReport().Entries())
        told += SQLReportLine(entry) + "\n";
    ADD_FAILURE() << "seed " << seed << "\n"
                  << sql << "\n--- came back as\n"
                  << built << "\n"
                  << told;
}

uint32_t Setting(const char* name, int normal) {
    bool isGiven = false;
    const int given = qEnvironmentVariableIntValue(name, &isGiven);
    return static_cast<uint32_t>(isGiven ? given : normal);
}

} // namespace

TEST_F(ImportRows, AreThoseOfTheStatement) {
    const uint32_t first = Setting("TERN7_FIRST_STATEMENT", 1);
    const uint32_t count = Setting("TERN7_STATEMENTS", 3000);
    for (uint32_t seed = first; seed < first + count && failed < 3; ++seed)
        Check(seed);
    EXPECT_GT(executed, static_cast<int>(count) * 6 / 10);
    EXPECT_GT(complete, executed / 3);
}

} // namespace tern7::proof
