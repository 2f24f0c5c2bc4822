#include <tern7/core/query/query_record.h>

#include <algorithm>
#include <cassert>
#include <utility>

namespace tern7 {

// --- recording

void TKQueryRecord::RowChanges(TFilterRow& row) {
    if (known.insert(&row).second) changes.emplace_back(TRowContents{&row, row.MakeTwin()});
}

void TKQueryRecord::RowPut(TFilterBracket& parent, int index, TFilterRow& row) {
    outside.erase(&row);
    if (!taken.contains(&row)) {
        known.insert(&row);
        fresh.insert(&row);
        if (fresh.contains(&parent)) return; // comes and goes with it
    }
    changes.emplace_back(TRowPlace{&parent, index, &row, true});
}

void TKQueryRecord::RowTaken(TFilterBracket& parent, int index, TFilterRow& row) {
    taken.insert(&row);
    outside.insert(&row);
    changes.emplace_back(TRowPlace{&parent, index, &row, false});
}

void TKQueryRecord::Keep(std::unique_ptr<TFilterRow> row) {
    outside.erase(row.get());
    rows[row.get()] = std::move(row);
}

void TKQueryRecord::Keep(std::unique_ptr<TResultField> column) {
    outside.erase(column.get());
    columns[column.get()] = std::move(column);
}

void TKQueryRecord::Freed(const void* rowOrColumn) {
    lost = lost || outside.contains(rowOrColumn);
}

void TKQueryRecord::ColumnChanges(TResultField& column) {
    if (!known.insert(&column).second) return;
    std::unique_ptr<TResultField> twin = column.Owner()->CreateRField();
    twin->Assign(column);
    changes.emplace_back(TColumnContents{&column, std::move(twin)});
}

void TKQueryRecord::ColumnPut(int index, TResultField& column) {
    outside.erase(&column);
    if (!taken.contains(&column)) known.insert(&column);
    changes.emplace_back(TColumnPlace{index, &column, true});
}

void TKQueryRecord::ColumnTaken(int index, TResultField& column) {
    taken.insert(&column);
    outside.insert(&column);
    changes.emplace_back(TColumnPlace{index, &column, false});
}

void TKQueryRecord::ColumnMoved(int from, int to) {
    changes.emplace_back(TColumnMove{from, to});
}

void TKQueryRecord::JustSortingChanges() {
    changes.emplace_back(TJustSorting{query.QResult().ResultFields().JustSorting()});
}

void TKQueryRecord::OptionsChange(TSQLOptions to) {
    const int now = SQLOptionsToInt(query.SQLOptions());
    const int mask = now ^ SQLOptionsToInt(to);
    changes.emplace_back(TOptions{mask, now & mask});
}

void TKQueryRecord::SyntaxChanges() {
    changes.emplace_back(TSyntax{query.SQLSyntax()});
}

void TKQueryRecord::JoiningChanges() {
    changes.emplace_back(TJoining{query.MainTableName(), query.AvoidedJoins()});
}

void TKQueryRecord::ReportChanges(std::shared_ptr<const TSQLReport> from) {
    changes.emplace_back(TReport{std::move(from)});
}

void TKQueryRecord::TextsChange() {
    changes.emplace_back(TTexts{query.QueryName(), query.FormatVersion(), query.Titles,
                                query.Description, query.UserData});
}

void TKQueryRecord::Append(TKQueryRecord& later) {
    for (TChange& change : later.changes) {
        const void* object = nullptr;
        if (const auto* contents = std::get_if<TRowContents>(&change)) object = contents->row;
        if (const auto* contents = std::get_if<TColumnContents>(&change)) object = contents->column;
        // the twin of the earlier step holds what was there before both
        if (!object || known.insert(object).second) changes.emplace_back(std::move(change));
    }
    later.changes.clear();
    rows.merge(later.rows);
    columns.merge(later.columns);
    known.merge(later.known);
    fresh.merge(later.fresh);
    taken.merge(later.taken);
}

// --- replaying

void TKQueryRecord::Undo() {
    Replay(true);
}

void TKQueryRecord::Redo() {
    Replay(false);
}

void TKQueryRecord::Replay(bool undo) {
    constexpr size_t tellEach = 16; // beyond it one refresh of the views is cheaper
    query.RequireChangeable();
    assert(IsComplete());
    TToldRows told;
    TKQuery::THeldEvents events(query);
    {
        const TKQueryUpdate update(changes.size() > tellEach ? &query : nullptr);
        const TKQuery::TReplaying replaying(query);
        auto turn = [&](TChange& change) {
            std::visit([&](auto& c) { Turn(c, undo, told); }, change);
        };
        if (undo)
            std::for_each(changes.rbegin(), changes.rend(), turn);
        else
            std::for_each(changes.begin(), changes.end(), turn);
    }
    for (const TToldRow& t : told)
        t.row->TellExchanged(t.what);
    events.Send();
}

void TKQueryRecord::Turn(TRowContents& change, bool, TToldRows& told) {
    told.push_back({change.row, change.row->Exchange(*change.twin)});
}

void TKQueryRecord::Turn(TRowPlace& change, bool undo, TToldRows&) {
    if (change.put != undo) {
        auto node = rows.extract(change.row);
        assert(!node.empty());
        change.parent->InsertRow(change.index, std::move(node.mapped()));
    } else {
        rows[change.row] = change.parent->TakeRow(change.row);
        assert(rows[change.row]);
    }
}

void TKQueryRecord::Turn(TColumnContents& change, bool, TToldRows&) {
    change.column->Exchange(*change.twin);
}

void TKQueryRecord::Turn(TColumnPlace& change, bool undo, TToldRows&) {
    TRFieldList& list = query.QResult().ResultFields();
    if (change.put != undo) {
        auto node = columns.extract(change.column);
        assert(!node.empty());
        list.PutField(change.index, std::move(node.mapped()));
    } else {
        columns[change.column] = list.TakeField(change.index);
    }
}

void TKQueryRecord::Turn(TColumnMove& change, bool undo, TToldRows&) {
    if (undo)
        query.QResult().ResultFields().Move(change.to, change.from);
    else
        query.QResult().ResultFields().Move(change.from, change.to);
}

void TKQueryRecord::Turn(TJustSorting& change, bool, TToldRows&) {
    TRFieldList& list = query.QResult().ResultFields();
    const bool now = list.JustSorting();
    list.SetJustSorting(std::exchange(change.other, now));
}

void TKQueryRecord::Turn(TOptions& change, bool, TToldRows&) {
    const int now = SQLOptionsToInt(query.SQLOptions());
    query.SetSQLOptions(IntToSQLOptions((now & ~change.mask) | change.other));
    change.other = now & change.mask;
}

void TKQueryRecord::Turn(TSyntax& change, bool, TToldRows&) {
    const TSQLSyntax now = query.SQLSyntax();
    query.SetSQLSyntax(std::exchange(change.other, now));
}

void TKQueryRecord::Turn(TJoining& change, bool, TToldRows&) {
    TJoining now{query.MainTableName(), query.AvoidedJoins()};
    query.SetMainTableName(std::move(change.mainTable));
    query.SetAvoidedJoins(std::move(change.avoided));
    change = std::move(now);
}

void TKQueryRecord::Turn(TReport& change, bool, TToldRows&) {
    std::shared_ptr<const TSQLReport> now = query.sqlReport;
    query.SetSQLReport(std::exchange(change.other, std::move(now)));
}

void TKQueryRecord::Turn(TTexts& change, bool, TToldRows&) {
    std::string now = query.QueryName();
    query.SetQueryName(std::exchange(change.name, std::move(now)));
    const double version = query.FormatVersion();
    query.SetFormatVersion(std::exchange(change.version, version));
    query.Titles.swap(change.titles);
    query.Description.swap(change.description);
    query.UserData.swap(change.userData);
}

// --- what it is about

TFilterRow* TKQueryRecord::Row() const {
    const TRowPlace* gone = nullptr;
    for (const TChange& change : changes) {
        TFilterRow* row = nullptr;
        const auto* place = std::get_if<TRowPlace>(&change);
        if (place) row = place->row;
        if (const auto* contents = std::get_if<TRowContents>(&change)) row = contents->row;
        if (row && !row->detached) return row;
        if (place && !gone && !place->parent->detached) gone = place;
    }
    if (!gone) return nullptr;
    TFilterBracket& parent = *gone->parent;
    if (parent.GetRowCount() > 0)
        return parent.GetRow(std::min(gone->index, parent.GetRowCount() - 1));
    return parent.Parent() ? &parent : nullptr;
}

TKQueryRecording::TKQueryRecording(TKQuery& owner, TKQueryRecord& target)
    : query(owner), life(owner.Life()), before(std::exchange(owner.record, &target)),
      events(owner) {}

TKQueryRecording::~TKQueryRecording() {
    if (!life.expired()) query.record = before;
}

void TKQueryRecording::SendEvents() {
    events.Send();
}

} // namespace tern7
