#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <tern7/core/structure/structure_indexes.h>

namespace tern7 {

/// What a structure text says, made of objects that belong to the structure but are not listed yet;
/// after Adopt, what the structure held before.
struct TKCustomDBStructure::TContent {
    TContent() = default;
    ~TContent() {
        for (const auto& group : groups)
            group->fields.clear(); // they end too; nothing moves to the structure's root group
    }
    TContent(const TContent&) = delete;
    TContent& operator=(const TContent&) = delete;

    TKObjectList<TDSTable> tables;
    TKObjectList<TDSField> fields;
    TKObjectList<TDSLink> links;
    TKObjectList<TDSOperator> operators;
    std::vector<std::unique_ptr<TDSFieldGroup>> groups;
    std::vector<TDSField*> rootFields;
    double version = 3.3;
    std::string defaultMainTable;
    bool rootFieldsFirst = false;
    std::optional<TSQLFormats> formats;
    TStrings databaseLines;
    TStrings warnings;
    int lastID = 0;
};

} // namespace tern7
