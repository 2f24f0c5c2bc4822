#pragma once

#include <any>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <tern7/core/corekit/object_list.h>
#include <tern7/core/corekit/strings.h>
#include <tern7/core/global/sql_options.h>
#include <tern7/core/structure/field_group.h>

namespace tern7 {

class TKCustomDBStructure;
class TKQuery;
class TKQueryRecord;
class TQueryResult;
class TRFieldList;
struct TRFieldListText;

/// One column of the result: a formula over structure fields. Owned by its list (by whoever took it
/// out, while it is out).
class TResultField {
public:
    explicit TResultField(TRFieldList& owner);
    ~TResultField();
    TResultField(const TResultField&) = delete;
    TResultField& operator=(const TResultField&) = delete;

    TRFieldList* Owner() const { return owner; }

    /// The structure fields in the order of their placeholders; a field that the structure doesn't
    /// know is its placeholder field.
    const TDSFieldList& Fields() const { return fields; }
    int GetDSFieldCount() const { return fields.GetCount(); }
    TDSField* GetDSField(int i) const { return fields.GetItem(i); }
    int GetDSFieldID(int i) const { return ids.at(static_cast<size_t>(i)); }
    void AddDSField(TDSField* field);
    /// A field by its stored ID; one that the structure doesn't know keeps that ID.
    void AddDSFieldByID(int id);
    /// Drops a field; the placeholders behind it are renumbered down by one.
    void DelDSField(int i);
    /// Replaces fields and formula at once (another field chosen: "@1"), and tells the query.
    void SetFields(const std::vector<TDSField*>& newFields, std::string newFormula);

    const std::string& Caption() const { return caption; }
    const std::string& Alias() const { return alias; } ///< empty: none
    const std::string& Formula() const { return formula; }
    TSortingType Sorting() const { return sorting; }
    int Number() const { return number; }       ///< 1-based, see TRFieldList::GenerateNumbers
    int SortOrder() const { return sortOrder; } ///< rank among sorted columns; 0: none yet

    /// A different caption regenerates the alias and tells the query.
    void SetCaption(std::string value);
    /// A different alias is made unique in the list; an empty one clears it.
    void SetAlias(std::string value);
    /// A different formula drops the fields whose placeholders no longer occur and tells the query.
    void SetFormula(std::string value);
    /// The first sorting gives the next rank; switching off keeps it. Tells the query.
    void SetSorting(TSortingType value);
    void SetSortOrder(int value);

    /// The formula with its placeholders replaced in ascending order over the whole text.
    std::string GetSQLExpr() const;
    void AppendSQLExpr(std::string& out) const;
    /// GetSQLExpr and, when there is an alias, " as " and GetSQLAlias.
    std::string GetSelectExpr() const;
    std::string GetSQLAlias() const;
    /// The alias, else the number.
    std::string GetOrderName() const;
    /// True when the expression holds an aggregate function.
    bool GetAgregate() const;
    void GenerateAlias();
    void GenerateCaption();
    /// Copies fields, formula, caption, alias, sorting and rank as they stand. Fields of another
    /// structure are found again by ID, else by compound name, else they are unknown.
    void Assign(const TResultField& source);

    /// The formula as users read it, each field as `{display name}`, or as
    /// `{table display name.field display name}` when that is not unique; "}" in names is doubled.
    std::string GetExpression() const;
    /// Reads the user form: names in braces (display, table and display, or compound name; case
    /// does not matter) become placeholders. EKQueryPanelError "Field not found: %s" with the
    /// position for an unknown or ambiguous name; nothing is changed then.
    void ProcessExpression(std::string_view expression);
    /// Reads an SQL expression: a field's whole SQL expression is "@1"; otherwise the longest runs
    /// of tokens that are a field's SQL expression become placeholders, from left to right;
    /// literals stay.
    void ProcessSQLExpr(std::string_view sql);

    std::any OleObject;

private:
    friend class TRFieldList;
    friend class TKQuery;
    friend class TKQueryRecord;
    void StoreAlias(std::string value);
    /// To be called before contents change.
    void WillChange();
    /// Exchanges contents with a column that is in no list.
    void Exchange(TResultField& twin);
    void ReleaseReferences();
    void RestoreReferences();
    void AddForeignField(const TDSField* field, int id);
    void Tell();

