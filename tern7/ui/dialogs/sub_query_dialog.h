#pragma once

#include <functional>
#include <memory>

#include <QDialog>

#include <tern7/core/query/query.h>

class QDialogButtonBox;
class QLabel;

namespace tern7 {

class TDropDownPopup;
class TKQueryPanel;

/// Edits the sub-query of a condition: the field that it returns and its conditions, in a query
/// panel of its own. Modal; nothing is changed before OK.
class T_dlgSubQuery : public QDialog {
    Q_OBJECT

public:
    /// Works on a copy of the condition's sub-query. A text that can not be read is said in the
    /// dialog, which then begins with an empty sub-query. `help` answers the Help button; empty: no
    /// such button.
    T_dlgSubQuery(const TFilterCond& condition, const std::function<void()>& help,
                  QWidget* parent = nullptr);
    ~T_dlgSubQuery() override;

    TKQueryPanel& Panel() const { return *panel; }
    TDropDownPopup& FieldLabel() const { return *field; }
    /// Puts what was edited into the condition; false when that is what it held already.
    bool Store(TFilterCond& condition);

    void accept() override;

private:
    std::unique_ptr<TKQuery> CopyOf(const TFilterCond& condition);
    void TakeLooks(TKQueryPanel& outer);
    void AddFieldLine();
    void AddButtons(const std::function<void()>& help);
    void FillFields();
    void FieldChosen();
    void ShowField();
    void Say(const QString& problem);

    TKQueryPanel* panel;
    TDropDownPopup* field;
    QLabel* message;
};

/// Runs the dialog; true when the condition was changed. The condition may be deleted meanwhile.
bool EditSubQuery(QWidget* parent, TFilterCond& condition, const std::function<void()>& help);

} // namespace tern7
