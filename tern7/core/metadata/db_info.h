#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <tern7/core/corekit/life.h>
#include <tern7/core/corekit/strings.h>
#include <tern7/core/global/errors.h>
#include <tern7/core/global/field_types.h>

namespace tern7 {

/// One column of a table.
struct TDBFieldInfo {
    std::string FieldName;
    int FieldSize = 0; ///< characters of texts, scale of exact decimals, else 0
    TFieldType FieldType = TFieldType::ftUnknown;
    bool Required = false; ///< NOT NULL
};

/// The columns of a table, in their order.
class TDBFieldList {
public:
    int GetCount() const { return static_cast<int>(items.size()); }
    const TDBFieldInfo& GetItem(int index) const { return items.at(static_cast<size_t>(index)); }
    void Add(TDBFieldInfo item) { items.push_back(std::move(item)); }
    void Clear() { items.clear(); }
    /// By name without regard to case; none when absent.
    const TDBFieldInfo* FindByName(std::string_view name) const;

    auto begin() const { return items.begin(); }
    auto end() const { return items.end(); }

private:
    std::vector<TDBFieldInfo> items;
};

/// A foreign key: columns of one table that refer, pair by pair, to columns of another.
struct TDBForeignKey {
    std::string Name;
    std::string Table;
    TStrings Columns;
    std::string RefTable;
    TStrings RefColumns;
    bool Optional = false; ///< one of the referring columns may be NULL
};

/// What a database says about itself. Abstract: an application derives it for its access layer;
/// errors of that layer pass through unchanged.
class TKDBInfo {
public:
    virtual ~TKDBInfo() = default;

    virtual void GetDatabaseNames(TStrings& list) = 0;
    virtual void TablesByDatabase(TStrings& list) = 0;
    /// Clears the list and fills it with the columns of the table; a type that is not known is
    /// listed as ftString.
    virtual void FieldsByTable(const std::string& table, TDBFieldList& list) = 0;
    /// Runs the statement: the first column of each row goes to `values`, the second to `captions`;
    /// both are cleared first. EKDBInfoError "Field count must be >= 2".
    virtual void GetSQLValues(const std::string& sql, TStrings& values, TStrings& captions) = 0;
    /// What GetSQLValues does, as a call that may be made in another thread while this object is
    /// used, or gone. Empty when the database can be asked in this thread only, as by default.
    virtual std::function<void(TStrings& values, TStrings& captions)> SQLValuesJob(
        const std::string& sql);
    /// Lines for the structure file, and back.
    virtual void LoadInfo(const TStrings& lines) = 0;
    virtual void SaveInfo(TStrings& lines) = 0;
    /// The foreign keys of all tables, in table order; by default none.
    virtual void GetForeignKeys(std::vector<TDBForeignKey>& list);
    /// True when the name must be written in quote symbols: it is no plain identifier of this
    /// database, or one of its reserved words.
    virtual bool NeedsQuotes(const std::string& name);
    /// What opens and closes a quoted name in this database.
    virtual char QuoteSymbol1() { return '"'; }
    virtual char QuoteSymbol2() { return '"'; }

    /// The columns of a table, read once until another table is asked for or the connection
    /// changes. The list belongs to this object.
    const TDBFieldList& GetFieldList(const std::string& table);
    void GetTableNames(TStrings& list) { TablesByDatabase(list); }
    void GetFieldNamesByTable(const std::string& table, TStrings& list);
    /// Forgets what was read.
    void Update() { ConnectionChanged(); }
    void ConnectionChanged();

    /// Structures that refer to this object watch it.
    const TKLife& Life() const { return life; }

protected:
    /// Part of ConnectionChanged: whatever else was read from the database is forgotten here.
    virtual void ForgetCatalog() {}

private:
    TDBFieldList fields;
    std::string fieldsTable;
    bool fieldsKnown = false;
    TKLife life;
};

} // namespace tern7
