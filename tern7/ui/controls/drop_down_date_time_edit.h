#pragma once

#include <tern7/ui/controls/date_time_control.h>
#include <tern7/ui/controls/drop_down_edit.h>

namespace tern7 {

/// A label that is edited in a date/time picker. The value is a date or a time in the local form. A
/// value that can not be read opens at today and now; it is replaced when the user changes it or
/// presses Enter, and not by leaving.
class TDropDownDateTimeEdit : public TDropDownCustomEdit {
    Q_OBJECT
    Q_PROPERTY(TDateTimeEditKind Kind READ Kind WRITE SetKind)

public:
    enum class TDateTimeEditKind { ekTime = 0, ekDate = 1 };
    Q_ENUM(TDateTimeEditKind)

    explicit TDropDownDateTimeEdit(QWidget* parent = nullptr);
    ~TDropDownDateTimeEdit() override;

    TDateTimeEditKind Kind() const { return kind; }
    void SetKind(TDateTimeEditKind newKind) { kind = newKind; }

    QWidget* EditControl() const override;

protected:
    void CreateControl() override;
    void AcceptInput() override;
    void AdjustSizes() override;
    void ShowEditControl() override;
    QString GetEditText() const override;
    void SetEditText(const QString& text) override;

private:
    bool LoadText(const QString& text);

    TDateTimeEditKind kind = TDateTimeEditKind::ekDate;
    bool edited = false;
    QPointer<TDateTimeControl> picker;
};

using TDateTimeEditKind = TDropDownDateTimeEdit::TDateTimeEditKind;

} // namespace tern7
