#include <tern7/sql/foreign_keys.h>

#include <algorithm>
#include <string_view>
#include <tuple>
#include <unordered_map>

namespace tern7 {

namespace {

/// Names as the catalog lists them; exactly the name asked for comes before another case of it.
class TSpelling {
public:
    explicit TSpelling(const TStrings& listed) : names(listed) {
        for (const std::string& name : names)
            byText.emplace(name, &name);
    }
    const std::string* Find(const std::string& name) const {
        const auto exact = std::lower_bound(names.begin(), names.end(), name);
        if (exact != names.end() && *exact == name) return &*exact;
        const auto found = byText.find(name);
        return found == byText.end() ? nullptr : found->second;
    }

private:
    const TStrings& names;
    std::unordered_map<std::string_view, const std::string*, TTextHash, TTextEqual> byText;
};

/// A key with what it is sorted by.
struct TEntry {
    TDBForeignKey key;
    std::vector<int> positions;

    auto Order() const { return std::tie(key.Table, positions, key.RefTable, key.RefColumns); }
};

int PositionOf(const TDBFieldList& fields, const std::string& name) {
    int sameText = -1;
    for (int i = 0; i < fields.GetCount(); ++i) {
        if (fields.GetItem(i).FieldName == name) return i;
        if (sameText < 0 && SameText(fields.GetItem(i).FieldName, name)) sameText = i;
    }
    return sameText;
}

/// Puts the names of the columns into the table's spelling; false when one is no column of it.
bool Respell(TStrings& columns, const TDBFieldList& fields, std::vector<int>& positions) {
    for (std::string& column : columns) {
        const int position = PositionOf(fields, column);
        if (position < 0) return false;
        column = fields.GetItem(position).FieldName;
        positions.push_back(position);
    }
    return !columns.empty();
}

} // namespace

void CompleteForeignKeys(
    std::vector<TDBForeignKey>& keys, const TStrings& tables,
    const std::function<const TDBFieldList&(const std::string& table)>& fieldsOf) {
    const TSpelling spelling(tables);
    std::vector<TEntry> entries;
    for (TDBForeignKey& key : keys) {
        const std::string* table = spelling.Find(key.Table);
        const std::string* refTable = spelling.Find(key.RefTable);
        if (!table || !refTable) continue;
        TEntry entry{std::move(key), {}};
        entry.key.Table = *table;
        entry.key.RefTable = *refTable;
        const TDBFieldList& fields = fieldsOf(*table);
        std::vector<int> refPositions;
        if (!Respell(entry.key.Columns, fields, entry.positions) ||
            !Respell(entry.key.RefColumns, fieldsOf(*refTable), refPositions) ||
            entry.key.Columns.size() != entry.key.RefColumns.size())
            continue;
        entry.key.Optional =
            std::any_of(entry.positions.begin(), entry.positions.end(),
                        [&](int position) { return !fields.GetItem(position).Required; });
        entries.push_back(std::move(entry));
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const TEntry& a, const TEntry& b) { return a.Order() < b.Order(); });
    keys.clear();
    for (size_t i = 0; i < entries.size(); ++i)
        if (i == 0 || entries[i].Order() != entries[i - 1].Order()) keys.push_back(entries[i].key);
}

} // namespace tern7
