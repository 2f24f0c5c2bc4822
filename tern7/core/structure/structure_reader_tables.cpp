#include <tern7/core/structure/structure_reader.h>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/structure/structure_format.h>

namespace tern7 {

void TKStructureReader::ReadTables(int count) {
    for (int number = 1; number <= count; ++number) {
        const TKIniSection& section = Numbered("Table:", number);
        auto table = std::make_unique<TDSTable>(structure);
        ReadTable(section, *table);
        table->index = content->tables.GetCount();
        aliases.emplace(table->tableAlias, table.get());
        tableNames.try_emplace(table->tableName, table.get());
        if (std::string links = section.Text("Links"); !links.empty()) {
            linkTasks.push_back({table.get(), &section, section.Text("Alias"), std::move(links)});
            // the link sections stand between this table and the next
            while (cursor < ini.Sections().size() &&
                   StartsText(ini.Sections()[cursor].Name(), "Link:"))
                ++cursor;
        }
        content->tables.Add(std::move(table));
    }
    for (const TLinkTask& task : linkTasks)
        ReadLinks(task);
}

void TKStructureReader::ReadTable(const TKIniSection& section, TDSTable& table) {
    table.tableName = section.Text("Name");
    table.displayName = section.Text("DisplayName");
    table.tableAlias = section.Text("Alias");
    table.quoted = section.Bool("Quoted");
    table.hints = section.Text("Hints");
    if (table.tableAlias.empty()) {
        table.tableAlias = FreeAlias(table.tableName);
    } else if (TableByAlias(table.tableAlias)) {
        const std::string alias = FreeAlias(table.tableAlias);
        Warn(messages::AliasGivenTwice, {table.tableAlias, alias});
        table.tableAlias = alias;
    }
}

std::string TKStructureReader::FreeAlias(const std::string& wish) const {
    std::string alias = wish;
    for (int number = 2; TableByAlias(alias); ++number)
        alias = wish + "_" + std::to_string(number);
    return alias;
}

TDSTable* TKStructureReader::TableByAlias(std::string_view alias) const {
    const auto found = aliases.find(alias);
    return found == aliases.end() ? nullptr : found->second;
}

// Aliases may hold a dash, so that two pairs of tables may have link sections of one name: those
// behind the table are its own. The k-th mention of a table is the k-th section of the name.
void TKStructureReader::ReadLinks(const TLinkTask& task) {
    std::unordered_map<const TDSTable*, size_t> behind; // the last section of each pair
    size_t expected = ini.PositionOf(*task.section);
    for (const std::string& alias : ParseCommaText(task.aliases)) {
        if (alias.empty()) FailValue(*task.section, "Links", task.aliases);
        TDSTable* other = TableByAlias(alias);
        if (!other) FailTable(*task.section, "Links", alias);
        const std::string name = structure_format::LinkSection(
            task.alias.empty() ? task.table->tableAlias : task.alias, other->tableAlias);
        const auto [from, isFirst] = behind.try_emplace(other, ini.PositionOf(*task.section));
        const TKIniSection* section = nullptr;
        if (++expected < ini.Sections().size() && ini.Sections()[expected].Name() == name)
            section = &ini.Sections()[expected];
        else
            section = ini.FindFrom(from->second, name);
        if (!section || (!isFirst && ini.PositionOf(*section) < from->second)) FailSection(name);
        from->second = ini.PositionOf(*section) + 1;

        auto link = std::make_unique<TDSLink>(structure);
        link->table1 = task.table;
        link->table2 = other;
        ReadLink(*section, *link);
        link->listed = true;
        task.table->AddLinkRef(link.get());
        other->AddLinkRef(link.get());
        content->links.Add(std::move(link));
    }
}

void TKStructureReader::ReadLink(const TKIniSection& section, TDSLink& link) {
    link.fields1 = List(section, "FldName1");
    link.fields2 = List(section, "FldName2");
    link.operators = List(section, "Operators");
    link.quoteFields = section.Bool("QuoteFields");
    const std::string_view type = Trim(section.Raw("LinkType"));
    if (type.empty()) return;
    for (size_t i = 0; i < structure_format::LinkTypes.size(); ++i)
        if (SameText(type, structure_format::LinkTypes[i])) {
            link.linkType = static_cast<TDSLinkType>(i);
            return;
        }
    FailValue(section, "LinkType", type);
}

} // namespace tern7
