#include <tern7/core/structure/structure_writer.h>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/corekit/numbers.h>
#include <tern7/core/structure/structure_format.h>

namespace tern7 {

std::string TKStructureWriter::Write() {
    WriteMain();
    int number = 0;
    for (const auto& op : structure.operators)
        WriteOperator(*op, ++number);
    number = 0;
    for (const auto& table : structure.tables)
        WriteTable(*table, ++number);
    number = 0;
    for (const auto& field : structure.fields)
        WriteField(*field, ++number);
    number = 0;
    for (const auto& group : structure.groups) {
        Numbered("FieldGroup", ++number);
        out.Text("GroupName", group->GroupName());
        WriteGroupFields(*group);
    }
    out.Section(structure_format::RootGroupSection);
    WriteGroupFields(structure.rootGroup);
    WriteDatabaseLines();
    WriteFormats();
    return out.Take();
}

void TKStructureWriter::Numbered(std::string_view prefix, int number, std::string_view suffix) {
    std::string name(prefix);
    out.Section(name.append(std::to_string(number)).append(suffix));
}

void TKStructureWriter::List(std::string_view key, const TStrings& items) {
    out.Text(key, ComposeCommaText(items));
}

// Empty lines at the end are left out: a reader can not tell them from those between sections.
void TKStructureWriter::Body(const TStrings& lines) {
    TStrings single = SplitLines(JoinStrings(lines, "\n"));
    while (!single.empty() && single.back().empty())
        single.pop_back();
    for (const std::string& line : single)
        out.BodyLine(line);
}

void TKStructureWriter::WriteMain() {
    out.Section(structure_format::MainSection);
    out.Key("Version", XFloatToStr(structure_format::Version));
    out.Key("OperatCount", structure.GetOperatCount());
    out.Key("TableCount", structure.GetTableCount());
    out.Key("FieldCount", structure.GetFieldCount());
    out.Key("FieldGroups", structure.groups.GetCount());
    out.Text("DefaultMainTable", structure.defaultMainTable);
    out.Bool("RootFieldsFirst", structure.rootFieldsFirst);
}

void TKStructureWriter::WriteOperator(const TDSOperator& op, int number) {
    Numbered("Operator:", number);
    out.Text("Name", op.Name());
    out.Text("DisplayName", op.DisplayName());
    out.Text("SQLName", op.SQLName());
    out.Text("ValFormat", op.ValFormat());
    out.Key("ExprType",
            op.ExprType() ? FldTypeToStr(*op.ExprType()) : structure_format::SameAsField);
    out.Key("AppliedTypes", FieldTypesToStr(op.AppliedTypes()));
    out.Key("ValueType", OpValueTypeToStr(op.ValueType()));
}

void TKStructureWriter::WriteTable(const TDSTable& table, int number) {
    Numbered("Table:", number);
    out.Text("Name", table.TableName());
    out.Text("DisplayName", table.DisplayName());
    out.Text("Alias", table.TableAlias());
    out.Bool("Quoted", table.Quoted());
    out.Text("Hints", table.Hints());
    TStrings aliases;
    for (const TDSLink* link : table.Links())
        if (link->Table1() == &table) aliases.push_back(link->Table2()->TableAlias());
    List("Links", aliases);
    for (const TDSLink* link : table.Links())
        if (link->Table1() == &table) WriteLink(*link);
}

void TKStructureWriter::WriteLink(const TDSLink& link) {
    out.Section(
        structure_format::LinkSection(link.Table1()->TableAlias(), link.Table2()->TableAlias()));
    List("FldName1", link.Fields1());
    List("FldName2", link.Fields2());
    List("Operators", link.Operators());
    out.Bool("QuoteFields", link.QuoteFields());
    out.Key("LinkType", structure_format::LinkTypes[static_cast<size_t>(link.LinkType())]);
}

void TKStructureWriter::WriteField(const TDSField& field, int number) {
    Numbered("Field:", number);
    out.Key("ID", field.ID());
    out.Key("Kind", FldKindToStr(field.Kind()));
    out.Text("FieldExpr", field.FieldExpr());
    out.Text("DisplayName", field.DisplayName());
    if (field.Table()) out.Text("TableAlias", field.Table()->TableAlias());
    out.Key("EditType", static_cast<int>(field.EditType()));
    out.Key("FieldType", static_cast<int>(field.FieldType()));
    out.Key("FieldSize", field.FieldSize());
    out.Bool("Quoted", field.Quoted());
    out.Bool("UIC", field.UseInConditions());
    out.Bool("UIR", field.UseInResult());
    out.Text("Operators", OperatorNames(field));
    WriteEditor(field, number);
}

const std::string& TKStructureWriter::OperatorNames(const TDSField& field) {
    const auto [known, isNew] = operatorNames.try_emplace(field.operators.get());
    if (isNew) {
        TStrings names;
        for (const TDSOperator* op : field.Operators())
            names.push_back(op->Name());
        known->second = ComposeCommaText(names);
    }
    return known->second;
}

void TKStructureWriter::WriteEditor(const TDSField& field, int number) {
    if (const auto* text = field.ValueEditorAs<TDSTextEditor>()) {
        WriteTextEditor(*text);
    } else if (const auto* sql = field.ValueEditorAs<TDSSQLEditor>()) {
        if (!sql->SQLParams().empty()) List("SQLParams", sql->SQLParams());
        Numbered("Field:", number, ".SQL");
        Body(sql->SQL);
    } else if (const auto* list = field.ValueEditorAs<TDSListEditor>()) {
        List("Items", list->Items);
        List("Values", list->Values);
    } else if (const auto* custom = field.ValueEditorAs<TDSCustomEditor>()) {
        List("CustomData", custom->CustomData);
    }
}

void TKStructureWriter::WriteTextEditor(const TDSTextEditor& editor) {
    out.Text("DefValue", editor.DefValue);
    out.Key("EditKind", static_cast<int>(editor.EditKind));
    if (editor.EditKind == TTextEditorKind::tekMask)
        out.Text("EditMask", editor.EditMask);
    else
        out.Key("FmtVal", editor.FmtVal);
    out.Key("Options", editor.Options);
}

void TKStructureWriter::WriteGroupFields(const TDSFieldList& fields) {
    std::string ids;
    for (const TDSField* field : fields.Items()) {
        if (!ids.empty()) ids += ',';
        ids += std::to_string(field->ID());
    }
    out.Key("Fields", ids);
}

void TKStructureWriter::WriteDatabaseLines() {
    TStrings lines = structure.databaseLines;
    if (TKDBInfo* info = structure.DatabaseInfo()) {
        lines.clear();
        info->SaveInfo(lines);
    }
    if (lines.empty()) return;
    out.Section(structure_format::DatabaseSection);
    Body(lines);
}

void TKStructureWriter::WriteFormats() {
    const TSQLFormats& formats = structure.sqlFormats;
    if (formats == TSQLFormats()) return;
    auto symbol = [](char c) { return c ? std::string(1, c) : std::string(); };
    out.Section(structure_format::FormatsSection);
    out.Text("Date", formats.Date());
    out.Text("Time", formats.Time());
    out.Text("DateTime", formats.DateTime());
    out.Text("QuoteSymbol1", symbol(formats.QuoteSymbol1()));
    out.Text("QuoteSymbol2", symbol(formats.QuoteSymbol2()));
}

} // namespace tern7
