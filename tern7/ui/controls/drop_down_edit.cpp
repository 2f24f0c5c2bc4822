#include <tern7/ui/controls/drop_down_edit.h>

#include <algorithm>
#include <typeinfo>

#include <QLocale>

#include <tern7/ui/controls/silent_edit.h>
#include <tern7/ui/support/text_size.h>

namespace tern7 {

TDropDownCustomEdit::TDropDownCustomEdit(QWidget* parent) : TDropDownLabel(parent) {}

void TDropDownCustomEdit::Listen(TEditorEvents& events) {
    events.OnExit = [this](QWidget*) {
        if (!IsWindowDestroyed()) EditExit();
    };
    events.OnKeyPress = [this](QWidget* sender, QChar& key) { EditKeyPress(sender, key); };
    events.OnDblClick = [this](QWidget*) { EditDblClick(); };
}

/// A window hides in its destructor too. It is a plain widget then, and what handlers refer to is
/// gone: they are not asked any more.
bool TDropDownCustomEdit::IsWindowDestroyed() const {
    const QWidget& now = *window();
    return openIn == &now && *openInClass != typeid(now);
}

void TDropDownCustomEdit::ValueChanged() {
    if (AutoUpperCase())
        StoreValue(QLocale().toUpper(Value()));
    else if (AutoLowerCase())
        StoreValue(QLocale().toLower(Value()));
    TDropDownLabel::ValueChanged();
}

bool TDropDownCustomEdit::IsEditMode() const {
    const QWidget* editor = HasControl() ? EditControl() : nullptr;
    return editor && !editor->isHidden();
}

void TDropDownCustomEdit::BiDiModeChanged() {
    TDropDownLabel::BiDiModeChanged();
    if (QWidget* editor = HasControl() ? EditControl() : nullptr)
        editor->setLayoutDirection(layoutDirection());
}

void TDropDownCustomEdit::ShowControl() {
    const QPointer<QWidget> editor = EditControl();
    if (!editor) return DropUp(false);
    const QPointer<TDropDownLabel> alive(this);
    openIn = window();
    const QWidget& opener = *openIn;
    openInClass = &typeid(opener);
    editor->setFont(font());
    editor->setAccessibleName(accessibleName());
    editor->setLayoutDirection(layoutDirection());
    ShowEditControl();
    if (!alive || !editor) return;
    AdjustPlacement();
    editor->raise();
    // Tab goes on from the editor to what follows the label.
    QWidget::setTabOrder(this, editor);
    // The focus moves before the label hides; otherwise it would pass over a neighbour.
    editor->setFocus(Qt::OtherFocusReason);
    if (alive && Dropped()) hide();
}

void TDropDownCustomEdit::HideControl() {
    const QPointer<TDropDownLabel> alive(this);
    const QPointer<QWidget> editor = EditControl();
    const bool editorHadFocus = editor && editor->window()->focusWidget() == editor;
    show();
    if (editorHadFocus) setFocus(Qt::OtherFocusReason);
    if (alive && editor) editor->hide();
}

void TDropDownCustomEdit::AdjustPlacement() {
    QWidget* editor = EditControl();
    if (!editor) return;
    AdjustSizes();
    AdjustPosition();
    KeepInSight(*editor);
}

void TDropDownCustomEdit::AdjustSizes() {
    const int width = ternTextWidth(GetEditText() + u'W', font()) + 6;
    EditControl()->resize(width, ternTextHeight(QStringLiteral("W"), font()));
}

void TDropDownCustomEdit::AdjustPosition() {
    QWidget* editor = EditControl();
    const bool fromRight = editor->layoutDirection() == Qt::RightToLeft;
    editor->move(fromRight ? x() + width() - editor->width() : x(), y());
}

/// A text that is longer than the parent scrolls inside the editor instead of leaving the parent.
void TDropDownCustomEdit::KeepInSight(QWidget& editor) const {
    const int least = ternTextWidth(QStringLiteral("WWWWWWWW"), font());
    const QRect place = editor.geometry();
    const QRect room = editor.parentWidget()->rect();
    if (editor.layoutDirection() == Qt::RightToLeft) {
        const int widest = std::max(place.right() - room.left() + 1, least);
        if (place.width() > widest)
            editor.setGeometry(place.adjusted(place.width() - widest, 0, 0, 0));
    } else {
        const int widest = std::max(room.right() - place.left() + 1, least);
        if (place.width() > widest) editor.resize(widest, place.height());
    }
}

void TDropDownCustomEdit::EditExit() {
    DropUp(true);
}

void TDropDownCustomEdit::EditDblClick() {
    if (!OnEditDblClick) return;
    const QPointer<TDropDownLabel> alive(this);
    QString text = GetEditText();
    OnEditDblClick(this, text);
    if (alive) SetEditText(text);
}

void TDropDownCustomEdit::EditKeyPress(QWidget*, QChar& key) {
    if (key == keyEnter || key == keyEscape) {
        const bool accept = key == keyEnter;
        key = QChar();
        return DropUp(accept);
    }
    if (!TakesKey(key)) key = QChar();
    AdjustPlacement();
}

bool TDropDownCustomEdit::TakesKey(QChar key) const {
    if (valueType == TValueType::vtString) return true;
    // The caption is the value before this edit. That a second point is looked for there and not in
    // the text being typed is meant so: applications that use this kind count on it.
    if (key == u'.') return valueType == TValueType::vtFloat && !Caption().contains(u'.');
    return (key >= u'0' && key <= u'9') || key == keyBackspace || key == u'"' || key == u',';
}

// --- editors with an edit box

TDropDownLineEdit::TDropDownLineEdit(QWidget* parent) : TDropDownCustomEdit(parent) {}

TDropDownLineEdit::~TDropDownLineEdit() {
    if (edit) edit->Events.Clear();
    DiscardEditor(edit);
}

void TDropDownLineEdit::CreateControl() {
    TDropDownCustomEdit::CreateControl();
    if (edit) return edit->setParent(parentWidget());
    edit = new TSilentEdit(parentWidget());
    edit->hide();
    edit->setLayoutDirection(layoutDirection());
    Listen(edit->Events);
    connect(edit, &QLineEdit::textChanged, this, [this] {
        if (IsEditMode()) AdjustPlacement();
    });
}

QWidget* TDropDownLineEdit::EditControl() const {
    EnsureControl();
    return edit;
}

void TDropDownLineEdit::ShowEditControl() {
    edit->SetBorderColor(BorderColor());
    edit->setText(Value());
    edit->selectAll();
    edit->show();
}

void TDropDownLineEdit::AcceptInput() {
    if (IsEditMode()) SetValue(edit->text());
}

QString TDropDownLineEdit::GetEditText() const {
    return edit ? edit->text() : QString();
}

void TDropDownLineEdit::SetEditText(const QString& text) {
    if (!edit || text == GetEditText()) return;
    edit->setText(text);
    edit->setModified(true);
}

TDropDownEdit::TDropDownEdit(QWidget* parent) : TDropDownLineEdit(parent) {}

} // namespace tern7
