#include "session_info.h"

namespace tern7 {

TKBDEInfo& TSessionInfo::Opened() {
    if (!open) open = std::make_unique<TOpen>(url);
    return open->info;
}

std::function<void(TStrings&, TStrings&)> TSessionInfo::SQLValuesJob(const std::string& sql) {
    return [url = url, sql](TStrings& values, TStrings& captions) {
        TOpen own(url);
        own.info.GetSQLValues(sql, values, captions);
    };
}

} // namespace tern7
