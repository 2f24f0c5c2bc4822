// What the panel asks others for: dialogs, lists from the database, help.

#include <QCoreApplication>
#include <QDesktopServices>
#include <QUrl>

#include <tern7/core/titles/default_titles.h>
#include <tern7/ui/controls/drop_down_label.h>
#include <tern7/ui/controls/popup_menu.h>
#include <tern7/ui/panels/filter_row_view.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/panels/sql_list_reader.h>
#include <tern7/ui/support/screen_services.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

/// A screen has answers for the query; those of the application come first.
void TKQueryPanel::FillServices() {
    TKServices& services = query->Services;
    FillScreenServices(services);
    if (services.editSubQuery) return;
    const QPointer<TKQueryPanel> panel(this);
    services.editSubQuery = [panel](TFilterCond& condition) {
        return panel && panel->EditSubQuery(condition);
    };
}

bool TKQueryPanel::EditSubQuery(TFilterCond& condition) {
    const auto edit = Dialogs.editSubQuery; // the panel may go while it runs
    return edit && edit(this, condition, HelpCall());
}

bool TKQueryPanel::EditTitles() {
    const auto edit = Dialogs.editTitles;
    TStrings titles = query->Titles;
    const QPointer<TKQueryPanel> alive(this);
    if (!edit || !edit(this, DefaultQueryTitles(), titles) || !alive) return false;
    if (titles == query->Titles) return false;
    SetTitles(titles);
    query->Changed();
    return true;
}

bool TKQueryPanel::EditResultFields() {
    DbStruct();
    query->RequireStruct();
    const auto edit = Dialogs.editResultFields;
    if (!edit) return false;
    const QPointer<TKQueryPanel> alive(this);
    TRFieldList& columns = query->QResult().ResultFields();
    const TResultFieldsChange change = edit(this, columns, query->Titles, HelpCall(true));
    if (!alive || !change) return false;
    query->RunStep(QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Edit columns"),
                   [&] { change(columns); });
    return true;
}

std::function<void()> TKQueryPanel::HelpCall(bool forResultFields) {
    const QPointer<TKQueryPanel> panel(this);
    if (forResultFields && OnRFEHelpClick)
        return [panel] {
            if (panel) panel->OnRFEHelpClick(*panel);
        };
    if (helpFileName.isEmpty()) return {};
    // a file without a folder stands beside the program
    QUrl page = QUrl::fromUserInput(helpFileName, QCoreApplication::applicationDirPath(),
                                    QUrl::AssumeLocalFile);
    if (forResultFields && rfeHelpContext != 0) page.setFragment(QString::number(rfeHelpContext));
    return [page] { QDesktopServices::openUrl(page); };
}

// --- lists from the database

void TKQueryPanel::FillListMenu(const TDSField& field) {
    TMenuItem& items = listMenu->Items();
    items.Clear();
    const TSQLListReader::TState state = listReader->StateOf(field);
    QString text = tr("The list is empty");
    if (state == TSQLListReader::TState::Loading) text = tr("The list is being read...");
    if (state == TSQLListReader::TState::Failed)
        text = tr("The list could not be read: %1").arg(listReader->ErrorOf(field));
    items.Add(text.simplified().replace(u'&', QStringLiteral("&&"))).Enabled = false;
    if (state == TSQLListReader::TState::Loading) return;
    TMenuItem& again = items.Add(tr("&Read it again"));
    again.OnClick = [this](TMenuItem*) {
        if (!waitingView) return;
        const TDSField* listed = waitingView->Row().AsCond()->Field();
        if (!listed) return;
        listReader->Demand(*listed);
        PopupListState(*waitingView, waitingValue);
    };
}

void TKQueryPanel::PopupListState(TFilterRowView& view, int n) {
    const TDSField* field = view.Row().AsCond()->Field();
    const TDropDownLabel* label = view.ValueLabel(n);
    if (!field || !label) return;
    waitingView = &view;
    waitingValue = n;
    if (listReader->StateOf(*field) == TSQLListReader::TState::Closed) listReader->Demand(*field);
    FillListMenu(*field);
    listMenu->PopupAt({label->mapToGlobal(QPoint(0, 0)), label->size()});
    view.Refresh();
    Invalidate();
}

/// A list has come (or an error): where a user waits for one, it opens.
void TKQueryPanel::ListFinished() {
    viewsFresh = false;
    Lay();
    if (!waitingView || !listMenu->isVisible()) return;
    const TDSField* field = waitingView->Row().AsCond()->Field();
    if (field && listReader->StateOf(*field) == TSQLListReader::TState::Loading) return;
    listMenu->hide();
    if (TDropDownLabel* label = waitingView->ValueLabel(waitingValue)) label->DropDown();
}

} // namespace tern7
