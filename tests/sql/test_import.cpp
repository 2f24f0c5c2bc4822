#include "engines.h"

#include <algorithm>
#include <set>

#include <QtCore/QFile>

#include <tern7/core/structure/structure.h>
#include <tern7/kbdeinfo.h>

namespace tern7::test {

namespace {

std::string SampleSchema() {
    QFile file(QStringLiteral(TERN7_TESTS_DIR "/../examples/sample/schema.sql"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll().toStdString();
}

TStrings ImportedText(const std::string& connection, const std::string& schema) {
    TKBDEInfo info;
    info.SetDatabaseName(connection);
    info.SetSchema(schema);
    TKCustomDBStructure structure;
    structure.SetDatabaseInfo(&info);
    ImportDatabase(structure);
    EXPECT_EQ(structure.GetLinkCount(), 29);
    TStrings lines;
    structure.SetDatabaseInfo(nullptr);
    structure.SaveToStrings(lines);
    return lines;
}

/// The pairs of lines that differ, each once; the long lines of operators go with the type.
std::set<std::string> Differences(const TStrings& a, const TStrings& b) {
    EXPECT_EQ(a.size(), b.size());
    std::set<std::string> differences;
    for (size_t i = 0; i < std::min(a.size(), b.size()); ++i)
        if (a[i] != b[i] && !a[i].starts_with("Operators="))
            differences.insert(a[i] + " | " + b[i]);
    return differences;
}

/// By their ordinals: a row id, memos instead of texts; PostgreSQL folds names to lower case.
std::set<std::string> KnownDifferences(TKEngine engine) {
    switch (engine) {
    case TKEngine::PostgreSQL:
        return {"FieldType=14 | FieldType=3", "Quoted=0 | Quoted=1"};
    case TKEngine::MySQL:
        return {"FieldType=14 | FieldType=3", "FieldType=1 | FieldType=16",
                "QuoteSymbol1=\" | QuoteSymbol1=`", "QuoteSymbol2=\" | QuoteSymbol2=`"};
    default:
        return {};
    }
}

class TImport : public TEngineTest {};

} // namespace

INSTANTIATE_TEST_SUITE_P(Engines, TImport,
                         ::testing::Values(TKEngine::SQLite, TKEngine::PostgreSQL, TKEngine::MySQL),
                         EngineName);

TEST_P(TImport, TheSampleIsTheSameStructureOnEveryEngine) {
    if (GetParam() == TKEngine::MySQL) Run("SET sql_mode = 'ANSI_QUOTES,NO_BACKSLASH_ESCAPES'");
    Run(SampleSchema());
    const TStrings lines =
        ImportedText("test", GetParam() == TKEngine::PostgreSQL ? "tern7test" : "");

    QFile file(folder.filePath(QStringLiteral("other.db")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const TKConnection sqlite(ParseDatabaseURL("sqlite:" + FromQt(file.fileName())),
                              TKConnection::TMode::ReadWrite, "sqlite");
    for (const QString& statement : ToQt(SampleSchema()).split(QStringLiteral(";\n")))
        if (!statement.trimmed().isEmpty()) Execute(sqlite.Database(), statement);
    EXPECT_EQ(Differences(ImportedText("sqlite", ""), lines), KnownDifferences(GetParam()));
}

} // namespace tern7::test
