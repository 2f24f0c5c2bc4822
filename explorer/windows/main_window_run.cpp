#include "main_window.h"

#include <algorithm>
#include <map>
#include <optional>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTableView>

#include <tern7/core/corekit/strings.h>
#include <tern7/core/query/panel_menus.h>
#include <tern7/core/query/row_text.h>
#include <tern7/core/structure/offered_fields.h>
#include <tern7/ui/controls/popup_menu.h>
#include <tern7/ui/panels/filter_row_view.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/panels/result_fields_panel.h>
#include <tern7/ui/panels/row_problem.h>
#include <tern7/ui/support/text.h>

#include "../data/error_text.h"
#include "../run/background.h"
#include "menu_text.h"
#include "parameter_dialog.h"
#include "result_view.h"

namespace tern7 {

namespace {

constexpr size_t mostTrials = 100;
constexpr int mostAtOnce = 3;          // statements in the background
constexpr qsizetype mostSQL = 100'000; // characters that are shown

/// A message of the library.
TWording Message(const char* message) {
    return [text = ToQt(message)] { return MessageText(text); };
}

/// The conditions of a query, depth first.
void CollectConditions(TFilterBracket& bracket, std::vector<TFilterCond*>& found) {
    for (int i = 0; i < bracket.GetRowCount(); ++i) {
        TFilterRow* row = bracket.GetRow(i);
        if (TFilterCond* condition = row->AsCond())
            found.push_back(condition);
        else
            CollectConditions(*row->AsBracket(), found);
    }
}

} // namespace

// --- what follows a change

void TMainWindow::QueryChanged() {
    setWindowModified(true); // looked at closer when the statement is shown
    sqlTimer.start();
    if (liveAction->isChecked()) liveTimer.start();
}

void TMainWindow::ShowSQL() {
    if (!session) return;
    UpdateTitle();
    UpdateActions();
    std::optional<TBoundSQL> statement;
    try {
        conditions->BuildQuery();
        sqlText->setPlainText(ToQt(conditions->QResult().GetSQL().Text()).left(mostSQL));
        sqlText->setPlaceholderText({});
        statement = PresentStatement();
    } catch (const std::exception& error) {
        sqlText->clear();
        const bool empty = columns->ResultFields().GetCount() == 0;
        sqlText->setPlaceholderText(empty ? tr("Add a column to begin.") : ErrorText(error));
    }
    results->CompareWith(statement);
    ShowGrouping();
    ShowTables();
    ShowSorting();
    if (queryMessages->Shown() == unfinishedMessage) ShowUnfinished(); // perhaps no more, or others
}

/// What would be run; none when the query can not be.
std::optional<TBoundSQL> TMainWindow::PresentStatement() const {
    try {
        return conditions->QResult().GetBoundSQL();
    } catch (const std::exception&) {
        return {}; // a run would say why
    }
}

/// With sums, counts and the like there is a row for each combination of the other columns.
void TMainWindow::ShowGrouping() {
    const TRFieldList& list = columns->ResultFields();
    QStringList groups;
    bool aggregates = false;
    for (int i = 0; i < list.GetCount(); ++i) {
        const TResultField& column = *list.GetItem(i);
        if (column.GetAgregate())
            aggregates = true;
        else
            groups << ToQt(column.Caption());
    }
    grouping->setVisible(aggregates);
    if (groups.isEmpty())
        grouping->setText(tr("One row for all records."));
    else
        grouping->setText(tr("One row for each: %1.").arg(groups.join(QStringLiteral(", "))));
}

// --- running

void TMainWindow::RunQuery() {
    RunWith(true);
}

void TMainWindow::RunWith(bool asking) {
    liveTimer.stop();
    if (!session) return;
    // nothing moves or closes below the hands of somebody who is choosing
    if (!asking && QApplication::activePopupWidget()) return liveTimer.start();
    // nor do statements that were given up pile up on a server
    if (!asking && BackgroundCount() > mostAtOnce) return liveTimer.start();
    if (asking) {
        conditions->CloseEdit();
        queryMessages->Clear();
    }
    if (columns->ResultFields().GetCount() == 0) {
        if (asking)
            queryMessages->Say(
                TMessageBar::TKind::Note,
                [] {
                    return tr("Add a column first: it is what the result will "
                              "show.");
                },
                [] { return tr("Add column"); }, [this] { AddColumn(); });
        return;
    }
    const TKQuery& query = conditions->Query();
    const std::vector<TSQLParam*> params = query.AllParams();
    if (asking && !params.empty() && !OnTrouble) {
        TParameterDialog dialog(query, this);
        if (dialog.exec() != QDialog::Accepted) return;
        dialog.Apply();
    }
    for (const TSQLParam* param : params) {
        if (param->HasValue()) continue;
        if (OnTrouble)
            return OnTrouble(tr("The query asks for the value of %1.").arg(ToQt(param->Caption())));
        if (!asking) return; // it is asked for when the user runs the query
    }
    if (RefuseWrongDates(asking)) return;
    try {
        TRunRequest request = MakeRequest();
        results->SetStatement(request.statement);
        results->SetCaptions(Captions());
        askedColumns.clear();
        for (int i = 0; i < columns->ResultFields().GetCount(); ++i)
            askedColumns.push_back(columns->ResultFields().GetItem(i));
        liveTimer.stop(); // what was typed until now is in it
        runner.Run(std::move(request));
        if (asking) ShowUnfinished(); // else the rows say so themselves
    } catch (const EKWrongValueError& error) {
        if (!asking) return;
        TFilterCond& row = const_cast<TFilterCond&>(error.Condition());
        const int number = row.RowNum();
        queryMessages->Say(
            TMessageBar::TKind::Warning, Message(error.what()), [] { return tr("Show the row"); },
            [this, number] { FocusRow(number); });
    } catch (const std::exception& error) {
        if (asking) queryMessages->Say(TMessageBar::TKind::Warning, Message(error.what()));
    }
}

/// A field's own name is said as everywhere else, with its table where others have the name too.
/// A text that is no date would be compared letter by letter, with rows that mean nothing.
bool TMainWindow::RefuseWrongDates(bool asking) {
    std::vector<TFilterCond*> rows;
    CollectConditions(conditions->Root(), rows);
    for (const TFilterCond* row : rows) {
        if (!row->EffectivelyEnabled() || row->Unfinished() != TUnfinished::No) continue;
        if (!row->IsRecognized() || row->IsSubQueryOperator()) continue; // their values are SQL
        for (int n = 1; n <= row->ValueCount(); ++n) {
            if (row->ValueIsParam(n)) continue;
            const QString problem = DateProblem(*row, ToQt(row->Value(n)));
            if (problem.isEmpty()) continue;
            if (OnTrouble)
                OnTrouble(problem);
            else if (asking)
                queryMessages->Say(
                    TMessageBar::TKind::Warning,
                    [this, number = row->RowNum(), problem] {
                        return tr("“%1”: %2").arg(Sentence(number), problem);
                    },
                    [] { return tr("Show the row"); },
                    [this, number = row->RowNum()] { FocusRow(number); });
            return true;
        }
    }
    return false;
}

std::vector<std::string> TMainWindow::Captions() const {
    std::vector<std::string> captions;
    const TRFieldList& list = columns->ResultFields();
    const TKRowTexts texts;
    for (int i = 0; i < list.GetCount() && !list.JustSorting(); ++i) {
        const TResultField& column = *list.GetItem(i);
        const bool plain = column.Formula() == "@1" && column.GetDSFieldCount() == 1;
        const TDSField* field = plain ? column.GetDSField(0) : nullptr;
        std::string caption = column.Caption();
        if (field && caption.starts_with(field->DisplayName())) {
            const std::string number = caption.substr(field->DisplayName().size());
            const std::string named = texts.FieldText(*field);
            const bool again = std::find(captions.begin(), captions.end(), named) != captions.end();
            if (std::all_of(number.begin(), number.end(), IsDigit))
                caption = again ? named + number : named;
        }
        captions.push_back(std::move(caption));
    }
    return captions;
}

TRunRequest TMainWindow::MakeRequest() {
    conditions->BuildQuery();
    TRunRequest request;
    request.statement = conditions->QResult().GetBoundSQL();
    request.rowLimit = rowLimit->value();
    request.trials = MakeTrials();
    return request;
}

/// The query with one condition at a time, to find the one that the database does not take.
std::vector<TRunRequest::TTrial> TMainWindow::MakeTrials() const {
    std::vector<TRunRequest::TTrial> trials;
    TKQuery& query = conditions->Query();
    std::vector<TFilterCond*> rows;
    CollectConditions(query.Root(), rows);
    if (rows.size() > mostTrials) return trials;

    TKQuery alone(&session->Structure());
    alone.SaveMainTable = true;
    alone.SetQueryString(query.GetQueryString());
    std::vector<TFilterCond*> copies;
    CollectConditions(alone.Root(), copies);
    if (copies.size() != rows.size()) return trials;
    for (TFilterCond* row : copies)
        row->SetEnabled(false);
    // none is to blame for what is refused without any
    alone.BuildQuery();
    trials.push_back({-1, alone.QResult().GetBoundSQL()});
    for (size_t i = 0; i < copies.size(); ++i) {
        if (!rows[i]->GetEnabled()) continue;
        copies[i]->SetEnabled(true);
        try {
            alone.BuildQuery();
            trials.push_back({rows[i]->RowNum(), alone.QResult().GetBoundSQL()});
        } catch (const std::exception&) {
            // Nothing that the database could be asked.
        }
        copies[i]->SetEnabled(false);
    }
    return trials;
}

void TMainWindow::RunFailed(const QString& message, int row) {
    if (OnTrouble) return OnTrouble(message);
    if (row < 0)
        return results->Messages().Say(TMessageBar::TKind::Warning,
                                       [message] { return MessageText(message); });
    results->Messages().Say(
        TMessageBar::TKind::Warning,
        [this, message, row] { return tr("“%1”: %2").arg(Sentence(row), MessageText(message)); },
        [] { return tr("Show the row"); }, [this, row] { FocusRow(row); });
}

/// A filter never vanishes in silence.
void TMainWindow::ShowUnfinished() {
    const std::vector<TUnfinishedRow> rows = conditions->Query().UnfinishedRows();
    if (rows.empty()) {
        if (queryMessages->Shown() == unfinishedMessage) queryMessages->Clear();
        return;
    }
    const int number = rows.front().row->RowNum();
    const auto say = [this, number, count = static_cast<int>(rows.size())] {
        const TFilterCond* row = RowOf(number);
        const QString first =
            tr("“%1”: %2").arg(Sentence(number), row ? RowProblem(*row) : QString());
        return tr("%n condition(s) are not finished and take no part (%1).", nullptr, count)
            .arg(first);
    };
    queryMessages->Say(
        TMessageBar::TKind::Warning, say, [] { return tr("Show the row"); },
        [this, number] { FocusRow(number); });
    unfinishedMessage = queryMessages->Shown();
}

TFilterCond* TMainWindow::RowOf(int number) const {
    std::vector<TFilterCond*> rows;
    CollectConditions(conditions->Root(), rows);
    const auto found = std::find_if(rows.begin(), rows.end(), [number](const TFilterCond* row) {
        return row->RowNum() == number;
    });
    return found == rows.end() ? nullptr : *found;
}

/// The condition as it stands on the screen.
QString TMainWindow::Sentence(int number) const {
    const TFilterCond* row = RowOf(number);
    if (!row) return {};
    return ToQt(conditions->RowTexts().Sentence(*row, conditions->Query().Style()));
}

void TMainWindow::FocusRow(int number) {
    if (TFilterCond* row = RowOf(number)) conditions->FocusRow(*row);
}

// --- sorting and columns

void TMainWindow::SortBy(int column) {
    TRFieldList& list = columns->ResultFields();
    const int place = PresentPlace(column);
    if (list.JustSorting() || place < 0) return ShowSorting();
    TResultField& clicked = *list.GetItem(place);
    const TSortingType wanted = clicked.Sorting() == TSortingType::stAscending
                                    ? TSortingType::stDescending
                                    : TSortingType::stAscending;
    Step(QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Sort"), [&] {
        for (int i = 0; i < list.GetCount(); ++i)
            if (i != place) list.GetItem(i)->SetSorting(TSortingType::stNoSort);
        clicked.SetSorting(wanted);
        clicked.SetSortOrder(1);
    });
    RunWith(true);
}

