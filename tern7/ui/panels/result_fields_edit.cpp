#include <tern7/ui/panels/result_fields_edit.h>

#include <tern7/core/query/query.h>

namespace tern7 {

void TResultFieldsEdit::Step(const std::function<void()>& change) {
    const TKQueryUpdate update(*list.Query());
    const bool following = RanksFollowColumns();
    change();
    if (following) RankByColumns();
}

bool TResultFieldsEdit::RanksFollowColumns() const {
    int last = 0;
    for (const auto& column : list) {
        if (column->Sorting() == TSortingType::stNoSort) continue;
        if (column->SortOrder() < last) return false;
        last = column->SortOrder();
    }
    return true;
}

void TResultFieldsEdit::RankByColumns() {
    int rank = 0;
    for (const auto& column : list)
        if (column->Sorting() != TSortingType::stNoSort) column->SetSortOrder(++rank);
}

TResultField* TResultFieldsEdit::Insert(int index, TDSField& field, std::string caption) {
    TResultField* added = nullptr;
    Step([&] { added = list.Insert(index, std::move(caption), {&field}); });
    return added;
}

void TResultFieldsEdit::Replace(TResultField& column, TDSField& field, std::string caption) {
    Step([&] {
        column.SetFields({&field}, "@1");
        column.SetCaption(std::move(caption));
    });
}

void TResultFieldsEdit::SetSorting(TResultField& column, TSortingType sorting) {
    Step([&] { column.SetSorting(sorting); });
}

TResultField* TResultFieldsEdit::Duplicate(int index) {
    TResultField* added = nullptr;
    Step([&] {
        const TResultField& source = *list.GetItem(index);
        auto copy = list.CreateRField();
        copy->Assign(source);
        if (!source.Alias().empty()) copy->SetAlias(list.GetUniqAlias(source.Alias()));
        copy->SetSorting(TSortingType::stNoSort);
        copy->SetSortOrder(0);
        added = list.PutField(index + 1, std::move(copy));
    });
    return added;
}

void TResultFieldsEdit::Delete(int index) {
    Step([&] { list.Delete(index); });
}

void TResultFieldsEdit::Move(int from, int to) {
    Step([&] { list.Move(from, to); });
}

void TResultFieldsEdit::Clear() {
    Step([&] { list.Clear(); });
}

void TResultFieldsEdit::RefreshSortOrder() {
    const TKQueryUpdate update(*list.Query());
    RankByColumns();
}

} // namespace tern7
