#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <tern7/core/corekit/files.h>
#include <tern7/core/corekit/strings.h>

namespace tern7::tests {

/// A statement written by hand: tests/cases/import/*.case. Behind "=== name" come its lines, then
/// from the first line that begins with "---" on what becomes of it.
struct TImportCase {
    std::string name, sql, wanted;
};

struct TImportCaseFile {
    std::string path;
    std::vector<TImportCase> cases;
};

inline std::vector<TImportCaseFile> ReadImportCases() {
    std::vector<TImportCaseFile> files;
    const std::string folder = std::string(TERN7_TESTS_DIR) + "/cases/import";
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() != ".case") continue;
        TImportCaseFile& file = files.emplace_back();
        file.path = entry.path().string();
        bool inWanted = false;
        for (const std::string& line : SplitLines(ReadWholeFile(file.path))) {
            if (line.starts_with("=== ")) {
                file.cases.push_back({line.substr(4), {}, {}});
                inWanted = false;
                continue;
            }
            if (file.cases.empty()) continue;
            inWanted = inWanted || line.starts_with("---");
            (inWanted ? file.cases.back().wanted : file.cases.back().sql) += line + "\n";
        }
    }
    std::sort(files.begin(), files.end(),
              [](const auto& a, const auto& b) { return a.path < b.path; });
    return files;
}

} // namespace tern7::tests
