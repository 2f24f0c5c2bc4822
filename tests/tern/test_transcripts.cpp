// The tool as a process: every transcript of tests/cases/tern is run in a folder of its own, beside
// copies of the files there. TERN7_UPDATE_CASES=1 writes down what really came. Those whose names
// begin with "database" need a tool that was built with Tern7::Sql.

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include <unistd.h>

#include <gtest/gtest.h>

#include "transcript.h"

namespace {

namespace fs = std::filesystem;

fs::path CasesFolder() {
    return fs::path(TERN7_TESTS_DIR) / "cases" / "tern";
}

std::vector<std::string> Transcripts() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(CasesFolder()))
        if (entry.path().extension() == ".txt") names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

/// A folder with the files of the cases; the tool is on the path, $SAMPLE is the sample's folder.
class TSandbox {
public:
    TSandbox() {
        std::string name = (fs::temp_directory_path() / "tern7-XXXXXX").string();
        if (!::mkdtemp(name.data())) throw std::runtime_error("no folder " + name);
        folder = name;
        fs::create_directories(folder / "bin");
        fs::create_symlink(TERN7_TOOL, folder / "bin" / "tern");
        fs::create_directories(folder / "work");
        const fs::path files = CasesFolder() / "files";
        fs::copy(files, Work(), fs::copy_options::recursive);
        ::setenv("SAMPLE", (fs::path(TERN7_TESTS_DIR) / "../examples/sample").c_str(), 1);
        path = ::getenv("PATH");
        ::setenv("PATH", ((folder / "bin").string() + ":" + path).c_str(), 1);
    }
    ~TSandbox() {
        ::setenv("PATH", path.c_str(), 1);
        std::error_code ignored;
        fs::remove_all(folder, ignored);
    }
    fs::path Work() const { return folder / "work"; }

private:
    fs::path folder;
    std::string path;
};

class Tern : public testing::TestWithParam<std::string> {};

bool OpensDatabases() {
    return std::system("tern import sqlite: 2>&1 | grep -q 'without access to databases'") != 0;
}

TEST_P(Tern, DoesAsTheTranscriptSays) {
    const fs::path file = CasesFolder() / (GetParam() + ".txt");
    std::ifstream in(file, std::ios::binary);
    const std::string wanted{std::istreambuf_iterator<char>(in), {}};
    const TSandbox sandbox;
    if (GetParam().starts_with("database") && !OpensDatabases())
        GTEST_SKIP() << "the tool was built without access to databases";
    const std::string got = tern7::tests::RunTranscript(wanted, sandbox.Work());
    if (std::getenv("TERN7_UPDATE_CASES"))
        std::ofstream(file, std::ios::binary) << got;
    else
        EXPECT_EQ(got, wanted) << file;
}

std::string NameOf(const testing::TestParamInfo<std::string>& transcript) {
    return transcript.param;
}

INSTANTIATE_TEST_SUITE_P(Cases, Tern, testing::ValuesIn(Transcripts()), NameOf);

} // namespace
