#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <tern7/core/corekit/life.h>
#include <tern7/core/corekit/object_list.h>
#include <tern7/core/global/errors.h>
#include <tern7/core/global/events.h>
#include <tern7/core/global/services.h>
#include <tern7/core/metadata/db_info.h>
#include <tern7/core/structure/field.h>
#include <tern7/core/structure/field_group.h>
#include <tern7/core/structure/link.h>
#include <tern7/core/structure/operator.h>
#include <tern7/core/structure/path.h>
#include <tern7/core/structure/sql_formats.h>
#include <tern7/core/structure/table.h>

namespace tern7 {

/// Told about a structure by whoever refers into it (queries do). References are dropped before
/// objects of the structure are freed and found again, by ID and name, when that is done; both
/// calls come in pairs, once for a whole reload. Neither of them throws or changes the structure.
class TDSObserver {
public:
    virtual ~TDSObserver() = default;
    /// Objects are about to be freed: note IDs and names, keep no pointer into the structure.
    virtual void ReleaseReferences() = 0;
    /// The structure is whole again: look up what was noted.
    virtual void RestoreReferences() = 0;
    /// Something changed (once at the end of nested updates).
    virtual void StructureChanged() = 0;
    /// The structure is going away; ReleaseReferences was called before, RestoreReferences will not
    /// be.
    virtual void StructureDestroyed() = 0;
};

/// The part of a database that end users may query. Owns its tables, fields, groups, links and
/// operators. Lookups by name ignore case, are indexed, and return none when absent; access by an
/// index out of range raises EKDBStructError.
class TKCustomDBStructure {
public:
    TKCustomDBStructure();
    virtual ~TKCustomDBStructure();
    TKCustomDBStructure(const TKCustomDBStructure&) = delete;
    TKCustomDBStructure& operator=(const TKCustomDBStructure&) = delete;

    // --- tables
    /// EKDBStructError when the alias is in use. An empty alias becomes the name, made unique.
    TDSTable* AddTable(std::string name, std::string alias);
    /// Frees the table, the links that touch it and its fields; later tables move down.
    void DelTable(int index);
    TDSTable* GetTable(int index) const;
    int GetTableCount() const { return tables.GetCount(); }
    /// By alias (`byAlias` true) or by table name (the first in list order).
    TDSTable* TableByName(bool byAlias, std::string_view name) const;
    /// All tables of a table name, in list order.
    std::vector<TDSTable*> TablesByName(std::string_view name) const;
    void ClearTables();
    /// Fills `names` with aliases or display names and `objects` with the tables.
    void GetTableNames(bool aliases, TStrings& names,
                       std::vector<TDSTable*>* objects = nullptr) const;

    // --- fields
    /// A new field with the next ID, at the end of the root group, without operators. `table` must
    /// be given for a data field.
    TDSField* AddField(TKFieldKind kind, std::string fieldExpr, std::string displayName,
                       TDSTable* table);
    void DelField(int index);
    TDSField* GetField(int index) const;
    int GetFieldCount() const { return fields.GetCount(); }
    const TKObjectList<TDSField>& Fields() const { return fields; }
    TDSField* FieldByID(int id) const;
    /// By display name (`byDisplayName` true) or by compound name; the first in list order.
    TDSField* FieldByName(bool byDisplayName, std::string_view name) const;
    /// The first field in list order whose SQL expression is the text, ignoring case and blanks.
    TDSField* FieldBySQLExpr(std::string_view expression) const;
    /// The tables whose alias stands before a point in an SQL expression, outside literals, in
    /// order of appearance.
    std::vector<TDSTable*> TablesOfExpression(std::string_view expression) const;
    /// The fields that share a display name, in list order.
    std::vector<TDSField*> FieldsByDisplayName(std::string_view name) const;
    /// True when another field has the display name of this one; constant time.
    bool IsNameShared(const TDSField& field) const;
    /// By full name (table display name, a blank, field display name); the first in list order.
    TDSField* FieldByFullName(std::string_view name) const;
    void GetFieldNames(bool compound, TStrings& names,
                       std::vector<TDSField*>* objects = nullptr) const;
    /// Adds a table with all its columns as the database has them (types, sizes, quoting, applied
    /// operators, readable display names); the fields too when AutoAddFields. EKDBStructError
    /// "DatabaseInfo is not specified".
    TDSTable* AddTableFromDatabase(const std::string& name, std::string alias = {});

    // --- links
    /// Adds a link and registers it with both its tables.
    TDSLink* AddLinkByRef(std::unique_ptr<TDSLink> link);
    /// Makes and adds a link between two tables (aliases); EKDBStructError "No such table %s".
    TDSLink* AddLink(std::string_view alias1, std::string_view alias2,
                     TDSLinkType type = TDSLinkType::ltInner);
    /// The first link between two tables in either direction.
    TDSLink* FindLink(std::string_view alias1, std::string_view alias2) const;
    void DelLink(int index);
    TDSLink* GetLink(int index) const;
    int GetLinkCount() const { return links.GetCount(); }

