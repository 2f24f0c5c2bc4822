#include <tern7/core/query/panel_menus.h>
#include <tern7/core/titles/default_titles.h>
#include <tern7/core/titles/titles.h>
#include <tern7/ui/controls/popup_menu.h>
#include <tern7/ui/panels/filter_row_view.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/support/guarded.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

void FillMenu(TKPopupMenu& menu, const std::vector<TPanelMenuItem>& items, const TKTitles& titles,
              const std::function<void(int command)>& click) {
    menu.Items().Clear();
    for (const TPanelMenuItem& entry : items) {
        const bool separator = entry.captionKey == "-";
        TMenuItem& item =
            menu.Items().Add(ToQt(separator ? entry.captionKey : titles.Text(entry.captionKey)));
        item.Tag = entry.command;
        if (!separator) item.OnClick = [click](TMenuItem* clicked) { click(clicked->Tag); };
    }
}

/// An application may have taken the command out of the menu.
void EnableItem(TKPopupMenu& menu, int command, bool value) {
    TMenuItem& all = menu.Items();
    for (int i = 0; i < all.Count(); ++i)
        if (all.Items(i).Tag == command) all.Items(i).Enabled = value;
}

} // namespace

/// Captions may have become others: texts of rows and menus are made anew.
void TKQueryPanel::ReadTitles() {
    if (titlesKnown && knownTitles == query->Titles) return;
    titlesKnown = true;
    knownTitles = query->Titles;
    rowTexts = std::make_unique<TKRowTexts>(query->Titles);
    rowTexts->ShowGroupName = appearance->Has(TQPAppearance::aoShowGroupName);
    rowTexts->IsolateTexts = ReadsFromRight();
    rowTexts->TrueText = FromQt(tr("yes"));
    rowTexts->FalseText = FromQt(tr("no"));
    viewsFresh = false;
    CreateMenus();
}

void TKQueryPanel::CreateMenus() {
    const TKTitles titles(DefaultQueryTitles(), query->Titles);
    auto command = [this](int number) { Guarded(this, [&] { MenuItemClick(number); }); };
    FillMenu(*addMenu, AddMenuItems(), titles, command);
    FillMenu(*rowMenu, RowMenuItems(), titles, command);
    FillMenu(*valueMenu, ValueMenuItems(appearance->Has(TQPAppearance::aoAllowParams)), titles,
             [this](int number) { Guarded(this, [&] { ValueMenuItemClick(number); }); });
    for (int i = 0; i < valueMenu->Items().Count(); ++i)
        valueMenu->Items().Items(i).RadioItem = true;
    valueMenu->Items().Items(0).Checked = true;
}

TKPopupMenu& TKQueryPanel::AddMenu() {
    return *addMenu;
}

TKPopupMenu& TKQueryPanel::RowMenu() {
    return *rowMenu;
}

TKPopupMenu& TKQueryPanel::ValueMenu() {
    return *valueMenu;
}

void TKQueryPanel::PopupAddMenu(const QPoint& at) {
    SetCurrentRow(query->Root());
    addMenu->Popup(at.x(), at.y());
}

void TKQueryPanel::PopupRowMenu(TFilterRow& row, const QRect& anchor) {
    SetCurrentRow(row);
    const bool isRoot = !row.Parent();
    EnableItem(*rowMenu, pcDeleteRow, !isRoot);
    EnableItem(*rowMenu, pcEnableDisable, !isRoot);
    rowMenu->PopupAt(anchor);
}

void TKQueryPanel::VPopup(TFilterCond& condition, int n, const QRect& anchor) {
    SetCurrentRow(condition);
    valueMenuRow = &condition;
    valueMenuNumber = n;
    for (int i = 0; i < valueMenu->Items().Count(); ++i) {
        TMenuItem& item = valueMenu->Items().Items(i);
        item.Checked = (item.Tag == vcParameter) == condition.ValueIsParam(n);
    }
    valueMenu->PopupAt(anchor);
}

void TKQueryPanel::MenuItemClick(int command) {
    TFilterRow& row = CurrentRow();
    switch (command) {
    case pcAddBracket:
        InsertBracket();
        break;
    case pcAddCondition:
        if (TFilterCond* added = InsertCondition()) OpenFieldMenu(*added);
        break;
    case pcDeleteRow:
        if (row.Parent()) DeleteRow(row);
        break;
    case pcEnableDisable:
        Do([&](TKQueryEditor& e) { e.SetEnabled(row, !row.GetEnabled()); });
        break;
    default:
        break;
    }
}

void TKQueryPanel::ValueMenuItemClick(int command) {
    TFilterCond* condition = CurrentRow().AsCond();
    if (!condition || (command != vcConstant && command != vcParameter)) return;
    int n = valueMenuRow == condition ? valueMenuNumber : 1;
    if (const TFilterRowView* view = ExistingView(*condition))
        if (const int focused = view->ValueNumberOf(view->GetCurrentControl())) n = focused;
    Do([&](TKQueryEditor& e) { e.SetParameter(*condition, n, command == vcParameter); });
}

} // namespace tern7
