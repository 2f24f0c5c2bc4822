#pragma once

#include <tern7/ui/controls/drop_down_list.h>
#include <tern7/ui/controls/list_popup.h>

class QListView;

namespace tern7 {

class TItemListModel;

/// A list that is chosen from a list box. A click on a row or Enter accepts, Escape discards;
/// leaving accepts a row that the user moved to.
class TDropDownListBox : public TDropDownList {
    Q_OBJECT

public:
    explicit TDropDownListBox(QWidget* parent = nullptr);
    ~TDropDownListBox() override;

    QWidget* EditControl() const override;

protected:
    void CreateControl() override;
    void ShowControl() override;
    void HideControl() override;
    void AcceptInput() override;
    bool IsEditMode() const override;
    void BiDiModeChanged() override;

    /// Makes the list with its model; once.
    virtual QListView* CreateList(TItemListModel*& listModel);
    /// Fills the list before it is shown.
    virtual void FillList();
    virtual void ListBoxExit();
    virtual int GetLBWidth() const;
    virtual int GetListItemHeight() const;
    /// The window that the list lives in, and where the label is on the screen.
    TListPopup* CreateDesktop(QListView& list, TItemListModel& listModel);
    QRect ClientToDesktop() const;

    TItemListModel* Model() const { return model; }
    TListPopup* Desktop() const { return desktop; }

private:
    QIcon ItemImage(int item) const;

    QPointer<TListPopup> desktop;
    TItemListModel* model = nullptr; // belongs to the list
};

/// A list of which several items can be chosen: the value is their values as comma text, the
/// caption their texts. Leaving accepts. Values that are not in the list stay until the choice is
/// changed.
class TDropDownCheckListBox : public TDropDownListBox {
    Q_OBJECT

public:
    explicit TDropDownCheckListBox(QWidget* parent = nullptr);

protected:
    QListView* CreateList(TItemListModel*& listModel) override;
    void FillList() override;
    void AcceptInput() override;
    QString ValueCaption() const override;

private:
    bool changed = false;
};

} // namespace tern7