    // --- operators
    TDSOperator* AddOperator(std::string name = {});
    void DelOperator(int index);
    TDSOperator* GetOperator(int index) const;
    int GetOperatCount() const { return operators.GetCount(); }
    TDSOperator* OperatorByName(std::string_view name) const;
    int OperatorIndexByName(std::string_view name) const; ///< -1 when absent
    TDSOperator* OperatorByExpr(std::string_view sqlTemplate) const;
    int IndexOfOperator(const TDSOperator* op) const { return operators.IndexOf(op); }
    void GetOperatorNames(TStrings& names, std::vector<TDSOperator*>* objects = nullptr) const;
    void ClearOperators();
    /// Adds the default operators; with `update` those that exist are overwritten in place.
    void AddDefOperators(bool update);
    /// Adds the default operators that a loaded structure lacks, at the end.
    void MergeDefOperators();
    void UpdateDefOperators(); ///< display texts of the default operators from DefOperators
    void UpdateOperatorCaption(std::string_view name, std::string caption);
    void DeleteOperatorByName(std::string_view name);
    const TStrings& DefOperators() const { return defOperators; }
    void SetDefOperators(TStrings lines);
    TExOperators ExOperators() const { return exOperators; }
    void SetExOperators(TExOperators value);

    /// Stand where a query refers to something that this structure doesn't know; in no list.
    TDSField* PlaceholderField() const { return placeholderField.get(); }
    TDSOperator* PlaceholderOperator() const { return placeholderOperator.get(); }

    // --- groups
    TDSFieldGroupList& FieldGroups() { return groups; }
    const TDSFieldGroupList& FieldGroups() const { return groups; }
    /// The fields outside every group.
    TDSFieldList& RootGroup() { return rootGroup; }
    const TDSFieldList& RootGroup() const { return rootGroup; }

    // --- paths
    /// The shortest chain of links between two tables; of several, the one whose links were added
    /// first. EKDBStructError "No such table %s", "Can not find path between tables". The path
    /// belongs to the structure and is overwritten by the next call. O(tables + links) for the
    /// first path from a table, the length of the path for further ones until the structure
    /// changes.
    const TDSPath& GetPath(std::string_view startAlias, std::string_view endAlias);
    const TDSPath& GetPath(const TDSTable& start, const TDSTable& end);
    /// The shortest one that does not join any of the pairs directly; pairs with an unknown alias
    /// count for nothing. As cheap as the others while the same pairs are asked for.
    const TDSPath& GetPath(const TDSTable& start, const TDSTable& end,
                           const TAvoidedJoins& avoided);

    // --- the whole
    /// Deletes links, fields, groups and tables, forgets the default main table, and refreshes the
    /// default operators' display texts; the operators stay. Linear.
    void ClearStructure();
    /// True with fewer than two fields; one field counts as empty on purpose.
    bool GetEmpty() const { return fields.GetCount() < 2; }
    /// Opens the structure editor through the services; false when there is none or nothing
    /// changed.
    bool EditStructure();
    /// Replaces tables, fields, groups, links and operators by those of another structure, through
    /// its text.
    void Assign(const TKCustomDBStructure& source);
    void AssignTo(TKCustomDBStructure& target) const { target.Assign(*this); }

    // --- text form
    /// Warnings of the last reading, in words: newer version, repeated IDs, other encoding.
    const TStrings& LoadWarnings() const { return loadWarnings; }
    /// Reads a structure text: it replaces tables, fields, groups, links, operators and the default
    /// main table; SQL formats only when the text has some. On any error EKDBStructError, and this
    /// structure is as it was. Linear in the text.
    void SetStructString(std::string_view text);
    std::string GetStructString() const;
    void LoadFromStrings(const TStrings& lines);
    void SaveToStrings(TStrings& lines) const;
    void LoadFromFile(const std::string& fileName);
    void SaveToFile(const std::string& fileName) const;

    // --- settings
    TSQLFormats& SQLFormats() { return sqlFormats; }
    const TSQLFormats& SQLFormats() const { return sqlFormats; }
    TQuotedTypes QuotedTypes() const { return quotedTypes; }
    void SetQuotedTypes(TQuotedTypes types);
    bool IsQuotedType(TFieldType type) const { return quotedTypes.Contains(type); }
    double FileVersion() const { return fileVersion; }
    const std::string& DefaultMainTable() const { return defaultMainTable; }
    void SetDefaultMainTable(std::string alias);
    bool RootFieldsFirst() const { return rootFieldsFirst; }
    void SetRootFieldsFirst(bool value);
    /// Not owned; none when it was destroyed. One that is set gets the lines that a text read
    /// without it had for it; what LoadInfo raises passes through, and the former one stays.
    TKDBInfo* DatabaseInfo() const { return databaseLife.expired() ? nullptr : databaseInfo; }
    void SetDatabaseInfo(TKDBInfo* info);

    bool AutoAddFields = true;
    bool StoreStruct = true;
    std::string HelpFileName;
    int SEHelpContext = 0;
    std::string InitialSEPath;
    TEvent<TKCustomDBStructure&> OnSEHelpClick;
    TEvent<TKCustomDBStructure&> OnChange;
    TKServices Services;

