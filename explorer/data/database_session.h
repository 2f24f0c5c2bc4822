#pragma once

#include <memory>

#include <tern7/core/structure/structure.h>

#include "operator_captions.h"
#include "session_info.h"

namespace tern7 {

/// A database that was opened and the structure that queries over it are made of.
class TDatabaseSession {
public:
    /// The file is that of the structure; empty when it was imported.
    TDatabaseSession(const TKDatabaseURL& address,
                     std::unique_ptr<TKCustomDBStructure> itsStructure, std::string file);
    ~TDatabaseSession();
    TDatabaseSession(const TDatabaseSession&) = delete;
    TDatabaseSession& operator=(const TDatabaseSession&) = delete;

    const TKDatabaseURL& Url() const { return url; }
    TKCustomDBStructure& Structure() { return *structure; }
    const std::string& StructureFile() const { return structureFile; }
    /// Not in the program's language but as it is delivered. EKTernError.
    void SaveStructure(const std::string& file);
    /// The operators in the program's present language.
    void TranslateOperators() { operatorCaptions.Translate(*structure); }

private:
    TKDatabaseURL url;
    TSessionInfo info;
    std::unique_ptr<TKCustomDBStructure> structure;
    std::string structureFile;
    TOperatorCaptions operatorCaptions;
};

} // namespace tern7
