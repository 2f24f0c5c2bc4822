#include <tern7/ui/controls/drop_down_list_box.h>

#include <algorithm>

#include <QHash>
#include <QListView>
#include <QStyle>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/ui/controls/check_list_box.h>
#include <tern7/ui/controls/editor_events.h>
#include <tern7/ui/controls/item_list_model.h>
#include <tern7/ui/support/text.h>
#include <tern7/ui/support/text_size.h>

namespace tern7 {

TDropDownListBox::TDropDownListBox(QWidget* parent) : TDropDownList(parent) {}

TDropDownListBox::~TDropDownListBox() {
    if (!desktop) return;
    desktop->OnEnter = desktop->OnEscape = desktop->OnExit = desktop->OnMouseDown = nullptr;
    model->Image = nullptr;
    DiscardEditor(desktop);
}

QListView* TDropDownListBox::CreateList(TItemListModel*& listModel) {
    auto* list = new QListView;
    listModel = new TItemListModel(list);
    list->setModel(listModel);
    list->setUniformItemSizes(true);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    return list;
}

void TDropDownListBox::CreateControl() {
    TDropDownList::CreateControl();
    if (desktop) return desktop->setParent(parentWidget(), desktop->windowFlags());
    QListView* list = CreateList(model);
    desktop = CreateDesktop(*list, *model);
}

TListPopup* TDropDownListBox::CreateDesktop(QListView& list, TItemListModel& listModel) {
    auto* window = new TListPopup(list, listModel, parentWidget());
    window->setLayoutDirection(layoutDirection());
    window->OnEnter = [this] { DropUp(true); };
    window->OnEscape = [this] { DropUp(false); };
    window->OnExit = [this] { ListBoxExit(); };
    if (!listModel.Checkable()) window->OnMouseDown = window->OnEnter;
    return window;
}

QRect TDropDownListBox::ClientToDesktop() const {
    return {mapToGlobal(QPoint()), size()};
}

QWidget* TDropDownListBox::EditControl() const {
    EnsureControl();
    return desktop ? &desktop->List() : nullptr;
}

bool TDropDownListBox::IsEditMode() const {
    return desktop && desktop->isVisible();
}

void TDropDownListBox::BiDiModeChanged() {
    TDropDownList::BiDiModeChanged();
    if (desktop) desktop->setLayoutDirection(layoutDirection());
}

void TDropDownListBox::ShowControl() {
    TDropDownList::ShowControl();
    if (!desktop) return DropUp(false);
    desktop->setFont(font());
    desktop->setAccessibleName(accessibleName());
    desktop->List().setAccessibleName(accessibleName());
    FillList();
    const QPointer<TDropDownListBox> alive(this);
    const int rowHeight = GetListItemHeight(); // asks for an image
    if (alive) desktop->Open(ClientToDesktop(), GetLBWidth(), rowHeight);
}

void TDropDownListBox::HideControl() {
    if (desktop) desktop->hide();
}

void TDropDownListBox::FillList() {
    model->SetItems(Items(), SortList());
    if (!Images().isEmpty()) model->Image = [this](int item) { return ItemImage(item); };
    const bool known = ItemIndex() >= 0 && ItemIndex() < Items().size();
    const int row = known ? model->RowOf(ItemIndex()) : -1;
    desktop->List().setCurrentIndex(model->index(row));
}

QIcon TDropDownListBox::ItemImage(int item) const {
    for (int g = 0; g < Groups().Count(); ++g) {
        const TItemGroup& group = Groups().Items(g);
        if (!std::binary_search(group.Indices().begin(), group.Indices().end(), item)) continue;
        const QList<QIcon> icons = Images(); // the handler may delete this label
        int image = -1;
        DoGetItemImageIndex(group.Name(), ItemText(item), image);
        return icons.value(image);
    }
    return {};
}

/// A search that was only begun chooses nothing.
void TDropDownListBox::AcceptInput() {
    const QModelIndex row = desktop->SelectedRow();
    if (row.isValid() && desktop->Chosen())
        SetItemIndex(row.data(TItemListModel::itemIndexRole).toInt());
}

void TDropDownListBox::ListBoxExit() {
    DropUp(true);
}

int TDropDownListBox::GetLBWidth() const {
    const QFontMetrics metrics(font());
    int widest = 0;
    for (const QString& item : Items())
        widest = std::max(widest, metrics.horizontalAdvance(item));
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int image = style()->pixelMetric(QStyle::PM_SmallIconSize);
    const int least = std::max(width(), metrics.horizontalAdvance(QString(16, u'x')));
    return std::max(widest + bar + 2 * image, least);
}

int TDropDownListBox::GetListItemHeight() const {
    const int text = ternTextHeight(QStringLiteral("W"), font());
    return std::max(desktop->List().sizeHintForRow(0), text);
}

// --- TDropDownCheckListBox

TDropDownCheckListBox::TDropDownCheckListBox(QWidget* parent) : TDropDownListBox(parent) {}

QListView* TDropDownCheckListBox::CreateList(TItemListModel*& listModel) {
    auto* list = new TKCheckListBox;
    listModel = &list->Model();
    connect(list, &TKCheckListBox::checkChanged, this, [this] { changed = true; });
    return list;
}

void TDropDownCheckListBox::FillList() {
    TDropDownListBox::FillList();
    QHash<QString, bool> wanted;
    for (const std::string& item : ParseCommaText(FromQt(Value())))
        wanted.insert(ToQt(item), true);
    for (int i = 0; i < Items().size() && i < Values().size(); ++i)
        Model()->SetChecked(i, wanted.contains(Values()[i]));
    Desktop()->List().setCurrentIndex(Model()->index(0));
    changed = false;
}

void TDropDownCheckListBox::AcceptInput() {
    if (!changed) return;
    TStrings chosen;
    for (const int item : Model()->Order())
        if (Model()->Checked(item) && item < Values().size())
            chosen.push_back(FromQt(Values()[item]));
    SetValue(ToQt(ComposeCommaText(chosen)));
}

QString TDropDownCheckListBox::ValueCaption() const {
    QHash<QString, int> indexOf;
    for (int i = static_cast<int>(std::min(Items().size(), Values().size())); i-- > 0;)
        indexOf.insert(Values()[i], i);
    QStringList texts;
    for (const std::string& item : ParseCommaText(FromQt(Value()))) {
        const QString single = ToQt(item);
        const auto found = indexOf.constFind(single);
        texts << (found == indexOf.constEnd() ? single : Items()[*found]);
    }
    return texts.join(QStringLiteral(", "));
}

} // namespace tern7
