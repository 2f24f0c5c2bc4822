#include <algorithm>
#include <filesystem>
#include <system_error>
#include <vector>

#include <tern7/core/corekit/errors.h>
#include <tern7/core/corekit/files.h>
#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_text.h>

namespace tern7 {

namespace {

std::vector<std::string> QueryFilesOf(const std::string& folder) {
    namespace fs = std::filesystem;
    std::vector<std::string> files;
    std::error_code error;
    fs::directory_iterator entry(fs::path(folder), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        std::error_code unreadable;
        if (SameText(entry->path().extension().string(), ".qry") &&
            entry->is_regular_file(unreadable))
            files.push_back(entry->path().string());
    }
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace

void ReadQueries(const std::string& folder, TStrings& names, TStrings& files) {
    for (std::string& file : QueryFilesOf(folder)) {
        TQueryTextHead head;
        try {
            head = ReadQueryTextHead(DecodeTextFile(ReadWholeFile(file)).text);
        } catch (const EKTernError&) {
            continue;
        }
        if (!head.isQuery) continue;
        names.push_back(std::move(head.queryName));
        files.push_back(std::move(file));
    }
}

} // namespace tern7
