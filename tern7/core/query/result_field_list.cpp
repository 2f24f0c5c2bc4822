#include <algorithm>

#include <tern7/core/corekit/numbers.h>
#include <tern7/core/corekit/strings.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_record.h>
#include <tern7/core/query/result_field.h>

namespace tern7 {

TRFieldList::~TRFieldList() {
    for (const auto& field : items)
        field->owner = nullptr;
}

TKQuery* TRFieldList::Query() const {
    return result ? &result->Query() : nullptr;
}

TKCustomDBStructure* TRFieldList::DbStruct() const {
    return result ? result->DbStruct() : nullptr;
}

TKQueryRecord* TRFieldList::RecordOfChange() {
    TKQuery* query = Query();
    return query && &query->QResult().ResultFields() == this ? query->RecordOfChange() : nullptr;
}

void TRFieldList::Tell() {
    if (TKQuery* query = Query()) query->ResultFieldsChanged();
}

void TRFieldList::SetJustSorting(bool value) {
    if (value == justSorting) return;
    if (TKQueryRecord* record = RecordOfChange()) record->JustSortingChanges();
    justSorting = value;
    Tell();
}

std::unique_ptr<TResultField> TRFieldList::CreateRField() {
    auto field = std::make_unique<TResultField>(*this);
    if (TKQuery* query = Query()) query->detachedFields.insert(field.get());
    return field;
}

TResultField* TRFieldList::New(int i) {
    return PutField(i, CreateRField());
}

TResultField* TRFieldList::Insert(int i, std::string caption, const std::vector<TDSField*>& fields,
                                  TSortingType sorting) {
    auto field = CreateRField();
    std::string formula;
    if (!fields.empty()) formula = "@1";
    field->SetFields(fields, std::move(formula));
    TResultField* added = PutField(i, std::move(field));
    added->SetCaption(std::move(caption));
    added->SetSorting(sorting);
    return added;
}

TResultField* TRFieldList::InsertByExpression(int i, std::string caption, TSortingType sorting,
                                              std::string_view expression, TDSField* field) {
    auto fresh = CreateRField();
    fresh->ProcessExpression(expression);
    if (fresh->GetDSFieldCount() == 0 && field) fresh->AddDSField(field);
    TResultField* added = PutField(i, std::move(fresh));
    added->SetCaption(std::move(caption));
    added->SetSorting(sorting);
    return added;
}

TResultField* TRFieldList::InsertBySQLExpr(int i, std::string caption, TSortingType sorting,
                                           std::string_view sql) {
    auto fresh = CreateRField();
    fresh->ProcessSQLExpr(sql);
    TResultField* added = PutField(i, std::move(fresh));
    if (caption.empty())
        added->GenerateCaption();
    else
        added->SetCaption(std::move(caption));
    added->SetSorting(sorting);
    return added;
}

std::unique_ptr<TResultField> TRFieldList::TakeField(int i) {
    std::unique_ptr<TResultField> field = std::move(items.at(static_cast<size_t>(i)));
    items.erase(items.begin() + i);
    AliasChanged(field->alias, {});
    field->listed = false;
    if (TKQuery* query = Query()) query->detachedFields.insert(field.get());
    if (TKQueryRecord* record = RecordOfChange()) record->ColumnTaken(i, *field);
    Tell();
    return field;
}

void TRFieldList::Delete(int i) {
    std::unique_ptr<TResultField> field = TakeField(i);
    if (TKQuery* query = Query()) query->Drop(std::move(field));
}

TResultField* TRFieldList::PutField(int i, std::unique_ptr<TResultField> field) {
    if (i < 0 || i > GetCount()) throw std::out_of_range("list index out of range");
    if (!field || field->owner != this)
        throw std::invalid_argument("a result field can only be put into its own list");
    TResultField* added = field.get();
    items.insert(items.begin() + i, std::move(field));
    added->listed = true;
    AliasChanged({}, added->alias);
    if (TKQuery* query = Query()) query->detachedFields.erase(added);
    if (TKQueryRecord* record = RecordOfChange()) record->ColumnPut(i, *added);
    Tell();
    return added;
}

void TRFieldList::Move(int from, int to) {
    if (from < 0 || to < 0 || from >= GetCount() || to >= GetCount())
        throw std::out_of_range("list index out of range");
    if (from == to) return;
    if (TKQueryRecord* record = RecordOfChange()) record->ColumnMoved(from, to);
    TKObjectList::Move(from, to);
    Tell();
}

void TRFieldList::Clear() {
    if (items.empty()) return;
    if (RecordOfChange()) {
        while (!items.empty())
            Delete(GetCount() - 1);
        return;
    }
    for (const auto& field : items)
        field->owner = nullptr;
    FreeAll();
    aliasCounts.clear();
    lastSuffix.clear();
    Tell();
}

void TRFieldList::AliasChanged(const std::string& from, const std::string& to) {
    if (!from.empty()) {
        const auto it = aliasCounts.find(LowerCase(from));
        if (it != aliasCounts.end() && --it->second == 0) {
            aliasCounts.erase(it);
            SuffixIsFree(LowerCase(from));
        }
    }
    if (!to.empty()) ++aliasCounts[LowerCase(to)];
}

/// The alias may be a shorter text with a number, which is to be tried again.
void TRFieldList::SuffixIsFree(std::string_view alias) {
    for (size_t from = alias.size(); from > 1 && IsDigit(alias[from - 1]);) {
        --from;
        const std::optional<int> number = StrToIntExact(alias.substr(from));
        if (!number) return; // longer than any that was tried
        const auto known = lastSuffix.find(std::string(alias.substr(0, from)));
        if (known != lastSuffix.end() && alias[from] != '0')
            known->second = std::min(known->second, *number - 1);
    }
}

bool TRFieldList::CheckUniqAlias(std::string_view text) const {
    return !aliasCounts.contains(LowerCase(text));
}

bool TRFieldList::CheckUniqCaption(std::string_view text) const {
    return std::none_of(items.begin(), items.end(),
                        [&](const auto& field) { return SameText(field->Caption(), text); });
}

std::string TRFieldList::GetUniqAlias(std::string_view text) const {
    if (CheckUniqAlias(text)) return std::string(text);
    int& suffix = lastSuffix[LowerCase(text)]; // all up to it are known to be taken
    for (++suffix;; ++suffix) {
        std::string candidate = std::string(text) + std::to_string(suffix);
        if (!CheckUniqAlias(candidate)) continue;
        --suffix; // the caller may not take it
        return candidate;
    }
}

std::string TRFieldList::GetUniqCaption(std::string_view text) const {
    if (CheckUniqCaption(text)) return std::string(text);
    for (int suffix = 1;; ++suffix) {
        std::string candidate = std::string(text) + std::to_string(suffix);
        if (CheckUniqCaption(candidate)) return candidate;
    }
}

void TRFieldList::GenerateNumbers() {
    int number = 0;
    for (const auto& field : items)
        field->number = ++number;
}

void TRFieldList::RegenerateAliases() {
    for (const auto& field : items)
        field->GenerateAlias();
}

int TRFieldList::GetSortCount() const {
    return static_cast<int>(std::count_if(items.begin(), items.end(), [](const auto& field) {
        return field->Sorting() != TSortingType::stNoSort;
    }));
}

std::string TRFieldList::GetCaption() const {
    TStrings captions;
    for (const auto& field : items)
        captions.push_back(field->Caption());
    std::string text = JoinStrings(captions, ", ");
    return text.empty() ? "*" : text;
}

void TRFieldList::Assign(const TRFieldList& source) {
    if (&source == this) return;
    const TKQueryUpdate update(Query());
    Clear();
    SetJustSorting(source.justSorting);
    for (const auto& field : source)
        New(GetCount())->Assign(*field);
    Tell();
}

} // namespace tern7
