#pragma once

#include <QObject>
#include <QPointer>

#include <tern7/core/corekit/object_list.h>
#include <tern7/core/global/sql_options.h>
#include <tern7/ui/controls/drop_down_popup.h>
#include <tern7/ui/controls/round_button.h>

namespace tern7 {

class TKResultFieldsPanel;
class TKRowTexts;
class TResultField;

/// The numbered button of a row, which opens the row's menu.
class TRFRowButton : public TKRndBtn {
    Q_OBJECT

public:
    explicit TRFRowButton(QWidget* parent = nullptr) : TKRndBtn(parent) {}
};

/// One line of a result fields panel: the controls that show one column. It changes nothing itself;
/// what the user chooses is handed to the panel.
///
///     (1) Customer City   Ascending
///     |   |               |
///     |   FieldLabel      SortLabel
///     Button
class TResultFieldRow : public QObject {
    Q_OBJECT

public:
    /// Makes the controls on the panel. ERFPanelError "Database structure is not specified" when
    /// the panel has none.
    TResultFieldRow(TKResultFieldsPanel& owner, TResultField& shown);
    /// The controls are out of sight at once and deleted when none of their events is running.
    ~TResultFieldRow() override;

    TRFRowButton* Button() const { return button; }
    TDropDownList* FieldLabel() const { return fieldLabel; }
    TDropDownPopup* SortLabel() const { return sortLabel; }
    /// The column; only to be used while it is known to be in the panel's list.
    TResultField* Field() const { return field; }
    /// The integer of the sort label's value.
    TSortingType Sorting() const;
    /// Shows another sorting; the column is left alone.
    void SetSorting(TSortingType sorting);
    bool HasFocus() const;
    void Close(); ///< discards what is open

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    friend class TKResultFieldsPanel;
    void MakeFieldLabel();
    void MakeSortLabel();
    void MakeControls();
    void FillFields();
    void FieldChosen();
    void SortingChosen();
    /// Takes texts, colours and options from column and panel.
    void Refresh(const TKRowTexts& texts, int number, int count);
    void ShowField(const TKRowTexts& texts);
    void ShowLook();

    TKResultFieldsPanel& panel;
    TResultField* field;
    QPointer<TRFRowButton> button;
    QPointer<TDropDownList> fieldLabel;
    QPointer<TDropDownPopup> sortLabel;
    uint64_t filledRevision = 0; // of the structure whose fields the label offers
    const void* filledStructure = nullptr;
};

class TResultFieldRows : public TKObjectList<TResultFieldRow> {};

} // namespace tern7
