// Statements as text cases: tests/cases/*.case. Each case names a structure, options and a main
// table, gives a query text, and what is wanted in three syntaxes (once for all when they agree),
// or the message. Blanks at the end of a line are written as "~". With TERN7_UPDATE_CASES=1 what
// was got is written back, to be looked at as a difference.

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include <gtest/gtest.h>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/corekit/files.h>
#include <tern7/core/query/query.h>

namespace tern7 {
namespace {

namespace fs = std::filesystem;

const std::string folder = std::string(TERN7_TESTS_DIR) + "/cases";

struct TCase {
    std::string heading; ///< all lines before the wanted results, kept as they stand
    std::string name, structure, main, query;
    TSQLOptions options;
    std::string wanted;
};

std::vector<TCase> ReadCases(const std::string& file) {
    std::vector<TCase> cases;
    enum { Head, Query, Wanted } part = Head;
    for (const std::string& line : SplitLines(ReadWholeFile(file))) {
        if (line.starts_with("=== ")) {
            cases.emplace_back().name = line.substr(4);
            part = Head;
        } else if (line == "--- query") {
            part = Query;
        } else if (line.starts_with("--- ")) {
            part = Wanted;
        }
        if (cases.empty()) throw std::runtime_error("text before the first case: " + line);
        TCase& present = cases.back();
        if (part == Wanted) {
            present.wanted += line + "\n";
            continue;
        }
        present.heading += line + "\n";
        if (part == Query) {
            if (line != "--- query") present.query += line + "\n";
        } else if (line.starts_with("structure: ")) {
            present.structure = line.substr(11);
        } else if (line.starts_with("main: ")) {
            present.main = line.substr(6);
        } else if (line.starts_with("options: ")) {
            for (const std::string& option : ParseCommaText(line.substr(9)))
                present.options.Include(StrToSQLOption(option).value());
        }
    }
    return cases;
}

std::string Statement(const TCase& present, TSQLSyntax syntax) {
    TKCustomDBStructure structure;
    structure.LoadFromFile(folder + "/" + present.structure + ".str");
    TKQuery query(&structure);
    query.SetQueryString(present.query);
    query.SetSQLOptions(present.options);
    query.SetSQLSyntax(syntax);
    query.SetMainTableName(present.main);
    query.BuildQuery();
    std::string text;
    for (const std::string& line : query.QResult().GetSQL().Lines()) {
        // blanks at the end of a line count; they are made visible
        const size_t end = TrimRight(line).size();
        text += line.substr(0, end) + std::string(line.size() - end, '~') + "\n";
    }
    EXPECT_EQ(SplitLines(text).size(), query.QResult().GetSQL().Lines().size());
    return text;
}

std::string Results(const TCase& present) {
    const std::pair<const char*, TSQLSyntax> syntaxes[] = {{"sql1", TSQLSyntax::ssSQL1},
                                                           {"sql2", TSQLSyntax::ssSQL2},
                                                           {"oracle", TSQLSyntax::ssOracle}};
    std::string results;
    TStrings statements;
    for (const auto& [name, syntax] : syntaxes) {
        try {
            statements.push_back(Statement(present, syntax));
        } catch (const EKTernError& error) {
            return "--- error\n" + std::string(error.what()) + "\n\n";
        }
        results += "--- " + std::string(name) + "\n" + statements.back();
    }
    if (statements[0] == statements[1] && statements[1] == statements[2])
        results = "--- all\n" + statements[0];
    return results + "\n";
}

TEST(TTextCases, SayWhatIsWanted) {
    const bool update = std::getenv("TERN7_UPDATE_CASES") != nullptr;
    int count = 0;
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path().extension() != ".case") continue;
        std::string renewed;
        for (const TCase& present : ReadCases(entry.path().string())) {
            SCOPED_TRACE(entry.path().filename().string() + ": " + present.name);
            const std::string got = Results(present);
            if (!update) {
                EXPECT_EQ(TrimRight(got), TrimRight(present.wanted));
            }
            renewed += present.heading + got;
            ++count;
        }
        if (update) WriteWholeFile(entry.path().string(), renewed);
    }
    EXPECT_GT(count, 0);
}

} // namespace
} // namespace tern7
