#include <tern7/core/structure/structure.h>

#include <algorithm>

#include <tern7/core/global/messages.h>
#include <tern7/core/structure/default_operators.h>
#include <tern7/core/structure/structure_indexes.h>
#include <tern7/core/structure/structure_paths.h>

namespace tern7 {

TKCustomDBStructure::TKCustomDBStructure()
    : indexes(std::make_unique<TIndexes>()), linkedSets(std::make_unique<TLinkedSets>()) {
    using enum TFieldType;
    quotedTypes = {ftString, ftBoolean, ftDate,      ftTime,       ftDateTime,
                   ftMemo,   ftFmtMemo, ftFixedChar, ftWideString, ftTimeStamp};
    sqlFormats.changed = [this] {
        indexes->expressions.Drop();
        Changed();
    };
    placeholderField = std::make_unique<TDSField>(*this, TKFieldKind::kfkVirtual);
    placeholderField->displayName = messages::UnrecognizedField;
    placeholderOperator = std::make_unique<TDSOperator>(*this);
    placeholderOperator->displayName = messages::UnrecognizedOperator;
    for (const TDefaultOperator& row : DefaultOperators)
        defOperators.push_back(std::string(row.name) + "=" + std::string(row.caption));
    AddDefOperators(false);
}

TKCustomDBStructure::~TKCustomDBStructure() {
    const std::vector<TDSObserver*> present = observers;
    for (TDSObserver* observer : present)
        if (std::find(observers.begin(), observers.end(), observer) != observers.end()) {
            observer->ReleaseReferences();
            observer->StructureDestroyed();
        }
    rootGroup.fields.clear();
    for (const auto& group : groups)
        group->fields.clear(); // nothing moves to the root group any more
}

// --- notification

void TKCustomDBStructure::Changed() {
    ++revision;
    changePending = true;
    if (updateNesting == 0) Notify();
}

void TKCustomDBStructure::EndUpdate() {
    if (updateNesting > 0 && --updateNesting == 0 && changePending) Notify();
}

// A handler may remove itself, delete what the structure holds, or the structure.
void TKCustomDBStructure::Notify() {
    changePending = false;
    const std::weak_ptr<const void> alive = life.Watch();
    const std::vector<TDSObserver*> present = observers;
    for (TDSObserver* observer : present) {
        if (std::find(observers.begin(), observers.end(), observer) != observers.end())
            observer->StructureChanged();
        if (alive.expired()) return;
    }
    OnChange(*this);
}

void TKCustomDBStructure::AddObserver(TDSObserver* observer) {
    if (std::find(observers.begin(), observers.end(), observer) == observers.end())
        observers.push_back(observer);
}

void TKCustomDBStructure::RemoveObserver(TDSObserver* observer) {
    std::erase(observers, observer);
    std::erase(released, observer);
}

TKCustomDBStructure::TReferencesReleased::TReferencesReleased(TKCustomDBStructure& owner)
    : structure(owner) {
    if (structure.releaseNesting++ > 0) return;
    structure.released = structure.observers;
    for (TDSObserver* observer : std::vector<TDSObserver*>(structure.released))
        observer->ReleaseReferences();
}

TKCustomDBStructure::TReferencesReleased::~TReferencesReleased() {
    if (--structure.releaseNesting > 0) return;
    while (!structure.released.empty()) {
        TDSObserver* observer = structure.released.front();
        structure.released.erase(structure.released.begin());
        observer->RestoreReferences();
    }
}

TDSUpdate::~TDSUpdate() noexcept(false) {
    if (std::uncaught_exceptions() == exceptions) {
        structure.EndUpdate();
        return;
    }
    try {
        structure.EndUpdate();
    } catch (...) { // the exception under way counts
    }
}

// --- the whole

void TKCustomDBStructure::ClearStructure() {
    TDSUpdate update(*this);
    {
        TReferencesReleased references(*this);
        ForgetPaths();
        indexes->DropFields();
        indexes->DropTables();
        rootGroup.fields.clear();
        for (const auto& group : groups)
            group->fields.clear();
        groups.Clear();
        for (const auto& table : tables)
            table->links.clear();
        links.Clear();
        fields.Clear();
        tables.Clear();
        MakeLinkedSets();
        lastFieldOrder = 0;
        defaultMainTable.clear();
    }
    UpdateDefOperators();
    Changed();
}

bool TKCustomDBStructure::EditStructure() {
    return Services.editStructure && Services.editStructure(*this);
}

void TKCustomDBStructure::Assign(const TKCustomDBStructure& source) {
    if (&source != this) SetStructString(source.GetStructString());
}

// --- settings

void TKCustomDBStructure::SetQuotedTypes(TQuotedTypes types) {
    if (types == quotedTypes) return;
    quotedTypes = types;
    Changed();
}

void TKCustomDBStructure::SetDefaultMainTable(std::string alias) {
    if (alias == defaultMainTable) return;
    defaultMainTable = std::move(alias);
    Changed();
}

void TKCustomDBStructure::SetRootFieldsFirst(bool value) {
    if (value == rootFieldsFirst) return;
    rootFieldsFirst = value;
    Changed();
}

void TKCustomDBStructure::SetDatabaseInfo(TKDBInfo* info) {
    if (info == DatabaseInfo()) return;
    if (info && !databaseLines.empty()) {
        info->LoadInfo(databaseLines); // may fail: nothing is changed yet
        databaseLines.clear();
    }
    databaseInfo = info;
    databaseLife = info ? info->Life().Watch() : std::weak_ptr<const void>();
    Changed();
}

} // namespace tern7
