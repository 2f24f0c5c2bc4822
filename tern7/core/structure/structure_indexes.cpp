#include <tern7/core/structure/structure_indexes.h>

namespace tern7 {

namespace {

uint32_t IDHash(const TDSField& field) {
    return HashOfNumber(field.ID());
}
uint32_t DisplayHash(const TDSField& field) {
    return HashOfText(field.DisplayName());
}
uint32_t OperatorNameHash(const TDSOperator& op) {
    return HashOfText(op.Name());
}
uint32_t TemplateHash(const TDSOperator& op) {
    return HashOfText(op.SQLName());
}

uint32_t CompoundHash(const TDSField& field) {
    TDSTextHash hash;
    if (field.Table()) hash.Add(field.Table()->TableAlias()).Add(".");
    return hash.Add(field.FieldExpr()).Value();
}

uint32_t FullNameHash(const TDSField& field) {
    TDSTextHash hash;
    if (field.Table()) hash.Add(field.Table()->DisplayName()).Add(" ");
    return hash.Add(field.DisplayName()).Value();
}

uint32_t ExpressionHash(const TDSField& field) {
    std::string expression;
    field.AppendSQLExpr(expression);
    return TDSTextHash().AddWithoutBlanks(expression).Value();
}

/// Equality of "left, separator, right" and a text, without regard to case.
bool SameJoined(std::string_view left, char separator, std::string_view right,
                std::string_view text) {
    return text.size() == left.size() + 1 + right.size() && text[left.size()] == separator &&
           SameText(text.substr(0, left.size()), left) &&
           SameText(text.substr(left.size() + 1), right);
}

} // namespace

void TKCustomDBStructure::TIndexes::Add(TDSTable* table) {
    const uint32_t place = static_cast<uint32_t>(table->Index());
    if (aliases.Built()) aliases.Add(table, HashOfText(table->TableAlias()), place);
    if (tableNames.Built()) tableNames.Add(table, HashOfText(table->TableName()), place);
}

void TKCustomDBStructure::TIndexes::Remove(const TDSTable* table) {
    if (aliases.Built()) aliases.Remove(table, HashOfText(table->TableAlias()));
    if (tableNames.Built()) tableNames.Remove(table, HashOfText(table->TableName()));
}

void TKCustomDBStructure::TIndexes::Add(TDSOperator* op) {
    if (operatorNames.Built()) operatorNames.Add(op, OperatorNameHash(*op), op->order);
    if (templates.Built()) templates.Add(op, TemplateHash(*op), op->order);
}

void TKCustomDBStructure::TIndexes::Remove(const TDSOperator* op) {
    if (operatorNames.Built()) operatorNames.Remove(op, OperatorNameHash(*op));
    if (templates.Built()) templates.Remove(op, TemplateHash(*op));
}

void TKCustomDBStructure::TIndexes::AddID(TDSField* field) {
    if (ids.Built()) ids.Add(field, IDHash(*field), field->order);
}

void TKCustomDBStructure::TIndexes::RemoveID(const TDSField* field) {
    if (ids.Built()) ids.Remove(field, IDHash(*field));
}

void TKCustomDBStructure::TIndexes::AddTexts(TDSField* field) {
    const uint32_t place = field->order;
    if (compoundNames.Built()) compoundNames.Add(field, CompoundHash(*field), place);
    if (displayNames.Built()) displayNames.Add(field, DisplayHash(*field), place);
    if (fullNames.Built()) fullNames.Add(field, FullNameHash(*field), place);
    if (expressions.Built()) expressions.Add(field, ExpressionHash(*field), place);
}

void TKCustomDBStructure::TIndexes::RemoveTexts(const TDSField* field) {
    if (compoundNames.Built()) compoundNames.Remove(field, CompoundHash(*field));
    if (displayNames.Built()) displayNames.Remove(field, DisplayHash(*field));
    if (fullNames.Built()) fullNames.Remove(field, FullNameHash(*field));
    if (expressions.Built()) expressions.Remove(field, ExpressionHash(*field));
}

void TKCustomDBStructure::TIndexes::DropFields() {
    ids.Drop();
    displayNames.Drop();
    DropFieldTexts();
}

void TKCustomDBStructure::TIndexes::DropFieldTexts() {
    compoundNames.Drop();
    fullNames.Drop();
    expressions.Drop();
}

void TKCustomDBStructure::TIndexes::DropTables() {
    aliases.Drop();
    tableNames.Drop();
}

void TKCustomDBStructure::TIndexes::DropOperators() {
    operatorNames.Drop();
    templates.Drop();
    DropApplied();
}

void TKCustomDBStructure::TIndexes::DropApplied() {
    for (auto& list : applied)
        list.reset();
}

// --- asking

TDSTable* TKCustomDBStructure::TableByName(bool byAlias, std::string_view name) const {
    auto keyOf = [byAlias](const TDSTable& table) -> const std::string& {
        return byAlias ? table.TableAlias() : table.TableName();
    };
    TDSLookup<TDSTable>& lookup = byAlias ? indexes->aliases : indexes->tableNames;
    if (!lookup.Built()) {
        lookup.Start(static_cast<size_t>(GetTableCount()));
        for (const auto& table : tables)
            lookup.Add(table.get(), HashOfText(keyOf(*table)),
                       static_cast<uint32_t>(table->Index()));
    }
    return lookup.First(HashOfText(name),
                        [&](const TDSTable& table) { return SameText(keyOf(table), name); });
}

std::vector<TDSTable*> TKCustomDBStructure::TablesByName(std::string_view name) const {
    std::vector<TDSTable*> found;
    if (!TableByName(false, name)) return found;
    indexes->tableNames.Each(HashOfText(name), [&](TDSTable* table) {
        if (SameText(table->TableName(), name)) found.push_back(table);
    });
    return found;
}

TDSField* TKCustomDBStructure::FieldByID(int id) const {
    indexes->Fill(indexes->ids, fields, IDHash);
    return indexes->ids.First(HashOfNumber(id),
                              [id](const TDSField& field) { return field.ID() == id; });
}

TDSField* TKCustomDBStructure::FieldByName(bool byDisplayName, std::string_view name) const {
    if (byDisplayName) {
        indexes->Fill(indexes->displayNames, fields, DisplayHash);
        return indexes->displayNames.First(HashOfText(name), [&](const TDSField& field) {
            return SameText(field.DisplayName(), name);
        });
    }
    indexes->Fill(indexes->compoundNames, fields, CompoundHash);
    return indexes->compoundNames.First(HashOfText(name), [&](const TDSField& field) {
        return field.Table() ? SameJoined(field.Table()->TableAlias(), '.', field.FieldExpr(), name)
                             : SameText(field.FieldExpr(), name);
    });
}

std::vector<TDSField*> TKCustomDBStructure::FieldsByDisplayName(std::string_view name) const {
    indexes->Fill(indexes->displayNames, fields, DisplayHash);
    std::vector<TDSField*> found;
    indexes->displayNames.Each(HashOfText(name), [&](TDSField* field) {
        if (SameText(field->DisplayName(), name)) found.push_back(field);
    });
    return found;
}

bool TKCustomDBStructure::IsNameShared(const TDSField& field) const {
    const std::string& name = field.DisplayName();
    indexes->Fill(indexes->displayNames, fields, DisplayHash);
    return indexes->displayNames.First(HashOfText(name), [&](const TDSField& other) {
        return &other != &field && SameText(other.DisplayName(), name);
    });
}

TDSField* TKCustomDBStructure::FieldByFullName(std::string_view name) const {
    indexes->Fill(indexes->fullNames, fields, FullNameHash);
    return indexes->fullNames.First(HashOfText(name), [&](const TDSField& field) {
        return field.Table()
                   ? SameJoined(field.Table()->DisplayName(), ' ', field.DisplayName(), name)
                   : SameText(field.DisplayName(), name);
    });
}

TDSField* TKCustomDBStructure::FieldBySQLExpr(std::string_view expression) const {
    indexes->Fill(indexes->expressions, fields, ExpressionHash);
    std::string candidate;
    return indexes->expressions.First(TDSTextHash().AddWithoutBlanks(expression).Value(),
                                      [&](const TDSField& field) {
                                          candidate.clear();
                                          field.AppendSQLExpr(candidate);
                                          return SameSQLText(candidate, expression);
                                      });
}

TDSOperator* TKCustomDBStructure::OperatorByName(std::string_view name) const {
    indexes->Fill(indexes->operatorNames, operators, OperatorNameHash);
    return indexes->operatorNames.First(
        HashOfText(name), [&](const TDSOperator& op) { return SameText(op.Name(), name); });
}

TDSOperator* TKCustomDBStructure::OperatorByExpr(std::string_view sqlTemplate) const {
    indexes->Fill(indexes->templates, operators, TemplateHash);
    return indexes->templates.First(HashOfText(sqlTemplate), [&](const TDSOperator& op) {
        return op.SQLName() == sqlTemplate;
    });
}

} // namespace tern7
