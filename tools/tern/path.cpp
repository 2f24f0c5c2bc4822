// tern path: how two tables are joined.

#include <tern7/core/structure/structure.h>

#include "inputs.h"
#include "streams.h"
#include "verbs.h"

namespace tern7 {

int RunPath(const TCommandLine& line) {
    TKCustomDBStructure structure;
    LoadStructure(structure, line.Argument(0));
    const TDSPath& path = structure.GetPath(line.Argument(1), line.Argument(2));
    for (const TDSTable* table : path.Tables())
        PrintLine(table->TableAlias());
    return esDone;
}

} // namespace tern7
