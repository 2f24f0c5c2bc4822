#include "database_session.h"

namespace tern7 {

TDatabaseSession::TDatabaseSession(const TKDatabaseURL& address,
                                   std::unique_ptr<TKCustomDBStructure> itsStructure,
                                   std::string file)
    : url(address), info(address), structure(std::move(itsStructure)),
      structureFile(std::move(file)), operatorCaptions(*structure) {
    TranslateOperators();
    structure->SetDatabaseInfo(&info);
}

TDatabaseSession::~TDatabaseSession() {
    structure->SetDatabaseInfo(nullptr);
}

void TDatabaseSession::SaveStructure(const std::string& file) {
    const TDSUpdate update(*structure);
    operatorCaptions.Deliver(*structure);
    try {
        structure->SaveToFile(file);
    } catch (...) {
        TranslateOperators();
        throw;
    }
    TranslateOperators();
    structureFile = file;
}

} // namespace tern7
