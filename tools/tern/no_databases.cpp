// tern import, tern run in a tool that was built without Tern7::Sql.
#ifndef TERN7_WITH_DATABASES

#include <tern7/core/corekit/errors.h>

#include "verbs.h"

namespace tern7 {

namespace {

constexpr auto withoutDatabases = "This tool was built without access to databases";

} // namespace

int RunImport(const TCommandLine&) {
    throw EKTernError(withoutDatabases);
}

int RunRun(const TCommandLine&) {
    throw EKTernError(withoutDatabases);
}

} // namespace tern7

#endif
