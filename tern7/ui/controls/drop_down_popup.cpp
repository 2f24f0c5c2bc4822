#include <tern7/ui/controls/drop_down_popup.h>

#include <tern7/ui/controls/editor_events.h>

namespace tern7 {

namespace {

QString MenuCaption(QString text) {
    return text.replace(u'&', QStringLiteral("&&"));
}

} // namespace

TDropDownPopup::TDropDownPopup(QWidget* parent) : TDropDownList(parent) {}

TDropDownPopup::~TDropDownPopup() {
    if (menu) disconnect(menu, nullptr, this, nullptr);
    DiscardEditor(menu);
}

void TDropDownPopup::SetMaxItemCount(int count) {
    if (menu && maxItemCount > 0 && count <= 0) menu->SetFitToScreen(true);
    maxItemCount = count;
}

TKPopupMenu* TDropDownPopup::Menu() const {
    EnsureControl();
    return menu;
}

void TDropDownPopup::CreateControl() {
    TDropDownList::CreateControl();
    if (menu) return menu->setParent(parentWidget(), menu->windowFlags());
    menu = new TKPopupMenu(parentWidget());
    menu->setLayoutDirection(layoutDirection());
    // Queued: what the choice caused is done before the label looks whether there was one. A menu
    // that a handler has opened again stays.
    const auto dismissed = [this] {
        if (!menu || !menu->isVisible()) DropUp(false);
    };
    connect(menu, &TKPopupMenu::closed, this, dismissed, Qt::QueuedConnection);
}

void TDropDownPopup::BiDiModeChanged() {
    TDropDownList::BiDiModeChanged();
    if (menu) menu->setLayoutDirection(layoutDirection());
}

void TDropDownPopup::ShowControl() {
    TDropDownList::ShowControl();
    if (!menu) return DropUp(false);
    FillMenu();
    menu->setAccessibleName(accessibleName());
    if (maxItemCount > 0) menu->SetFitToScreen(false);
    const QRect place(parentWidget()->mapToGlobal(pos()), size());
    menu->SetQuietArea(place);
    menu->PopupAt(place);
}

void TDropDownPopup::HideControl() {
    if (menu && menu->isVisible()) menu->hide();
}

void TDropDownPopup::FillMenu() {
    TMenuItem& root = menu->Items();
    root.Clear();
    menu->SetCurrentItem(nullptr);
    menu->SetImages(Images());
    int groupCount = 0;
    for (int g = 0; g < Groups().Count(); ++g) {
        const TItemGroup& group = Groups().Items(g);
        TMenuItem& into = group.Name().isEmpty() ? root : AddGroupItem(group.Name(), groupCount);
        int count = 0;
        for (const int index : group.Indices()) {
            if (index >= Items().size()) continue;
            const TMenuItem& item = AddMenuItem(into, group.Name(), index, count);
            if (index == ItemIndex()) menu->SetCurrentItem(&item);
        }
    }
}

TMenuItem& TDropDownPopup::AddGroupItem(const QString& name, int& count) {
    TMenuItem& item = menu->Items().Add(MenuCaption(name));
    if (!item.IsSeparator()) DoGetGroupImageIndex(name, item.ImageIndex);
    CountItem(item, count);
    return item;
}

TMenuItem& TDropDownPopup::AddMenuItem(TMenuItem& into, const QString& group, int index,
                                       int& count) {
    TMenuItem& item = into.Add(MenuCaption(Items()[index]));
    if (!item.IsSeparator()) DoGetItemImageIndex(group, Items()[index], item.ImageIndex);
    item.Tag = index;
    item.OnClick = [this](TMenuItem* clicked) { MenuClick(clicked); };
    CountItem(item, count);
    return item;
}

/// With a limit, the item behind a full column begins the next one.
void TDropDownPopup::CountItem(TMenuItem& item, int& count) const {
    ++count;
    if (maxItemCount <= 0 || count <= maxItemCount) return;
    item.Break = TMenuBreak::mbBarBreak;
    count = 1;
}

/// The value is set before the label drops up, so that a handler sees it; a veto takes it back.
void TDropDownPopup::MenuClick(TMenuItem* item) {
    const QPointer<TDropDownPopup> alive(this);
    const int oldIndex = ItemIndex();
    const QString oldValue = Value(), oldCaption = Caption();
    bool accepted = true;
    SetItemIndex(item->Tag);
    if (!alive) return;
    const auto listening = connect(this, &TDropDownLabel::droppedUp, this,
                                   [&accepted](bool answer) { accepted = answer; });
    DropUp(true);
    if (!alive) return;
    disconnect(listening);
    if (accepted) return;
    SetItemIndex(oldIndex);
    SetValue(oldValue);
    SetCaption(oldCaption);
}

} // namespace tern7
