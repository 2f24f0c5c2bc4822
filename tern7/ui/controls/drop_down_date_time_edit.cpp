#include <tern7/ui/controls/drop_down_date_time_edit.h>

#include <algorithm>

#include <tern7/ui/controls/date_time_control.h>
#include <tern7/ui/support/local_dates.h>

namespace tern7 {

TDropDownDateTimeEdit::TDropDownDateTimeEdit(QWidget* parent) : TDropDownCustomEdit(parent) {}

TDropDownDateTimeEdit::~TDropDownDateTimeEdit() {
    if (picker) picker->Events.Clear();
    DiscardEditor(picker);
}

void TDropDownDateTimeEdit::CreateControl() {
    TDropDownCustomEdit::CreateControl();
    if (picker) return picker->setParent(parentWidget());
    picker = new TDateTimeControl(parentWidget());
    picker->hide();
    picker->setLayoutDirection(layoutDirection());
    Listen(picker->Events);
    // Enter takes what is shown even when nothing was changed.
    picker->Events.OnKeyPress = [this](QWidget* sender, QChar& key) {
        if (key == keyEnter) edited = true;
        EditKeyPress(sender, key);
    };
    connect(picker, &QDateTimeEdit::dateTimeChanged, this, [this] { edited = true; });
}

QWidget* TDropDownDateTimeEdit::EditControl() const {
    EnsureControl();
    return picker;
}

void TDropDownDateTimeEdit::ShowEditControl() {
    const bool isDate = kind == TDateTimeEditKind::ekDate;
    picker->setLocale(locale());
    // Qt would turn the order of the parts round for reading from the right; the label does not.
    picker->setLayoutDirection(Qt::LeftToRight);
    picker->setDisplayFormat(isDate ? LocalDateFormat(locale()) : LocalTimeFormat(locale()));
    picker->setLayoutDirection(layoutDirection());
    picker->setCalendarPopup(isDate);
    picker->setButtonSymbols(isDate ? QAbstractSpinBox::UpDownArrows : QAbstractSpinBox::NoButtons);
    picker->SetBorderColor(BorderColor());
    if (!LoadText(Value())) picker->setDateTime(QDateTime::currentDateTime());
    edited = false;
    picker->show();
}

/// False, and nothing is changed, for a text that can not be read.
bool TDropDownDateTimeEdit::LoadText(const QString& text) {
    if (kind == TDateTimeEditKind::ekDate) {
        const QDate date = ReadLocalDate(text, locale());
        if (date.isValid()) picker->setDate(date);
        return date.isValid();
    }
    const QTime time = ReadLocalTime(text, locale());
    if (time.isValid()) picker->setTime(time);
    return time.isValid();
}

void TDropDownDateTimeEdit::AcceptInput() {
    if (!IsEditMode()) return;
    picker->interpretText();
    if (edited) SetValue(GetEditText());
}

void TDropDownDateTimeEdit::AdjustSizes() {
    TDropDownCustomEdit::AdjustSizes();
    picker->resize(std::max(picker->width(), picker->sizeHint().width()), picker->height());
    picker->UseWholeHeight();
}

QString TDropDownDateTimeEdit::GetEditText() const {
    if (!picker) return {};
    return kind == TDateTimeEditKind::ekDate
               ? locale().toString(picker->date(), LocalDateFormat(locale()))
               : locale().toString(picker->time(), LocalTimeFormat(locale()));
}

void TDropDownDateTimeEdit::SetEditText(const QString& text) {
    if (picker && text != GetEditText() && LoadText(text)) edited = true;
}

} // namespace tern7
