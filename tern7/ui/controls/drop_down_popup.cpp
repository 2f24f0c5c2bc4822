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
    if (!menu) return;
    disconnect(menu, nullptr, this, nullptr);
    menu->Items().Clear(); // they call this label
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
    if (!FillMenu()) return;
    menu->setAccessibleName(accessibleName());
    if (maxItemCount > 0) menu->SetFitToScreen(false);
    const QRect place(mapToGlobal(QPoint()), size());
    menu->SetQuietArea(place);
    menu->PopupAt(place);
}

void TDropDownPopup::HideControl() {
    if (menu && menu->isVisible()) menu->hide();
}

/// False when a handler that was asked for an image deleted the label.
bool TDropDownPopup::FillMenu() {
    TMenuItem& root = menu->Items();
    root.Clear();
    menu->SetImages(Images());
    int groupCount = 0;
    for (int g = 0; g < Groups().Count(); ++g) {
        const TItemGroup& group = Groups().Items(g);
        const QString name = group.Name();
        TMenuItem* into = name.isEmpty() ? &root : AddGroupItem(name, groupCount);
        if (!into) return false;
        int count = 0;
        for (const int index : group.Indices()) {
            if (index >= Items().size()) continue;
            const TMenuItem* item = AddMenuItem(*into, name, index, count);
            if (!item) return false;
            if (index == ItemIndex()) menu->SetCurrentItem(item);
        }
    }
    return true;
}

TMenuItem* TDropDownPopup::AddGroupItem(const QString& name, int& count) {
    TMenuItem& item = menu->Items().Add(MenuCaption(name));
    CountItem(item, count);
    return AskForImage(item, [&](int& image) { DoGetGroupImageIndex(name, image); });
}

TMenuItem* TDropDownPopup::AddMenuItem(TMenuItem& into, const QString& group, int index,
                                       int& count) {
    const QString text = Items()[index];
    TMenuItem& item = into.Add(MenuCaption(text));
    item.Tag = index;
    item.OnClick = [this](TMenuItem* clicked) { MenuClick(clicked); };
    CountItem(item, count);
    return AskForImage(item, [&](int& image) { DoGetItemImageIndex(group, text, image); });
}

/// Null when the handler deleted the label, and the menu's items with it.
template <class Ask>
TMenuItem* TDropDownPopup::AskForImage(TMenuItem& item, const Ask& ask) {
    if (item.IsSeparator()) return &item;
    const QPointer<TDropDownPopup> alive(this);
    int image = -1;
    ask(image);
    if (!alive) return nullptr;
    item.ImageIndex = image;
    return &item;
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
    before = {ItemIndex(), Value(), Caption()};
    SetItemIndex(item->Tag);
    if (alive) DropUp(true);
    if (alive) before.reset();
}

void TDropDownPopup::DoBeforeDropUp(bool& accept) {
    const QPointer<TDropDownPopup> alive(this);
    TDropDownList::DoBeforeDropUp(accept);
    if (!alive || accept || !before) return;
    TakeBack(*std::exchange(before, std::nullopt));
}

/// Nobody ever sees an empty value in between.
void TDropDownPopup::TakeBack(const TChoice& choice) {
    const QPointer<TDropDownPopup> alive(this);
    SetValue(choice.value);
    if (alive && choice.index >= 0) SetItemIndex(choice.index);
    if (alive) SetCaption(choice.caption);
}

} // namespace tern7