    // --- notification
    /// Between BeginUpdate and EndUpdate Changed() only notes; the outermost EndUpdate tells the
    /// observers and raises OnChange once, and only if something changed. A handler may delete
    /// objects of the structure, or the structure.
    void BeginUpdate() { ++updateNesting; }
    void EndUpdate();
    /// Something changed: raises the revision, then tells observers and OnChange (see BeginUpdate).
    void Changed();
    /// Goes up with every change: the key of whatever is computed from the structure and kept.
    uint64_t Revision() const { return revision; }
    void AddObserver(TDSObserver* observer);
    void RemoveObserver(TDSObserver* observer);

private:
    friend class TDSTable;
    friend class TDSField;
    friend class TDSLink;
    friend class TDSOperator;
    friend class TDSFieldGroup;
    friend class TDSFieldGroupList;
    friend class TKStructureReader;
    friend class TKStructureWriter;
    friend void ImportDatabase(TKCustomDBStructure& structure);
    class TReferencesReleased; // releases the observers' references while it lives

    struct TIndexes;   // lookups, built when first asked and kept up to date
    struct TPathTrees; // join paths found so far, kept until tables or links change
    struct TDetours;   // those that avoid joins
    class TLinkedSets; // tables between which there is no path
    struct TContent;   // what a text says, before it replaces the present objects

    TIndexes& Indexes() const { return *indexes; }
    void List(TDSTable* table);
    void List(TDSField* field);
    void List(TDSOperator* op);
    void ForgetPaths();
    void RequireOwn(const TDSTable& table) const;
    void TableAdded(TDSTable& table);
    void TablesLinked(const TDSTable& a, const TDSTable& b);
    void MakeLinkedSets();
    void DeleteFieldsOf(const TDSTable* table);
    void DeleteLinksOf(const TDSTable* table);
    void Notify();
    int NextID();
    std::string UniqueAlias(const std::string& wish) const;
    std::string DefaultCaption(std::string_view name, std::string_view otherwise) const;
    void FillDefOperator(TDSOperator& op, size_t row) const;
    void AddDefOperator(size_t row, bool update);
    std::shared_ptr<std::vector<TDSOperator*>> AppliedOperators(TFieldType type);
    std::unique_ptr<TContent> ReadText(std::string_view text);
    void Adopt(std::unique_ptr<TContent> content);

    TKObjectList<TDSTable> tables;
    TKObjectList<TDSField> fields;
    TKObjectList<TDSLink> links;
    TKObjectList<TDSOperator> operators;
    TDSPath path{*this};
    TDSFieldGroupList groups{*this};
    TDSFieldGroup rootGroup{*this};
    TStrings defOperators;
    TExOperators exOperators = TExOperators::All();
    TSQLFormats sqlFormats;
    TKDBInfo* databaseInfo = nullptr;
    std::weak_ptr<const void> databaseLife;
    TQuotedTypes quotedTypes;
    double fileVersion = 3.3;
    std::string defaultMainTable;
    bool rootFieldsFirst = false;
    std::unique_ptr<TDSField> placeholderField;
    std::unique_ptr<TDSOperator> placeholderOperator;
    TStrings loadWarnings;
    TStrings databaseLines; // of a text that was read without DatabaseInfo
    int lastID = 0;         // the highest ID ever given or read
    int freeID = 1;         // the IDs below are used, when lastID can not rise any more
    uint32_t lastFieldOrder = 0;
    uint32_t lastOperatorOrder = 0;
    int updateNesting = 0;
    bool changePending = false;
    uint64_t revision = 1;
    std::vector<TDSObserver*> observers;
    std::vector<TDSObserver*> released; // those that RestoreReferences is owed to
    int releaseNesting = 0;
    TKLife life; // tells Notify that it is gone
    mutable std::unique_ptr<TIndexes> indexes;
    mutable std::unique_ptr<TPathTrees> pathTrees;
    std::unique_ptr<TDetours> detours;       // of the joins that were avoided last
    std::unique_ptr<TLinkedSets> linkedSets; // never null
};

/// Keeps notification together: BeginUpdate while it lives. The last statement of a scope that
/// holds one may end the structure's life, see BeginUpdate.
class TDSUpdate {
public:
    explicit TDSUpdate(TKCustomDBStructure& owner) : structure(owner) { structure.BeginUpdate(); }
    ~TDSUpdate() noexcept(false);
    TDSUpdate(const TDSUpdate&) = delete;
    TDSUpdate& operator=(const TDSUpdate&) = delete;

private:
    TKCustomDBStructure& structure;
    const int exceptions = std::uncaught_exceptions();
};

/// Makes a structure of a whole database: every table with its columns, one group per table, links
/// from foreign keys (a second key to the same table, or a key of a table to itself, leads to a
/// copy of the table under its own alias), readable display names, formats `yyyy-mm-dd` and
/// `hh:nn:ss`. Replaces what the structure holds but its operators; errors of the database pass
/// through and leave the structure as it was; EKDBStructError "DatabaseInfo is not specified".
void ImportDatabase(TKCustomDBStructure& structure);

/// "order_id" as people write it: "Order id".
std::string ReadableName(std::string_view name);

} // namespace tern7
