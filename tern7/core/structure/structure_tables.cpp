#include <tern7/core/global/messages.h>
#include <tern7/core/structure/structure_indexes.h>
#include <tern7/core/structure/structure_paths.h>

namespace tern7 {

// --- tables

std::string TKCustomDBStructure::UniqueAlias(const std::string& wish) const {
    std::string alias = wish;
    for (int number = 2; TableByName(true, alias); ++number)
        alias = wish + "_" + std::to_string(number);
    return alias;
}

TDSTable* TKCustomDBStructure::AddTable(std::string name, std::string alias) {
    if (alias.empty()) alias = UniqueAlias(name);
    if (TableByName(true, alias))
        throw EKDBStructError(FormatMessage(messages::AliasInUse, {alias}));
    auto made = std::make_unique<TDSTable>(*this);
    made->displayName = name;
    made->tableName = std::move(name);
    made->tableAlias = std::move(alias);
    made->index = tables.GetCount();
    TDSTable* table = tables.Add(std::move(made));
    indexes->Add(table);
    TableAdded(*table);
    Changed();
    return table;
}

void TKCustomDBStructure::DelTable(int index) {
    TDSTable* table = GetTable(index);
    TDSUpdate update(*this);
    TReferencesReleased references(*this);
    DeleteLinksOf(table);
    DeleteFieldsOf(table);
    if (SameText(defaultMainTable, table->TableAlias())) defaultMainTable.clear();
    indexes->DropTables();
    ForgetPaths();
    tables.Delete(index);
    for (int i = index; i < tables.GetCount(); ++i)
        tables[i]->index = i;
    Changed();
}

TDSTable* TKCustomDBStructure::GetTable(int index) const {
    if (index < 0 || index >= tables.GetCount())
        throw EKDBStructError(FormatMessage(messages::InvalidTableIndex, {std::to_string(index)}));
    return tables[index];
}

void TKCustomDBStructure::ClearTables() {
    TDSUpdate update(*this);
    TReferencesReleased references(*this);
    for (const auto& table : tables)
        table->links.clear();
    links.Clear();
    DeleteFieldsOf(nullptr);
    defaultMainTable.clear();
    indexes->DropTables();
    ForgetPaths();
    tables.Clear();
    MakeLinkedSets();
    Changed();
}

void TKCustomDBStructure::GetTableNames(bool aliases, TStrings& names,
                                        std::vector<TDSTable*>* objects) const {
    names.clear();
    if (objects) objects->clear();
    for (const auto& table : tables) {
        names.push_back(aliases ? table->TableAlias() : table->DisplayName());
        if (objects) objects->push_back(table.get());
    }
}

// --- links

TDSLink* TKCustomDBStructure::AddLinkByRef(std::unique_ptr<TDSLink> added) {
    for (const TDSTable* table : {added->table1, added->table2})
        if (!table || &table->Structure() != this)
            throw EKDBStructError(
                FormatMessage(messages::NoSuchTable, {table ? table->TableAlias() : ""}));
    TDSLink* link = links.Add(std::move(added));
    link->listed = true;
    link->table1->AddLinkRef(link);
    link->table2->AddLinkRef(link);
    TablesLinked(*link->table1, *link->table2);
    Changed();
    return link;
}

TDSLink* TKCustomDBStructure::AddLink(std::string_view alias1, std::string_view alias2,
                                      TDSLinkType type) {
    auto tableOf = [this](std::string_view alias) {
        TDSTable* table = TableByName(true, alias);
        if (!table) throw EKDBStructError(FormatMessage(messages::NoSuchTable, {alias}));
        return table;
    };
    auto link = std::make_unique<TDSLink>(*this);
    link->table1 = tableOf(alias1);
    link->table2 = tableOf(alias2);
    link->linkType = type;
    return AddLinkByRef(std::move(link));
}

TDSLink* TKCustomDBStructure::FindLink(std::string_view alias1, std::string_view alias2) const {
    const TDSTable* table = TableByName(true, alias1);
    return table ? table->LinkByTableAlias(alias2) : nullptr;
}

void TKCustomDBStructure::DelLink(int index) {
    TDSLink* link = GetLink(index);
    TDSUpdate update(*this);
    TReferencesReleased references(*this);
    link->table1->DelLink(link);
    link->table2->DelLink(link);
    ForgetPaths();
    links.Delete(index);
    Changed();
}

TDSLink* TKCustomDBStructure::GetLink(int index) const {
    if (index < 0 || index >= links.GetCount())
        throw EKDBStructError(FormatMessage(messages::InvalidLinkIndex, {std::to_string(index)}));
    return links[index];
}

void TKCustomDBStructure::DeleteLinksOf(const TDSTable* table) {
    if (table->links.empty()) return;
    auto touches = [table](const TDSLink& link) {
        return link.table1 == table || link.table2 == table;
    };
    for (TDSLink* link : std::vector<TDSLink*>(table->links))
        std::erase_if(link->OtherTable(table)->links,
                      [&](const TDSLink* other) { return touches(*other); });
    links.DeleteIf(touches);
}

} // namespace tern7
