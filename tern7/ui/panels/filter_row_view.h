#pragma once

#include <vector>

#include <QObject>
#include <QPointer>
#include <QRect>

#include <tern7/core/query/row_text.h>
#include <tern7/core/query/value_editor_choice.h>

class QLabel;

namespace tern7 {

class TDropDownLabel;
class TFlatCheckBox;
class TKQueryPanel;
class TKRndBtn;

/// The kind of control that shows a piece of a row.
enum class TRowControl : uint8_t {
    rcText, ///< words that can not be changed
    rcMenu,
    rcListBox,
    rcCheckList,
    rcEdit,
    rcMask,
    rcDate,
    rcTime,
    rcCustom, ///< what opens is no editor of a label: a dialog, the application's, a menu
    rcPending ///< a list that was not read from the database yet
};

/// The controls of one row: a button, a check box and a label for each piece of its sentence. Given
/// by the panel to a row that is in sight, has the focus or is edited. It goes when the row does;
/// from a row that scrolls out of sight it passes to one that comes in.
class TFilterRowView : public QObject {
    Q_OBJECT

public:
    TFilterRowView(TKQueryPanel& owner, TFilterRow& shownRow);
    ~TFilterRowView() override;

    TFilterRow& Row() const { return *row; }
    TKQueryPanel& Panel() const { return panel; }

    // --- controls in display order; fixed texts are none
    TKRndBtn* Button() const { return button; }
    TFlatCheckBox* CheckBox() const { return checkBox; } ///< none where none is shown
    const std::vector<QWidget*>& Controls() const { return controls; }
    int GetControlIndex(const QWidget* control) const; ///< -1 when it is none of them
    QWidget* GetRowControl(int index) const;           ///< none outside 0..count-1
    /// The control that has the focus, or whose editor is open.
    QWidget* GetCurrentControl() const;
    /// Move the focus; false when there is no such control.
    bool FirstCurControl();
    bool NextCurControl() { return FocusControl(GetControlIndex(GetCurrentControl()) + 1); }
    bool PrevCurControl() { return FocusControl(GetControlIndex(GetCurrentControl()) - 1); }
    bool FocusControl(int index);
    /// The label of a piece: the first of that kind (and value number); none when it has none.
    TDropDownLabel* Label(TRowLabelKind kind, int valueNumber = 0) const;
    /// Labels of value n whatever they are: constant, parameter or sub-query.
    TDropDownLabel* ValueLabel(int n) const;
    /// Says why the row is left out or what is wrong with it; none when all is well.
    QLabel* Mark() const { return mark; }
    /// The value number of a label; 0 for none.
    int ValueNumberOf(const QWidget* label) const;

    // --- value labels
    void CreateValueLabel() { Refresh(); }
    void FreeValueLabel();
    /// Makes the value labels anew.
    void RecreateValueEditor();
    /// The check box was switched by the user.
    void CheckBoxClick();
    /// What Ctrl+click on a value does: nothing, unless the panel's OnValueAltClick is assigned.
    void ValueAltClick(int n);
    /// Opens the value menu.
    void ValueRightClick(int n);

    // --- for the panel
    /// Shows the row as it is now; controls whose kind stays are kept, open editors too.
    void Refresh();
    /// Goes over to another row; not while it is in use.
    void ShowRow(TFilterRow& other);
    /// It has the focus, an open editor or a pressed button, or something that a user does in it is
    /// running: it stays with its row.
    bool InUse() const;
    /// Puts the controls at their places; `left` in content that is read from the left.
    void Place(int line, int left);
    /// Width of the row from the left of its button.
    int Width() const;
    bool HasEditor() const; ///< an editor, menu or list of the row is open
    void CloseEdit(bool accept);
    /// All widgets of the row, fixed texts included, in display order.
    std::vector<QWidget*> Widgets() const;

protected:
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    struct TElement {
        TRowLabel label;
        TRowControl control;
        TDropDownLabel* widget;
    };

    void Show(bool newValueLabels);
    int FocusedIndex() const;
    void MakeButton();
    void RefreshCheckBox(bool on);
    void RefreshMark(bool on);
    TRowControl ControlFor(const TRowLabel& label) const;
    TDropDownLabel* TakeFrom(std::vector<TElement>& old, const TRowLabel& label,
                             TRowControl control) const;
    TDropDownLabel* MakeLabel(const TRowLabel& label, TRowControl control);
    void Listen(TDropDownLabel& widget, TRowControl control);
    void ShowLabel(const TElement& element, bool on);
    void ShowPending(TDropDownLabel& widget) const;
    void Discard(const TElement& element);
    QString AccessibleNameOf(const TElement& element) const;
    QColor ColorOf(TRowLabelKind kind, bool on) const;
    const TElement* ElementOf(const QWidget* widget) const;
    TFilterCond* Condition() const { return row->AsCond(); }
    /// Runs what a control asked for, which may end the view.
    template <class Call>
    void Run(Call&& call);

    // what labels do (row_actions.cpp, row_value_actions.cpp)
    void LabelOpens(TDropDownLabel* widget);
    void LabelOpened(TDropDownLabel* widget);
    void LabelDone(TDropDownLabel* widget, bool accepted);
    void LabelRightClick(TDropDownLabel* widget);
    void LabelAltClick(TDropDownLabel* widget);
    void LabelCustom(TDropDownLabel* widget);
    void FillFields(TDropDownLabel* widget);
    void FillOperators(TDropDownLabel* widget);
    void FillWords(TDropDownLabel* widget, const TRowLabel& label);
    void FillValues(TDropDownLabel* widget);
    void FieldChosen(const QString& id);
    void OperatorChosen(const QString& name);
    void WordChosen(const TFilterBracket& bracket, TRowLabelKind kind, const QString& value);
    void ValueDone(const TElement& element, const QString& before);
    void CustomEdit(int n);

    TKQueryPanel& panel;
    TFilterRow* row;
    TKRndBtn* button = nullptr;
    TFlatCheckBox* checkBox = nullptr;
    QLabel* mark = nullptr; // why the row is left out
    std::vector<TElement> elements;
    std::vector<QWidget*> controls;
    QString valueBefore; // of the label that is dropped
    int running = 0;     // calls of its controls
};

} // namespace tern7
