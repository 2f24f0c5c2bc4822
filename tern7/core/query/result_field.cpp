#include <tern7/core/query/result_field.h>

#include <algorithm>

#include <tern7/core/corekit/strings.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_record.h>
#include <tern7/core/structure/structure.h>

namespace tern7 {

namespace {

std::string Placeholder(int n) {
    return "@" + std::to_string(n);
}

std::string AsciiAlias(std::string_view caption) {
    std::string alias;
    for (size_t i = 0; i < caption.size(); ++i) {
        const char c = caption[i];
        if (IsLetter(c) || c == '_' || (IsDigit(c) && i > 0)) alias += c;
    }
    return alias;
}

} // namespace

TResultField::TResultField(TRFieldList& list) : owner(&list) {}

TResultField::~TResultField() {
    TKQuery* query = owner && !listed ? owner->Query() : nullptr;
    if (!query) return;
    query->detachedFields.erase(this);
    query->Freed(this);
}

void TResultField::Tell() {
    if (TKQuery* query = owner && listed ? owner->Query() : nullptr) query->ResultFieldsChanged();
}

void TResultField::AddDSField(TDSField* field) {
    WillChange();
    fields.Add(field);
    ids.push_back(field->ID());
    Tell();
}

void TResultField::AddDSFieldByID(int id) {
    WillChange();
    const TKCustomDBStructure* structure = owner->DbStruct();
    TDSField* field = structure ? structure->FieldByID(id) : nullptr;
    if (!field && structure) field = structure->PlaceholderField();
    fields.Add(field);
    ids.push_back(id);
    Tell();
}

void TResultField::DelDSField(int i) {
    WillChange();
    fields.Delete(i);
    ids.erase(ids.begin() + i);
    for (int n = i + 2; n <= fields.GetCount() + 1; ++n)
        formula = ReplaceStr(formula, Placeholder(n), Placeholder(n - 1));
    Tell();
}

void TResultField::SetFields(const std::vector<TDSField*>& newFields, std::string newFormula) {
    WillChange();
    fields.Clear();
    ids.clear();
    for (TDSField* field : newFields) {
        fields.Add(field);
        ids.push_back(field->ID());
    }
    formula = std::move(newFormula);
    Tell();
}

void TResultField::StoreAlias(std::string value) {
    WillChange();
    if (listed) owner->AliasChanged(alias, value);
    alias = std::move(value);
}

void TResultField::SetAlias(std::string value) {
    if (value == alias) return;
    StoreAlias(value.empty() ? std::move(value) : owner->GetUniqAlias(value));
}

void TResultField::SetCaption(std::string value) {
    if (value == caption) return;
    WillChange();
    caption = std::move(value);
    GenerateAlias();
    Tell();
}

void TResultField::GenerateAlias() {
    if (owner->QuoteAliases())
        SetAlias(caption);
    else if (owner->ASCIIAliases())
        SetAlias(AsciiAlias(caption));
    else
        SetAlias(ReplaceStr(caption, " ", "_"));
}

void TResultField::GenerateCaption() {
    std::string text;
    for (const TDSField* field : fields.Items())
        if (field) text += field->DisplayName();
    if (text.empty()) { // mostly asked for a column that was just added
        const int last = owner->GetCount() - 1;
        const bool isLast = last >= 0 && (*owner)[last] == this;
        text = std::to_string((isLast ? last : owner->IndexOf(this)) + 1);
    }
    SetCaption(std::move(text));
}

void TResultField::SetFormula(std::string value) {
    if (value == formula) return;
    WillChange();
    formula = std::move(value);
    for (int i = fields.GetCount() - 1; i >= 0; --i)
        if (formula.find(Placeholder(i + 1)) == std::string::npos) DelDSField(i);
    Tell();
}

void TResultField::SetSorting(TSortingType value) {
    if (value == sorting) return;
    WillChange();
    sorting = value;
    if (sorting != TSortingType::stNoSort && sortOrder == 0) {
        int highest = 0;
        for (const auto& field : *owner)
            if (field->Sorting() != TSortingType::stNoSort)
                highest = std::max(highest, field->SortOrder());
        sortOrder = highest + 1;
    }
    Tell();
}

void TResultField::SetSortOrder(int value) {
    if (value == sortOrder) return;
    WillChange();
    sortOrder = value;
    Tell();
}

std::string TResultField::GetSQLExpr() const {
    std::string text;
    AppendSQLExpr(text);
    return text;
}

void TResultField::AppendSQLExpr(std::string& out) const {
    if (formula == "@1" && fields.GetCount() >= 1) {
        if (fields.GetItem(0)) fields.GetItem(0)->AppendSQLExpr(out);
        return;
    }
    // in ascending order over the whole text: "@1" is replaced before "@10" is considered, and
    // inside it; kept, since stored formulas rely on it
    std::string text = formula;
    const int count = std::min(static_cast<int>(CharCount(formula, '@')), fields.GetCount());
    for (int n = 1; n <= count; ++n) {
        const TDSField* field = fields.GetItem(n - 1);
        text = ReplaceStr(text, Placeholder(n), field ? field->GetSQLExpr() : std::string());
    }
    out += text;
}

std::string TResultField::GetSelectExpr() const {
    std::string text = GetSQLExpr();
    if (!alias.empty()) text += " as " + GetSQLAlias();
    return text;
}

std::string TResultField::GetSQLAlias() const {
    if (!owner->QuoteAliases()) return alias;
    std::string text;
    if (const TKCustomDBStructure* structure = owner->DbStruct())
        structure->SQLFormats().AppendQuoted(text, alias);
    else
        text = '"' + alias + '"';
    return text;
}

std::string TResultField::GetOrderName() const {
    return alias.empty() ? std::to_string(number) : alias;
}

bool TResultField::GetAgregate() const {
    const std::string text = LowerCase(GetSQLExpr());
    for (std::string_view name : {"sum(", "count(", "max(", "min(", "avg("})
        if (text.find(name) != std::string::npos) return true;
    return false;
}

void TResultField::Assign(const TResultField& source) {
    if (&source == this) return;
    const TKCustomDBStructure* structure = owner ? owner->DbStruct() : nullptr;
    const bool foreign = !source.owner || source.owner->DbStruct() != structure;
    WillChange();
    fields.Clear();
    ids.clear();
    for (int i = 0; i < source.GetDSFieldCount(); ++i) {
        if (foreign) {
            AddForeignField(source.GetDSField(i), source.GetDSFieldID(i));
        } else {
            fields.Add(source.GetDSField(i));
            ids.push_back(source.GetDSFieldID(i));
        }
    }
    formula = source.formula;
    caption = source.caption;
    StoreAlias(source.alias);
    sorting = source.sorting;
    sortOrder = source.sortOrder;
    Tell();
}

// One that is not found keeps its ID.
void TResultField::AddForeignField(const TDSField* field, int id) {
    TKCustomDBStructure* structure = owner ? owner->DbStruct() : nullptr;
    TDSField* own = structure ? structure->FieldByID(id) : nullptr;
    if (!own && structure && field && !field->IsPlaceholder())
        own = structure->FieldByName(false, field->GetCompoundName());
    ids.push_back(own ? own->ID() : id);
    fields.Add(own || !structure ? own : structure->PlaceholderField());
}

void TResultField::WillChange() {
    if (!owner || !listed) return;
    if (TKQueryRecord* record = owner->RecordOfChange()) record->ColumnChanges(*this);
}

void TResultField::Exchange(TResultField& twin) {
    std::swap(fields, twin.fields);
    ids.swap(twin.ids);
    caption.swap(twin.caption);
    formula.swap(twin.formula);
    owner->AliasChanged(alias, twin.alias);
    alias.swap(twin.alias);
    std::swap(sorting, twin.sorting);
    std::swap(sortOrder, twin.sortOrder);
    Tell();
}

void TResultField::ReleaseReferences() {
    for (int i = 0; i < fields.GetCount(); ++i)
        fields.SetItem(i, nullptr);
}

void TResultField::RestoreReferences() {
    const TKCustomDBStructure* structure = owner ? owner->DbStruct() : nullptr;
    if (!structure) return;
    for (int i = 0; i < fields.GetCount(); ++i) {
        TDSField* field = structure->FieldByID(GetDSFieldID(i));
        fields.SetItem(i, field ? field : structure->PlaceholderField());
    }
}

} // namespace tern7
