#include <tern7/core/metadata/db_info.h>

namespace tern7 {

const TDBFieldInfo* TDBFieldList::FindByName(std::string_view name) const {
    for (const TDBFieldInfo& item : items)
        if (SameText(item.FieldName, name)) return &item;
    return nullptr;
}

std::function<void(TStrings&, TStrings&)> TKDBInfo::SQLValuesJob(const std::string&) { return {}; }

void TKDBInfo::GetForeignKeys(std::vector<TDBForeignKey>& list) { list.clear(); }

bool TKDBInfo::NeedsQuotes(const std::string& name) {
    if (name.empty() || IsDigit(name[0])) return true;
    for (char c : name)
        if (!IsLetter(c) && !IsDigit(c) && c != '_') return true;
    return false;
}

const TDBFieldList& TKDBInfo::GetFieldList(const std::string& table) {
    if (!fieldsKnown || table != fieldsTable) {
        fields.Clear();
        fieldsKnown = false;
        FieldsByTable(table, fields);
        fieldsTable = table;
        fieldsKnown = true;
    }
    return fields;
}

void TKDBInfo::GetFieldNamesByTable(const std::string& table, TStrings& list) {
    list.clear();
    for (const TDBFieldInfo& field : GetFieldList(table)) list.push_back(field.FieldName);
}

void TKDBInfo::ConnectionChanged() {
    fields.Clear();
    fieldsKnown = false;
    ForgetCatalog();
}

} // namespace tern7
