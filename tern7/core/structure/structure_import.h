#pragma once

#include <initializer_list>
#include <map>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <tern7/core/structure/structure.h>

namespace tern7 {

/// Fills a structure from what its DatabaseInfo says.
class TDatabaseImport {
public:
    /// EKDBStructError "DatabaseInfo is not specified".
    explicit TDatabaseImport(TKCustomDBStructure& target);

    /// A table with a readable display name that no other has; an empty alias becomes a plain name.
    TDSTable* AddTable(const std::string& name, std::string alias);
    /// The fields of a table, in a group named after it or in the root group.
    void AddColumns(TDSTable* table, const TDBFieldList& columns, bool grouped);

    /// Date formats that mean the same everywhere, and the quote symbols of the database.
    void UseFormats();
    /// Reads tables, columns and foreign keys.
    void Read();
    /// Adds what Read found.
    void Fill();

private:
    struct TSource {
        std::string name;
        TDBFieldList columns;
        TDSTable* table;
    };

    std::string PlainName(std::string_view name);
    std::string FreeAlias(std::initializer_list<std::string> wishes) const;
    std::string FreeDisplayName(std::initializer_list<std::string> wishes);
    TDSTable* AddTable(const std::string& name, std::string alias, std::string displayName);
    TSource* SourceOf(const std::string& name) const;
    void AddLink(const TDBForeignKey& key);
    TDSTable* AddCopy(const TSource& from, const TSource& to, const std::string& role);

    TKCustomDBStructure& structure;
    TKDBInfo* info = nullptr;
    std::unordered_set<std::string> displayNames; // of tables, in lower case
    char quote1 = 0, quote2 = 0;
    std::vector<TSource> sources;
    std::vector<TDBForeignKey> keys;
    std::unordered_map<std::string_view, TSource*> byName;
    std::unordered_map<std::string_view, TSource*, TTextHash, TTextEqual> byNameIgnoringCase;
    std::map<std::pair<const TSource*, const TSource*>, std::set<TStrings>> linked;
};

} // namespace tern7
