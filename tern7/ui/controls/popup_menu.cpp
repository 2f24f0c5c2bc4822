#include <tern7/ui/controls/popup_menu.h>

#include <algorithm>

#include <QAccessible>
#include <QLineEdit>
#include <QStyle>

#include <tern7/ui/controls/accessible_label.h>
#include <tern7/ui/controls/editor_events.h>
#include <tern7/ui/controls/popup_place.h>
#include <tern7/ui/controls/text_search.h>
#include <tern7/ui/support/system_metrics.h>
#include <tern7/ui/support/text_size.h>

namespace tern7 {

namespace {

void ForgetBreaks(TMenuItem& item) {
    item.Break = TMenuBreak::mbNone;
    for (int i = 0; i < item.Count(); ++i)
        ForgetBreaks(item.Items(i));
}

void Split(TMenuItem& item, int limit, TKPopupSplitType type, TMenuBreak breakType) {
    for (const int at : ColumnBreaks(item.Count(), limit, type))
        item.Items(at).Break = breakType;
    for (int i = 0; i < item.Count(); ++i)
        if (item.Items(i).Count() > 0) Split(item.Items(i), limit, type, breakType);
}

/// Calls `visit` for every item that can be chosen, below all sub menus, in their order.
template <class Visit>
void ForEachLeaf(TMenuItem& menu, const Visit& visit) {
    for (int i = 0; i < menu.Count(); ++i) {
        TMenuItem& item = menu.Items(i);
        if (item.HasSubMenu())
            ForEachLeaf(item, visit);
        else if (!item.IsSeparator())
            visit(item);
    }
}

} // namespace

TKPopupMenu::TKPopupMenu(QWidget* parent)
    : QWidget(parent, Qt::Popup), ownRoot(std::make_unique<TMenuItem>()), root(ownRoot.get()) {
    root->BeforeChange = [this](bool removing) {
        if (isVisible()) CloseAll();
        if (removing) first = nullptr;
    };
    Init();
}

TKPopupMenu::TKPopupMenu(TMenuItem& submenu, TKPopupMenu& from)
    : QWidget(&from, Qt::Popup), root(&submenu), opener(&from), fitToScreen(from.fitToScreen),
      images(from.images) {
    Init();
    setFont(from.font());
    setLayoutDirection(from.layoutDirection());
    setAccessibleName(submenu.PlainCaption());
}

TKPopupMenu::~TKPopupMenu() = default;

void TKPopupMenu::Init() {
    InstallAccessibleControls();
    setAttribute(Qt::WA_WindowPropagation);
    setAttribute(Qt::WA_X11NetWmWindowTypePopupMenu);
    setMouseTracking(true);
}

// --- opening

void TKPopupMenu::Popup(int X, int Y) {
    PopupAt(QRect(X, Y, 0, 0));
}

void TKPopupMenu::PopupAt(const QRect& at) {
    CloseSub();
    anchor = at;
    SystemMetrics().GetMetricSettings();
    setFont(SystemMetrics().Font());
    PrepareSearch();
    if (fitToScreen) SplitIntoColumns();
    ShowItems();
    Lay();
    if (shown.empty()) {
        emit closed();
        return;
    }
    Place();
    mouseUsed = false;
    openedAt = QCursor::pos();
    if (search) search->setFocus();
    show();
    for (const TMenuItem* item = first; item; item = item->Parent()) {
        const auto row = std::find(shown.begin(), shown.end(), item);
        if (row != shown.end()) SetCurrentRow(static_cast<int>(row - shown.begin()));
    }
}

/// Frame and search field don't count: a menu that just does not fit because of them scrolls.
void TKPopupMenu::SplitIntoColumns() {
    const int limit = ScreenRoom(*this, anchor.topLeft()).height() / RowHeight();
    ForgetBreaks(*root);
    Split(*root, std::max(limit, 1), splitType, breakType);
}

void TKPopupMenu::PrepareSearch() {
    int choices = 0;
    ForEachLeaf(*root, [&](TMenuItem&) { ++choices; });
    // A handler may open the menu again from within a key press of the old field.
    DiscardEditor(search);
    search = nullptr;
    if (choices < searchFrom) return;
    search = new QLineEdit(this);
    search->setPlaceholderText(tr("Search"));
    search->setAccessibleName(tr("Search"));
    search->setClearButtonEnabled(true);
    search->installEventFilter(this);
    connect(search, &QLineEdit::textChanged, this, &TKPopupMenu::SearchChanged);
}

// --- what is shown

void TKPopupMenu::ShowItems() {
    shown.clear();
    showsHits = false;
    for (int i = 0; i < root->Count(); ++i)
        shown.push_back(&root->Items(i));
    current = -1;
}

void TKPopupMenu::ShowHits(const QString& text) {
    const TTextSearch wanted(text);
    shown.clear();
    showsHits = true;
    ForEachLeaf(*root, [&](TMenuItem& item) {
        const QString group = item.Parent() == root ? QString() : item.Parent()->PlainCaption();
        if (wanted.Finds(item.PlainCaption() + u' ' + group)) shown.push_back(&item);
    });
    current = -1;
}

void TKPopupMenu::SearchChanged(const QString& text) {
    CloseSub();
    if (TTextSearch(text).IsEmpty())
        ShowItems();
    else
        ShowHits(text);
    Lay();
    Place();
    if (showsHits) Step(-1, 1);
    update();
}

void TKPopupMenu::Lay() {
    std::vector<TMenuRow> rows;
    rows.reserve(shown.size());
    const QFontMetrics metrics(font());
    groupWidth = 0;
    checkable = std::any_of(shown.begin(), shown.end(),
                            [](const TMenuItem* item) { return item->Checked || item->RadioItem; });
    for (int i = 0; i < RowCount(); ++i)
        groupWidth = std::max(groupWidth, metrics.horizontalAdvance(GroupText(i)));
    const int besideText = groupWidth > 0 ? groupWidth + 2 * metrics.averageCharWidth() : 0;
    for (int i = 0; i < RowCount(); ++i) {
        const TMenuItem& item = *Row(i);
        const bool breaks = !showsHits && item.Break != TMenuBreak::mbNone;
        rows.push_back({metrics.horizontalAdvance(item.PlainCaption()) + besideText,
                        item.IsSeparator(), breaks, item.Break == TMenuBreak::mbBarBreak});
    }
    const bool fromRight = layoutDirection() == Qt::RightToLeft;
    layout = LayoutMenu(rows, Metrics(), fromRight);
    if (fitToScreen && layout.size.width() > MostColumnsWidth()) {
        for (TMenuRow& row : rows)
            row.newColumn = false;
        layout = LayoutMenu(rows, Metrics(), fromRight);
    }
    scroll = QPoint(fromRight ? layout.size.width() : 0, 0);
    ScrollBy({0, 0});
}

/// What a hit is shown with: the sub menu that it comes from.
QString TKPopupMenu::GroupText(int row) const {
    const TMenuItem& item = *Row(row);
    return showsHits && item.Parent() != root ? item.Parent()->PlainCaption() : QString();
}

TMenuItem* TKPopupMenu::CurrentItem() const {
    return current < 0 ? nullptr : Row(current);
}

// --- geometry

int TKPopupMenu::RowHeight() const {
    return ternTextHeight(QStringLiteral("I"), font()) + 4;
}

int TKPopupMenu::FrameWidth() const {
    return style()->pixelMetric(QStyle::PM_MenuPanelWidth, nullptr, this) +
           std::max(style()->pixelMetric(QStyle::PM_MenuHMargin, nullptr, this),
                    style()->pixelMetric(QStyle::PM_MenuVMargin, nullptr, this));
}

QRect TKPopupMenu::ViewRect() const {
    const int frame = FrameWidth();
    const int top = search ? search->sizeHint().height() : 0;
    return rect().adjusted(frame, frame + top, -frame, -frame);
}

/// Columns help while all of them are seen at once and leave something of the window below free;
/// beyond that one list is scrolled, and searched.
int TKPopupMenu::MostColumnsWidth() const {
    return ScreenRoom(*this, anchor.topLeft()).width() * 2 / 3;
}

/// A list that has to be scrolled leaves in sight what it was opened from.
int TKPopupMenu::MostHeight() const {
    const QRect room = ScreenRoom(*this, anchor.topLeft());
    const bool list = layout.columnStarts.size() <= 1 && layout.size.height() > room.height();
    if (!list || opener) return room.height();
    const int below = room.bottom() - anchor.bottom(), above = anchor.top() - room.top();
    return std::max({below, above, room.height() / 2});
}

QSize TKPopupMenu::WindowSize() const {
    const int frame = 2 * FrameWidth();
    QSize size = layout.size.expandedTo({0, RowHeight()}) + QSize(frame, frame);
    if (search) { // wide enough to type in it, and to say that nothing was found
        size.rheight() += search->sizeHint().height();
        size = size.expandedTo({search->sizeHint().width(), 0});
    }
    return size.boundedTo({ScreenRoom(*this, anchor.topLeft()).width(), MostHeight()});
}

void TKPopupMenu::Place() {
    const QSize size = WindowSize();
    const QRect room = ScreenRoom(*this, anchor.topLeft());
    const bool fromRight = layoutDirection() == Qt::RightToLeft;
    const QPoint at = opener ? PlaceBeside(size, room) : PlaceBelow(anchor, size, room, fromRight);
    setGeometry(MovedInto(room, at, size));
    ScrollBy({0, 0});
    if (current >= 0) ScrollTo(current);
}

QPoint TKPopupMenu::PlaceBeside(QSize size, const QRect& room) const {
    const int left = anchor.left() - size.width(), right = anchor.right() + 1;
    const bool fitsLeft = left >= room.left(), fitsRight = right + size.width() <= room.right() + 1;
    const bool wantsLeft = layoutDirection() == Qt::RightToLeft;
    const bool toLeft = wantsLeft ? fitsLeft || !fitsRight : fitsLeft && !fitsRight;
    return {toLeft ? left : right, anchor.top() - FrameWidth()};
}

void TKPopupMenu::resizeEvent(QResizeEvent*) {
    if (!search) return;
    const int frame = FrameWidth();
    search->setGeometry(frame, frame, width() - 2 * frame, search->sizeHint().height());
}

// --- sub menus and closing

void TKPopupMenu::OpenSub(int row, bool byKey) {
    TMenuItem& item = *Row(row);
    if (sub && sub->isVisible() && sub->root == &item) {
        if (byKey) sub->Step(-1, 1);
        return;
    }
    CloseSub();
    if (!item.HasSubMenu() || !item.Enabled) return;
    sub = new TKPopupMenu(item, *this);
    sub->ShowItems();
    sub->anchor = QRect(mapToGlobal(RowRect(row).topLeft()), RowRect(row).size());
    sub->Lay();
    sub->Place();
    sub->mouseUsed = true;
    sub->show();
    if (byKey) sub->Step(-1, 1);
}

void TKPopupMenu::CloseSub() {
    hoverTimer.stop();
    if (!sub) return;
    TKPopupMenu* closing = sub;
    sub = nullptr;
    closing->hide();
    closing->deleteLater();
}

TKPopupMenu& TKPopupMenu::Outermost() {
    TKPopupMenu* menu = this;
    while (menu->opener)
        menu = menu->opener;
    return *menu;
}

void TKPopupMenu::CloseAll() {
    TKPopupMenu& outermost = Outermost();
    outermost.CloseSub();
    outermost.hide();
}

/// A menu that is closed shows nothing, also not to screen readers: its items may be gone.
void TKPopupMenu::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    CloseSub();
    scrollTimer.stop();
    shown.clear();
    current = -1;
    if (!opener && !triggering) emit closed();
}

void TKPopupMenu::Activate(int row) {
    if (!Selectable(row)) return;
    TMenuItem& item = *Row(row);
    if (item.HasSubMenu())
        OpenSub(row, true);
    else
        Trigger(item);
}

/// The menu is out of sight before the handler runs, and `closed` comes behind it.
void TKPopupMenu::Trigger(TMenuItem& item) {
    const QPointer<TKPopupMenu> outermost = &Outermost();
    const TEvent<TMenuItem*> onClick = item.OnClick;
    const auto finish = [&outermost] {
        if (!outermost) return;
        outermost->triggering = false;
        // A handler may have opened the menu again.
        if (!outermost->isVisible()) emit outermost->closed();
    };
    outermost->triggering = true;
    CloseAll();
    try {
        onClick(&item);
    } catch (...) {
        finish();
        throw;
    }
    finish();
}

} // namespace tern7
