#include "database_session.h"

namespace tern7 {

TDatabaseSession::TDatabaseSession(const TKDatabaseURL& address,
                                   std::unique_ptr<TKCustomDBStructure> itsStructure)
    : url(address), info(address), structure(std::move(itsStructure)),
      operatorCaptions(*structure) {
    TranslateOperators();
    structure->SetDatabaseInfo(&info);
}

TDatabaseSession::~TDatabaseSession() {
    structure->SetDatabaseInfo(nullptr);
}

} // namespace tern7
