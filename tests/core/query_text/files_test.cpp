// Query texts as files.
#include "text_fixture.h"

#include <filesystem>

#include <tern7/core/corekit/files.h>
#include <tern7/core/query/query_text.h>

namespace tern7 {
namespace {

namespace fs = std::filesystem;

class QueryFiles : public TQueryTextTest {
protected:
    QueryFiles() {
        folder = fs::temp_directory_path() / ("tern7_query_files_" + std::to_string(::getpid()));
        fs::create_directories(folder);
    }
    ~QueryFiles() override { fs::remove_all(folder); }
    std::string Path(const char* name) const { return (folder / name).string(); }
    fs::path folder;
};

TEST_F(QueryFiles, SaveLoadAndFailures) {
    Add("City", "Equal", "K\xC3\xB6ln");
    query.SaveToFile(Path("a.qry"));
    EXPECT_EQ(ReadWholeFile(Path("a.qry")), query.GetQueryString());
    TKQuery other(&structure);
    other.SaveTitles = false;
    other.LoadFromFile(Path("a.qry"));
    EXPECT_EQ(other.GetQueryString(), query.GetQueryString());
    EXPECT_TRUE(other.LoadWarnings().empty());

    EXPECT_THROW(other.LoadFromFile(Path("missing.qry")), EKQueryPanelError);
    EXPECT_THROW(other.SaveToFile(Path("no/such/folder.qry")), EKQueryPanelError);
    EXPECT_EQ(other.GetQueryString(), query.GetQueryString());

    WriteWholeFile(Path("old.qry"),
                   "\xEF\xBB\xBF[Main]\r\nQueryName=x\r\n[Row0]\r\nRowCount=0\r\n");
    other.LoadFromFile(Path("old.qry"));
    EXPECT_EQ(other.QueryName(), "x");
    WriteWholeFile(Path("old.qry"), "[Main]\nQueryName=K\xF6ln\n[Row0]\nRowCount=0\n");
    other.LoadFromFile(Path("old.qry"));
    EXPECT_EQ(other.QueryName(), "K\xC3\xB6ln");
    EXPECT_EQ(other.LoadWarnings().size(), 1u);
}

TEST_F(QueryFiles, ReadQueriesListsTheQueriesOfAFolder) {
    for (const char* name : {"b.qry", "A.QRY", "c.qry"})
        WriteWholeFile(Path(name), "[Main]\nQueryName=" + std::string(name, 1) + "\n");
    WriteWholeFile(Path("noquery.qry"), "hello");
    WriteWholeFile(Path("b.txt"), "[Main]\nQueryName=no\n");
    fs::create_directory(folder / "folder.qry");
    TStrings names{"first"}, files{"first"};
    ReadQueries(folder.string(), names, files);
    ReadQueries(Path("nowhere"), names, files);
    EXPECT_EQ(names, (TStrings{"first", "A", "b", "c"}));
    EXPECT_EQ(files, (TStrings{"first", Path("A.QRY"), Path("b.qry"), Path("c.qry")}));
}

TEST_F(QueryFiles, HeadNeedsNoStructure) {
    query.SetQueryName("n");
    TQueryTextHead head = ReadQueryTextHead(query.GetQueryString());
    EXPECT_TRUE(head.isQuery);
    EXPECT_EQ(head.queryName, "n");
    EXPECT_EQ(head.version, QueryTextVersion);
    EXPECT_FALSE(head.hasTitles || head.hasOptions || head.hasMainTable);
    query.SaveTitles = query.SaveSQLOptions = query.SaveMainTable = true;
    query.Titles = {"[Query Panel]", "ttlAll=alle"};
    query.SetMainTableName("C");
    head = ReadQueryTextHead(query.GetQueryString());
    EXPECT_TRUE(head.hasTitles && head.hasOptions && head.hasMainTable);
    EXPECT_FALSE(ReadQueryTextHead("no query").isQuery);
}

} // namespace
} // namespace tern7
