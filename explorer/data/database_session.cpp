#include "database_session.h"

#include <tern7/core/global/errors.h>

namespace tern7 {

TDatabaseSession::TDatabaseSession(const TKDatabaseURL& address, const std::string& structureFile)
    : url(address), connection(address) {
    info.SetDatabaseName(connection.Name());
    structure.SetDatabaseInfo(&info);
    if (structureFile.empty())
        ImportDatabase(structure);
    else
        structure.LoadFromFile(structureFile);
    if (structure.GetTableCount() == 0) throw EKDBInfoError("The database has no tables");
}

TDatabaseSession::~TDatabaseSession() {
    structure.SetDatabaseInfo(nullptr);
}

} // namespace tern7
