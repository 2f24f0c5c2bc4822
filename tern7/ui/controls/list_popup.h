#pragma once

#include <functional>

#include <QFrame>

class QLineEdit;
class QListView;

namespace tern7 {

class TItemListModel;

/// The window of a list editor: a list and, for long lists, a search field above it. It reports how
/// it was left and leaves the rest to its label.
class TListPopup : public QFrame {
    Q_OBJECT

public:
    /// Takes the list over; it shows the model.
    TListPopup(QListView& list, TItemListModel& model, QWidget* parent);

    /// Opens below a rectangle of the screen (or above it), `width` wide.
    void Open(const QRect& anchor, int width, int rowHeight);
    QListView& List() const { return list; }
    QLineEdit& Search() const { return *search; }
    /// Invalid when no row is selected.
    QModelIndex SelectedRow() const;
    /// Whether the selected row was chosen by the user: by arrows, a click, or Enter.
    bool Chosen() const { return chosen; }

    // All of them may delete the label; the window itself goes later.
    std::function<void()> OnEnter;
    std::function<void()> OnEscape;
    std::function<void()> OnExit;
    std::function<void()> OnMouseDown; // a row was hit

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    bool KeyPressed(QKeyEvent& event, bool inSearch);
    void Enter();
    void SearchFor(const QString& typed);
    void SelectRow(int row);
    void Leave(const std::function<void()>& how);
    void Place(int width, int rowHeight);

    QListView& list;
    TItemListModel& model;
    QLineEdit* search;
    QRect anchor;
    bool open = false;
    bool chosen = false;
};

} // namespace tern7