/// Where the column of the query is that a column of the shown rows came from; -1 when it has gone.
int TMainWindow::PresentPlace(int shownColumn) const {
    const TRFieldList& list = columns->ResultFields();
    const auto shown = static_cast<size_t>(shownColumn);
    for (int i = 0; i < list.GetCount() && shown < shownColumns.size(); ++i)
        if (list.GetItem(i) == shownColumns[shown]) return i;
    return -1;
}

/// The mark in the header of the column that rows are sorted by first.
void TMainWindow::ShowSorting() {
    const TRFieldList& list = columns->ResultFields();
    int first = -1;
    for (int i = 0; i < list.GetCount(); ++i) {
        const TResultField& column = *list.GetItem(i);
        if (column.Sorting() == TSortingType::stNoSort) continue;
        if (first < 0 || column.SortOrder() < list.GetItem(first)->SortOrder()) first = i;
    }
    const bool down = first >= 0 && list.GetItem(first)->Sorting() == TSortingType::stDescending;
    int shown = -1;
    for (int i = 0; i < results->Model().columnCount() && shown < 0 && first >= 0; ++i)
        if (PresentPlace(i) == first) shown = i;
    results->ShowSorted(list.JustSorting() ? -1 : shown,
                        down ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void TMainWindow::EditColumns() {
    if (!session) return;
    conditions->CloseEdit();
    conditions->EditResultFields();
}

/// Behind the current row; its field is asked for at once.
void TMainWindow::AddCondition() {
    if (!session) return;
    conditions->CloseEdit();
    conditions->MenuItemClick(pcAddCondition);
}

/// All fields in a menu with their groups; the chosen one becomes a column.
void TMainWindow::AddColumn() {
    if (!session) return;
    auto* menu = new TKPopupMenu(this);
    std::map<std::string_view, TMenuItem*> groups;
    for (const TOfferedField& offered : OfferedFields(session->Structure(), TFieldUse::Result)) {
        TMenuItem*& into = groups[offered.group];
        if (!into)
            into = offered.group.empty() ? &menu->Items()
                                         : &menu->Items().Add(MenuText(ToQt(offered.group)));
        TMenuItem& item = into->Add(MenuText(ToQt(offered.field->DisplayName())));
        item.OnClick = [this, id = offered.field->ID()](TMenuItem*) {
            TDSField* chosen = session ? session->Structure().FieldByID(id) : nullptr;
            if (!chosen) return;
            Step(QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Add column"), [&] {
                TRFieldList& list = columns->ResultFields();
                list.Insert(list.GetCount(), list.GetUniqCaption(chosen->DisplayName()), {chosen});
            });
        };
    }
    PopUpAtColumns(menu);
}

} // namespace tern7
