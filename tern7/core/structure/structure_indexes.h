#pragma once

#include <tern7/core/structure/lookup.h>
#include <tern7/core/structure/structure.h>

namespace tern7 {

/// The lookups of a structure. Each is filled when it is first asked; listed objects then enter,
/// leave and change their keys one by one, so that no sequence of changes and lookups rebuilds
/// anything per step.
struct TKCustomDBStructure::TIndexes {
    TDSLookup<TDSTable> aliases, tableNames;
    TDSLookup<TDSField> ids, compoundNames, displayNames, fullNames, expressions;
    TDSLookup<TDSOperator> operatorNames, templates;
    std::shared_ptr<std::vector<TDSOperator*>> applied[FieldTypeCount]; // shared by fields

    void Add(TDSTable* table);
    void Remove(const TDSTable* table);
    void Add(TDSOperator* op);
    void Remove(const TDSOperator* op);
    void AddID(TDSField* field);
    void RemoveID(const TDSField* field);
    void AddTexts(TDSField* field);
    void RemoveTexts(const TDSField* field);
    void DropFields();
    void DropFieldTexts();
    void DropTables();
    void DropOperators();
    void DropApplied();

    template <class T, class Hash>
    void Fill(TDSLookup<T>& lookup, const TKObjectList<T>& objects, Hash hash) {
        if (lookup.Built()) return;
        lookup.Start(static_cast<size_t>(objects.GetCount()));
        for (const auto& object : objects)
            lookup.Add(object.get(), hash(*object), object->order);
    }
};

/// While it lives, the field is in no lookup by text: one of the texts is being changed.
class TDSField::TKeyChange {
public:
    explicit TKeyChange(TDSField& changing) : field(changing) {
        if (field.order) field.structure.Indexes().RemoveTexts(&field);
    }
    ~TKeyChange() {
        if (field.order) field.structure.Indexes().AddTexts(&field);
    }
    TKeyChange(const TKeyChange&) = delete;
    TKeyChange& operator=(const TKeyChange&) = delete;

private:
    TDSField& field;
};

class TDSTable::TKeyChange {
public:
    explicit TKeyChange(TDSTable& changing) : table(changing) {
        if (table.index >= 0) table.structure.Indexes().Remove(&table);
    }
    ~TKeyChange() {
        if (table.index >= 0) table.structure.Indexes().Add(&table);
    }
    TKeyChange(const TKeyChange&) = delete;
    TKeyChange& operator=(const TKeyChange&) = delete;

private:
    TDSTable& table;
};

class TDSOperator::TKeyChange {
public:
    explicit TKeyChange(TDSOperator& changing) : op(changing) {
        if (op.order) op.structure.Indexes().Remove(&op);
    }
    ~TKeyChange() {
        if (op.order) op.structure.Indexes().Add(&op);
    }
    TKeyChange(const TKeyChange&) = delete;
    TKeyChange& operator=(const TKeyChange&) = delete;

private:
    TDSOperator& op;
};

/// The observers' references into the structure are released while it lives; nested: once.
class TKCustomDBStructure::TReferencesReleased {
public:
    explicit TReferencesReleased(TKCustomDBStructure& owner);
    ~TReferencesReleased();
    TReferencesReleased(const TReferencesReleased&) = delete;
    TReferencesReleased& operator=(const TReferencesReleased&) = delete;

private:
    TKCustomDBStructure& structure;
};

} // namespace tern7
