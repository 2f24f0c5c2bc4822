#pragma once

#include <QListView>

#include <tern7/core/global/events.h>
#include <tern7/ui/controls/item_list_model.h>

namespace tern7 {

/// A list box of items with check marks, made for thousands of them. Space, or a click anywhere on
/// a row, switches its mark; with several rows selected Space gives all of them the same mark.
/// Ctrl+A selects all where many can be selected.
class TKCheckListBox : public QListView {
    Q_OBJECT
    Q_PROPERTY(bool ExtendedSelect READ ExtendedSelect WRITE SetExtendedSelect)
    Q_PROPERTY(bool MultiSelect READ MultiSelect WRITE SetMultiSelect)
    Q_PROPERTY(QStringList Items READ Items WRITE SetItems)

public:
    explicit TKCheckListBox(QWidget* parent = nullptr);

    /// Many rows can be selected; with `ExtendedSelect` by Shift and Ctrl, else each by itself.
    bool ExtendedSelect() const { return extendedSelect; }
    void SetExtendedSelect(bool on);
    bool MultiSelect() const { return multiSelect; }
    void SetMultiSelect(bool on);

    const QStringList& Items() const { return itemModel.Items(); }
    void SetItems(const QStringList& lines) { itemModel.SetItems(lines, false); }
    /// Both raise EDDLabelError when there is no such item.
    bool Checked(int item) const { return itemModel.Checked(item); }
    void SetChecked(int item, bool on) { itemModel.SetChecked(item, on); }
    TItemListModel& Model() { return itemModel; }

    TEvent<TKCheckListBox*> OnClickCheck;

signals:
    void checkChanged(int item);

protected:
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void ApplySelectionMode();
    void Toggle(const QModelIndex& index);

    TItemListModel itemModel;
    bool extendedSelect = true;
    bool multiSelect = false;
};

} // namespace tern7
