#pragma once

#include <QBasicTimer>
#include <QIcon>
#include <QList>
#include <QPointer>
#include <QWidget>

#include <tern7/ui/controls/menu_item.h>
#include <tern7/ui/controls/menu_layout.h>
#include <tern7/ui/controls/menu_split.h>

class QLineEdit;
class QPainter;
class QStyleOptionMenuItem;

namespace tern7 {

/// A popup menu that spreads many items over columns and, from fifteen items on, begins with a
/// search field: a search shows all hits below all sub menus in one list, each with its group, and
/// Enter takes the first. Sub menus are popups of the same class. Thousands of items are fine: only
/// those in sight are drawn.
///
/// `Popup` returns at once; `closed` follows when the menu is gone. A chosen item's `OnClick` is
/// called after that, and may delete the menu.
class TKPopupMenu : public QWidget {
    Q_OBJECT
    Q_PROPERTY(TMenuBreak BreakType READ BreakType WRITE SetBreakType)
    Q_PROPERTY(TKPopupSplitType PopupSplitType READ PopupSplitType WRITE SetPopupSplitType)
    Q_PROPERTY(bool FitToScreen READ FitToScreen WRITE SetFitToScreen)

public:
    explicit TKPopupMenu(QWidget* parent = nullptr);
    ~TKPopupMenu() override;

    /// The outermost item, which holds the menu's items. Changing it closes the open menu.
    TMenuItem& Items() { return *root; }
    const TMenuItem& Items() const { return *root; }

    /// What a new column begins with.
    TMenuBreak BreakType() const { return breakType; }
    void SetBreakType(TMenuBreak type) { breakType = type; }
    TKPopupSplitType PopupSplitType() const { return splitType; }
    void SetPopupSplitType(TKPopupSplitType type) { splitType = type; }
    /// Splits the menu into columns before it pops up. Off, the breaks of the items count.
    bool FitToScreen() const { return fitToScreen; }
    void SetFitToScreen(bool on) { fitToScreen = on; }
    void SetImages(const QList<QIcon>& icons) { images = icons; }

    /// Opens with the upper left corner (read from the right: the upper right one) at a point of
    /// the screen. Raises EDDLabelError when the columns can not be made (see ColumnBreaks).
    void Popup(int X, int Y);
    /// Opens below a rectangle of the screen, or above it where there is more room.
    void PopupAt(const QRect& anchor);
    /// The item that keys start from when the menu opens; also one of a sub menu.
    void SetCurrentItem(const TMenuItem* item) { first = item; }
    TMenuItem* CurrentItem() const;
    /// A press there just closes the menu and is not passed on.
    void SetQuietArea(const QRect& area) { quietArea = area; }

    // What is shown now: the items, or the hits of a search. A closed menu shows nothing.
    int RowCount() const { return static_cast<int>(shown.size()); }
    /// Both raise EDDLabelError when there is no such row.
    TMenuItem* Row(int i) const;
    QRect RowRect(int i) const;
    /// The row at a point of the menu, or -1.
    int RowAt(QPoint at) const;
    int CurrentRow() const { return current; }
    /// -1 for none; nothing happens when there is no such row.
    void SetCurrentRow(int row);
    /// Opens the sub menu of a row or takes it.
    void Activate(int row);
    QLineEdit* SearchField() const { return search; }
    TKPopupMenu* OpenSubMenu() const { return sub; }

signals:
    /// The menu is gone. Not to be answered by deleting the menu at once.
    void closed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    TKPopupMenu(TMenuItem& submenu, TKPopupMenu& opener);

    // building
    void Init();
    void SplitIntoColumns();
    void PrepareSearch();
    void ShowItems();
    void ShowHits(const QString& text);
    void SearchChanged(const QString& text);
    void Lay();
    void Place();
    QPoint PlaceBeside(QSize size, const QRect& room) const;
    TMenuMetrics Metrics() const;
    int RowHeight() const;
    int FrameWidth() const;
    QRect ViewRect() const;
    int MostColumnsWidth() const;
    int MostHeight() const;
    QSize WindowSize() const;

    // drawing
    void InitOption(QStyleOptionMenuItem& option, int row) const;
    QString GroupText(int row) const;
    void DrawRows(QPainter& painter, const QRect& clip) const;
    void DrawScrollers(QPainter& painter) const;

    // moving about
    void MarkRow(int row);
    void ScrollBy(QPoint step);
    void ScrollTo(int row);
    QPoint ScrollZone(QPoint at) const;
    bool Selectable(int row) const;
    void Step(int from, int direction);
    bool StepColumn(int direction);
    void StepPage(int direction);
    bool KeyPressed(const QKeyEvent& event);
    bool MoveKey(int key);
    void StepIn();
    void StepOut();
    void TypeAhead(const QString& text);
    void OpenSub(int row, bool byKey);
    void CloseSub();
    void CloseAll();
    TKPopupMenu& Outermost();
    TKPopupMenu* MenuAt(QPoint global);
    void Hover(QPoint global);
    void Trigger(TMenuItem& item);

    static constexpr int scrollerSize = 14; // of the strips with arrows at the edges

    std::unique_ptr<TMenuItem> ownRoot; // none in a sub menu
    TMenuItem* root;
    QPointer<TKPopupMenu> opener;
    QPointer<TKPopupMenu> sub;
    QLineEdit* search = nullptr;

    TMenuBreak breakType = TMenuBreak::mbBarBreak;
    TKPopupSplitType splitType = TKPopupSplitType::pstBalanced;
    bool fitToScreen = true;
    QList<QIcon> images;

    std::vector<TMenuItem*> shown;
    bool showsHits = false;
    TMenuLayout layout;
    int groupWidth = 0;     // of the widest group beside a hit
    bool checkable = false; // there is a row with a check mark
    QPoint scroll;
    QRect anchor;
    QRect quietArea;
    int current = -1;
    const TMenuItem* first = nullptr;
    bool triggering = false;
    bool mouseUsed = false; // pressed or moved in the menu; otherwise a release means nothing
    QPoint openedAt;
    QString typed;
    qint64 typedAt = 0;
    QBasicTimer hoverTimer;
    QBasicTimer scrollTimer;
};

} // namespace tern7
