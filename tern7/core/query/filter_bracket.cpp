#include <algorithm>
#include <stdexcept>

#include <tern7/core/global/limits.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/query/filter_row.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_record.h>

namespace tern7 {

TFilterBracket::TFilterBracket(TKQuery& owner) : TFilterRow(owner, TFilterRowType::frtBracket) {}

TFilterBracket::~TFilterBracket() {
    rowState = TRowState::rsDestroying;
}

void TFilterBracket::SetLinkType(TFilterLinkType value) {
    if (value == linkType) return;
    WillChange();
    linkType = value;
    if (query) query->BracketChanged(*this);
}

int TFilterBracket::GetRowIndex(const TFilterRow* row) const {
    if (!row || row->parent != this) return -1;
    // the place where it was last, then its neighbourhood: rows move by a few places
    const int count = GetRowCount();
    const int hint = std::clamp(row->indexHint, 0, count - 1);
    for (int distance = 0; distance < count; ++distance) {
        for (int i : {hint - distance, hint + distance}) {
            if (i < 0 || i >= count || rows[static_cast<size_t>(i)].get() != row) continue;
            row->indexHint = i;
            return i;
        }
    }
    return -1;
}

int TFilterBracket::IndexByRowNum(int wanted) const {
    // numbers ascend in row order, brackets without a number of their own aside
    for (int i = 0; i < GetRowCount(); ++i)
        if (rows[static_cast<size_t>(i)]->RowNum() == wanted) return i;
    return -1;
}

int TFilterBracket::IndexForNewRow(const TFilterRow* current) const {
    const int index = GetRowIndex(current);
    return index < 0 ? GetRowCount() : index + 1;
}

TFilterCond* TFilterBracket::GetFirstCondition() const {
    for (const auto& row : rows) {
        if (TFilterCond* condition = row->AsCond()) return condition;
        if (TFilterCond* condition = row->AsBracket()->GetFirstCondition()) return condition;
    }
    return nullptr;
}

TFilterRow* TFilterBracket::GetLastRow() {
    TFilterRow* last = this;
    while (last->AsBracket() && last->AsBracket()->GetRowCount() > 0)
        last = last->AsBracket()->rows.back().get();
    return last;
}

int TFilterBracket::GetLastRowNum() {
    return GetLastRow()->RowNum();
}

int TFilterBracket::Depth() const {
    int depth = 0;
    for (const auto& row : rows)
        if (const TFilterBracket* bracket = row->AsBracket())
            depth = std::max(depth, 1 + bracket->Depth());
    return depth;
}

bool TFilterBracket::CanHold(const TFilterRow& row) const {
    const TFilterBracket* bracket = row.AsBracket();
    if (!bracket) return true;
    for (const TFilterBracket* around = this; around; around = around->Parent())
        if (around == bracket) return false;
    return Level() + 1 + bracket->Depth() <= MaxBracketLevel;
}

TFilterBracket* TFilterBracket::InsertBracket(int index) {
    std::unique_ptr<TFilterRow> row(new TFilterBracket(*query));
    return InsertRow(index, std::move(row))->AsBracket();
}

TFilterCond* TFilterBracket::InsertCond(int index) {
    std::unique_ptr<TFilterRow> row(new TFilterCond(*query));
    return InsertRow(index, std::move(row))->AsCond();
}

TFilterRow* TFilterBracket::InsertRow(int index, std::unique_ptr<TFilterRow> row) {
    if (index < 0 || index > GetRowCount()) throw std::out_of_range("row index out of range");
    if (!row || row->query != query)
        throw std::invalid_argument("a row can only be put into its own query");
    query->RequireChangeable();
    if (!CanHold(*row)) throw EKQueryPanelError(std::string(messages::NestedTooDeep));

    TFilterRow* result = row.get();
    rows.insert(rows.begin() + index, std::move(row));
    result->parent = this;
    result->indexHint = index;
    if (detached) { // nobody sees it
        query->AddDetached(*result);
        query->detachedRows.erase(result); // goes with this bracket
        return result;
    }
    if (TKQueryRecord* record = query->RecordOfChange()) record->RowPut(*this, index, *result);
    query->AttachRow(*result);
    query->RowsAdded(*this, index, 1);
    return result;
}

std::unique_ptr<TFilterRow> TFilterBracket::TakeRow(TFilterRow* row) {
    const int index = GetRowIndex(row);
    if (index < 0) return nullptr;
    query->RequireChangeable();
    if (!detached) query->RowsRemoved(*this, index, 1);
    std::unique_ptr<TFilterRow> taken = std::move(rows[static_cast<size_t>(index)]);
    rows.erase(rows.begin() + index);
    taken->parent = nullptr;
    if (detached) {
        query->AddDetached(*taken);
        return taken;
    }
    query->DetachRow(*taken);
    if (TKQueryRecord* record = query->RecordOfChange()) record->RowTaken(*this, index, *taken);
    query->Changed();
    return taken;
}

void TFilterBracket::DeleteRow(TFilterRow* row) {
    if (std::unique_ptr<TFilterRow> taken = TakeRow(row)) query->Drop(std::move(taken));
}

void TFilterBracket::ClearRows() {
    if (detached) return rows.clear();
    if (rows.empty()) return;
    query->RequireChangeable();
    if (query->RecordOfChange()) {
        while (!rows.empty())
            DeleteRow(rows.back().get());
        return;
    }
    query->RowsRemoved(*this, 0, GetRowCount());
    std::vector<std::unique_ptr<TFilterRow>> taken = std::move(rows);
    rows.clear();
    for (auto& row : taken) {
        row->rowState = TRowState::rsDestroying;
        row->parent = nullptr;
    }
    query->DropParams(taken);
    query->Changed();
}

TFilterRow* TFilterBracket::RowByID(int id) {
    if (rowID == id) return this;
    for (const auto& row : rows) {
        if (row->rowID == id) return row.get();
        if (TFilterBracket* bracket = row->AsBracket())
            if (TFilterRow* found = bracket->RowByID(id)) return found;
    }
    return nullptr;
}

void TFilterBracket::CheckIfAllDisabled() {
    const bool anyOn =
        std::any_of(rows.begin(), rows.end(), [](const auto& row) { return row->GetEnabled(); });
    if (!anyOn && !rows.empty()) SetEnabled(false);
}

} // namespace tern7
