#include <tern7/core/structure/table.h>

#include <algorithm>

#include <tern7/core/global/messages.h>
#include <tern7/core/structure/structure_indexes.h>

namespace tern7 {

void TDSTable::SetTableName(std::string value) {
    if (value == tableName) return;
    {
        TKeyChange change(*this);
        tableName = std::move(value);
    }
    structure.Changed();
}

void TDSTable::SetDisplayName(std::string value) {
    if (value == displayName) return;
    displayName = std::move(value);
    structure.Indexes().fullNames.Drop();
    structure.Changed();
}

void TDSTable::SetTableAlias(std::string value) {
    if (value == tableAlias) return;
    const TDSTable* holder = structure.TableByName(true, value);
    if (value.empty() || (holder && holder != this))
        throw EKDBStructError(FormatMessage(messages::AliasInUse, {value}));
    if (SameText(structure.defaultMainTable, tableAlias)) structure.defaultMainTable = value;
    {
        TKeyChange change(*this);
        tableAlias = std::move(value);
    }
    structure.Indexes().DropFieldTexts();
    structure.Changed();
}

void TDSTable::SetQuoted(bool value) {
    if (value == quoted) return;
    quoted = value;
    structure.Changed();
}

void TDSTable::SetHints(std::string value) {
    if (value == hints) return;
    hints = std::move(value);
    structure.Changed();
}

void TDSTable::AddLinkRef(TDSLink* link) {
    // a link to itself registers twice in a row
    if (links.empty() || links.back() != link) links.push_back(link);
}

void TDSTable::DelLink(const TDSLink* link) {
    std::erase(links, link);
}

TDSLink* TDSTable::LinkByTable(const TDSTable* other) const {
    if (!other) return nullptr;
    auto leadsTo = [](const TDSTable& from, const TDSTable* to) {
        return [&from, to](const TDSLink* link) { return link->OtherTable(&from) == to; };
    };
    // From the end with fewer links; with several between the two this table's order decides.
    if (other->links.size() < links.size()) {
        const auto first =
            std::find_if(other->links.begin(), other->links.end(), leadsTo(*other, this));
        if (first == other->links.end()) return nullptr;
        if (std::none_of(first + 1, other->links.end(), leadsTo(*other, this))) return *first;
    }
    const auto found = std::find_if(links.begin(), links.end(), leadsTo(*this, other));
    return found == links.end() ? nullptr : *found;
}

TDSLink* TDSTable::LinkByTableAlias(std::string_view alias) const {
    return LinkByTable(structure.TableByName(true, alias));
}

std::string TDSTable::GetSQLExpr() const {
    std::string text;
    if (quoted)
        structure.SQLFormats().AppendQuoted(text, tableName);
    else
        text = tableName;
    if (quoted || tableAlias != tableName) text += " " + tableAlias;
    if (!hints.empty()) text += " " + hints;
    return text;
}

std::string TDSTable::GetCompoundName() const {
    if (SameText(displayName, tableAlias)) return displayName;
    return displayName + " (" + tableAlias + ")";
}

} // namespace tern7
