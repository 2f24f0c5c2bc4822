#include <tern7/core/structure/structure_reader.h>

#include <algorithm>
#include <charconv>
#include <limits>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/structure/structure_format.h>

namespace tern7 {

// --- fields

void TKStructureReader::ReadFields(int count) {
    const size_t expected = std::min(static_cast<size_t>(count), ini.Sections().size());
    fieldsByID.assign(2 * expected + 64, nullptr);
    content->fields.Reserve(expected);
    for (int number = 1; number <= count; ++number) {
        const TKIniSection& section = Numbered("Field:", number);
        const int id = section.Int("ID", -1); // first, as it stands first
        const std::string_view kindName = Trim(section.Raw("Kind"));
        const auto kind = kindName.empty() ? TKFieldKind::kfkData : StrToFldKind(kindName);
        if (!kind) FailValue(section, "Kind", kindName);
        auto field = std::make_unique<TDSField>(structure, *kind);
        field->order = static_cast<uint32_t>(number);
        GiveID(*field, id);
        ReadField(section, *field, number);
        content->fields.Add(std::move(field));
    }
    GiveMissingIDs();
}

void TKStructureReader::ReadField(const TKIniSection& section, TDSField& field, int number) {
    ReadColumn(section, field);
    field.editType = static_cast<TDSEditType>(Ordinal(section, "EditType", 5));
    field.fieldType = static_cast<TFieldType>(Ordinal(section, "FieldType", FieldTypeCount));
    field.fieldSize = Count(section, "FieldSize");
    field.quoted = section.Bool("Quoted");
    field.useInConditions = section.Bool("UIC", true);
    field.useInResult = section.Bool("UIR", true);
    field.operators = OperatorsOf(section);
    ReadEditor(section, field, number);
}

// Early files have FieldName and TableName, the database name of the table.
void TKStructureReader::ReadColumn(const TKIniSection& section, TDSField& field) {
    field.fieldExpr = section.Text("FieldExpr");
    if (field.fieldExpr.empty()) field.fieldExpr = section.Text("FieldName");
    field.displayName = section.Text("DisplayName");
    if (field.kind == TKFieldKind::kfkVirtual) return;
    field.table = ReadTableOf(section);
    // whether the database has the column is not asked: reading needs no connection
    if (!field.fieldExpr.empty()) return;
    // a text that was cut off
    if (!section.Has("FieldExpr") || section.Body().ends_with("FieldExpr="))
        FailValue(section, "FieldExpr", "");
    throw EKDBStructError(FormatMessage(messages::FieldNotInTable, {"", field.table->TableName()}));
}

TDSTable* TKStructureReader::ReadTableOf(const TKIniSection& section) {
    const std::string_view raw = section.Raw("TableAlias");
    if (lastTable && !raw.empty() && lastTable->TableAlias() == raw) return lastTable;
    const std::string alias = section.Text("TableAlias");
    std::string name;
    TDSTable* table = nullptr;
    if (!alias.empty()) {
        table = TableByAlias(alias);
    } else {
        name = section.Text("TableName");
        if (name.empty()) FailValue(section, "TableAlias", "");
        const auto found = tableNames.find(name);
        if (found != tableNames.end()) table = found->second;
    }
    if (!table)
        FailTable(section, alias.empty() ? "TableName" : "TableAlias",
                  alias.empty() ? name : alias);
    lastTable = table;
    return table;
}

// Fields with the same operators have the same text, and share the list.
std::shared_ptr<TKStructureReader::TOperators>
TKStructureReader::OperatorsOf(const TKIniSection& section) {
    const std::string_view raw = section.Raw("Operators");
    if (raw.empty()) {
        const std::string text = section.Text("Operators"); // encoded, or missing
        return ReadOperatorList(text.empty() ? section.Text("Operats") : text);
    }
    const auto [known, isNew] = operatorLists.try_emplace(raw);
    if (isNew) known->second = ReadOperatorList(raw);
    return known->second;
}

std::shared_ptr<TKStructureReader::TOperators>
TKStructureReader::ReadOperatorList(std::string_view commaText) {
    auto list = std::make_shared<TOperators>();
    std::unordered_set<TDSOperator*> seen;
    for (const std::string& name : ParseCommaText(commaText)) {
        const auto op = operatorNames.find(SameText(name, "EqualTo") ? "Equal" : name);
        if (op == operatorNames.end())
            Warn(messages::OperatorNotFound, {name});
        else if (seen.insert(op->second).second)
            list->push_back(op->second);
    }
    return list->empty() ? nullptr : list;
}

// --- value editors

void TKStructureReader::ReadEditor(const TKIniSection& section, TDSField& field, int number) {
    if (field.editType == TDSEditType::etAuto) return;
    field.editor = MakeValueEditor(field.editType, structure);
    if (auto* text = field.ValueEditorAs<TDSTextEditor>()) {
        ReadTextEditor(section, *text);
    } else if (auto* sql = field.ValueEditorAs<TDSSQLEditor>()) {
        sql->params = List(section, "SQLParams");
        for (const std::string& line : Numbered("Field:", number, ".SQL").Lines())
            sql->SQL.emplace_back(UnprotectBodyLine(line));
    } else if (auto* list = field.ValueEditorAs<TDSListEditor>()) {
        list->Items = List(section, "Items");
        list->Values = List(section, "Values");
    } else if (auto* custom = field.ValueEditorAs<TDSCustomEditor>()) {
        custom->CustomData = List(section, "CustomData");
    }
}

void TKStructureReader::ReadTextEditor(const TKIniSection& section, TDSTextEditor& editor) {
    editor.DefValue = section.Text("DefValue");
    if (editor.DefValue.empty()) editor.DefValue = section.Text("DefaultValue"); // early files
    editor.EditKind = static_cast<TTextEditorKind>(Ordinal(section, "EditKind", 4));
    editor.EditMask = section.Text("EditMask");
    editor.FmtVal = static_cast<uint8_t>(Ordinal(section, "FmtVal", 256));
    editor.Options = Count(section, "Options");
}

// --- identifiers

void TKStructureReader::GiveID(TDSField& field, int id) {
    if (id < 0 || FieldByID(id)) {
        withoutID.emplace_back(&field, id);
        return;
    }
    field.id = id;
    content->lastID = std::max(content->lastID, id);
    Remember(&field);
}

void TKStructureReader::Remember(TDSField* field) {
    const auto place = static_cast<size_t>(field->id);
    if (place < fieldsByID.size())
        fieldsByID[place] = field;
    else
        fieldsByLargeID.emplace(field->id, field);
}

// A repeated number means the first field that has it; the others get numbers that no field has.
void TKStructureReader::GiveMissingIDs() {
    int next = content->lastID;
    int low = 1;
    for (const auto& [field, wish] : withoutID) {
        int id = 0;
        if (next < std::numeric_limits<int>::max()) {
            id = ++next;
        } else {
            while (FieldByID(low))
                ++low;
            id = low;
        }
        if (wish != -1)
            Warn(messages::IDGivenTwice,
                 {std::to_string(wish), field->displayName, std::to_string(id)});
        GiveID(*field, id);
    }
}

TDSField* TKStructureReader::FieldByID(int id) const {
    if (id < 0) return nullptr;
    if (static_cast<size_t>(id) < fieldsByID.size()) return fieldsByID[static_cast<size_t>(id)];
    const auto found = fieldsByLargeID.find(id);
    return found == fieldsByLargeID.end() ? nullptr : found->second;
}

// --- groups

void TKStructureReader::ReadGroups(int count) {
    placed.assign(static_cast<size_t>(content->fields.GetCount()), false);
    for (int number = 1; number <= count; ++number) {
        const TKIniSection& section = Numbered("FieldGroup", number);
        content->groups.push_back(std::make_unique<TDSFieldGroup>(structure));
        TDSFieldGroup& group = *content->groups.back();
        group.groupName = section.Text("GroupName");
        ReadGroupFields(section, group.groupName, &group, group.fields);
    }
    WarnOfMore("FieldGroup", "FieldGroups", count);
    if (const TKIniSection* section = Next(structure_format::RootGroupSection))
        ReadGroupFields(*section, section->Name(), nullptr, content->rootFields);
    else if (closesWithRootGroup)
        Warn(messages::SectionNotFound, {structure_format::RootGroupSection}); // cut off?
    PlaceRestInRoot();
}

// A field that is named twice stays where it is named first.
void TKStructureReader::ReadGroupFields(const TKIniSection& section, std::string_view groupName,
                                        TDSFieldGroup* group, std::vector<TDSField*>& fields) {
    std::string_view rest = section.Raw("Fields");
    if (Trim(rest).empty()) return;
    for (bool more = true; more;) {
        const size_t comma = rest.find(',');
        const std::string_view item = Trim(rest.substr(0, comma));
        more = comma != std::string_view::npos;
        if (more) rest.remove_prefix(comma + 1);

        int id = -1;
        const auto [end, error] = std::from_chars(item.data(), item.data() + item.size(), id);
        if (item.empty() || error != std::errc() || end != item.data() + item.size())
            FailValue(section, "Fields", item);
        TDSField* field = FieldByID(id);
        if (!field) {
            Warn(messages::UnknownGroupField, {groupName, item});
            continue;
        }
        if (placed[field->order - 1]) continue;
        placed[field->order - 1] = true;
        field->group = group;
        fields.push_back(field);
    }
}

void TKStructureReader::PlaceRestInRoot() {
    for (const auto& field : content->fields)
        if (!placed[field->order - 1]) content->rootFields.push_back(field.get());
}

} // namespace tern7
