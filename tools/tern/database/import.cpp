// tern import: a structure made of a database.

#include <tern7/core/corekit/files.h>
#include <tern7/core/structure/structure.h>
#include <tern7/sql/bde_info.h>

#include "../streams.h"
#include "../verbs.h"
#include "open_database.h"

namespace tern7 {

int RunImport(const TCommandLine& line) {
    const TKConnection connection = OpenDatabase(line.Argument(0));
    TKBDEInfo info;
    info.SetDatabaseName(connection.Name());
    if (const auto schema = line.Value("--schema")) info.SetSchema(*schema);

    TKCustomDBStructure structure;
    structure.SetDatabaseInfo(&info);
    ImportDatabase(structure);
    if (structure.GetTableCount() == 0) throw EKDBInfoError("The database has no tables");
    structure.SetDatabaseInfo(nullptr); // the connection's name means nothing to others

    const std::string text = structure.GetStructString();
    if (const auto file = line.Value("-o"))
        WriteWholeFile(*file, text);
    else
        Print(text);
    return esDone;
}

} // namespace tern7