    TRFieldList* owner;
    TDSFieldList fields;
    std::vector<int> ids; // of `fields`, also of those that the structure doesn't know
    std::string caption, alias, formula;
    int number = 0;
    int sortOrder = 0;
    TSortingType sorting = TSortingType::stNoSort;
    bool listed = false;
};

/// The columns of a query.
class TRFieldList : public TKObjectList<TResultField> {
public:
    explicit TRFieldList(TQueryResult* owner) : result(owner) {}
    ~TRFieldList() override;

    TKCustomDBStructure* DbStruct() const;
    TQueryResult* Result() const { return result; }
    TKQuery* Query() const;
    bool QuoteAliases() const { return quoteAliases; }
    bool ASCIIAliases() const { return asciiAliases; }
    /// The list only describes sorting, the select list is "*".
    bool JustSorting() const { return justSorting; }
    void SetJustSorting(bool value);

    /// A new empty field at a position.
    TResultField* New(int i);
    TResultField* Add() { return New(GetCount()); }
    /// A field that is in no list yet.
    std::unique_ptr<TResultField> CreateRField();
    TResultField* Insert(int i, std::string caption, const std::vector<TDSField*>& fields,
                         TSortingType sorting = TSortingType::stNoSort);
    /// A field from the user form of an expression; `field` is added when the expression names
    /// none. On an error the list is as it was.
    TResultField* InsertByExpression(int i, std::string caption, TSortingType sorting,
                                     std::string_view expression, TDSField* field = nullptr);
    TResultField* AddByExpression(std::string caption, TSortingType sorting,
                                  std::string_view expression, TDSField* field = nullptr) {
        return InsertByExpression(GetCount(), std::move(caption), sorting, expression, field);
    }
    /// A field from an SQL expression; without a caption one is generated.
    TResultField* InsertBySQLExpr(int i, std::string caption, TSortingType sorting,
                                  std::string_view sql);
    TResultField* AddBySQLExpr(std::string caption, TSortingType sorting, std::string_view sql) {
        return InsertBySQLExpr(GetCount(), std::move(caption), sorting, sql);
    }
    /// Takes a field out without freeing it, and puts one in.
    std::unique_ptr<TResultField> TakeField(int i);
    TResultField* PutField(int i, std::unique_ptr<TResultField> field);
    std::unique_ptr<TResultField> Erase(int i) { return TakeField(i); }
    void Delete(int i);
    void Move(int from, int to);
    void Clear();

    bool CheckUniqAlias(std::string_view text) const;
    bool CheckUniqCaption(std::string_view text) const;
    /// The text, else the text with the first of 1, 2 ... that makes it unique.
    std::string GetUniqAlias(std::string_view text) const;
    std::string GetUniqCaption(std::string_view text) const;
    void GenerateNumbers();
    void RegenerateAliases();
    int GetSortCount() const;
    /// The captions joined by ", "; "*" when the list is empty.
    std::string GetCaption() const;
    /// Copies flags and fields of another list.
    void Assign(const TRFieldList& source);
    /// Replaces the list by columns that were read.
    void Assign(const TRFieldListText& text);

    /// The sections [RFields], [RField0] ... of a query text.
    void LoadFromStrings(const TStrings& lines);
    void SaveToStrings(TStrings& lines) const;

    std::any OleObject;

private:
    friend class TResultField;
    friend class TQueryResult;
    friend class TKQuery;
    using TKObjectList::DeleteIf; // past the query
    using TKObjectList::FreeAll;
    using TKObjectList::Swap;
    void AliasChanged(const std::string& from, const std::string& to);
    void SuffixIsFree(std::string_view alias);
    void Tell();
    /// Where changes of the query's own list are recorded; none for other lists.
    TKQueryRecord* RecordOfChange();

    TQueryResult* result;
    bool quoteAliases = false;
    bool asciiAliases = true;
    bool justSorting = false;
    std::unordered_map<std::string, int> aliasCounts; // lower case alias -> fields that have it
    mutable std::unordered_map<std::string, int>
        lastSuffix; // lower case text -> suffixes known taken
};

} // namespace tern7
