#include <tern7/ui/panels/filter_row_view.h>

#include <algorithm>

#include <QLabel>

#include <tern7/ui/controls/drop_down_edit.h>
#include <tern7/ui/controls/drop_down_list.h>
#include <tern7/ui/controls/flat_check_box.h>
#include <tern7/ui/controls/round_button.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/panels/row_drag.h>
#include <tern7/ui/panels/row_problem.h>
#include <tern7/ui/support/tool_tip_text.h>

namespace tern7 {

namespace {

void DiscardWidget(QWidget* widget) {
    if (!widget) return;
    widget->hide();
    widget->deleteLater(); // an event of its own may be running
}

/// Of a label whose editor is open: what the editor needs.
int WidthOf(const QWidget& widget) {
    const auto* edit = qobject_cast<const TDropDownCustomEdit*>(&widget);
    const QWidget* editor = edit && edit->Dropped() ? edit->EditControl() : nullptr;
    return editor ? std::max(widget.width(), editor->width()) : widget.width();
}

} // namespace

TFilterRowView::TFilterRowView(TKQueryPanel& owner, TFilterRow& shownRow)
    : panel(owner), row(&shownRow) {
    MakeButton();
    Refresh();
}

TFilterRowView::~TFilterRowView() {
    for (const TElement& element : elements)
        Discard(element);
    if (button) disconnect(button, nullptr, this, nullptr);
    DiscardWidget(button);
    DiscardWidget(checkBox);
    DiscardWidget(mark);
}

void TFilterRowView::MakeButton() {
    button = new TKRndBtn(panel.viewport());
    button->SetAutoSize(false);
    button->SetCaption(QStringLiteral("\u22EE"));
    panel.RowDrag().Watch(*button);
    connect(button, &QPushButton::clicked, this, [this] {
        panel.PopupRowMenu(*row, {button->mapToGlobal(QPoint(0, 0)), button->size()});
    });
    button->show();
}

// --- showing

void TFilterRowView::ShowRow(TFilterRow& other) {
    row = &other;
    for (const TElement& element : elements) // the lists were of the row before
        if (auto* list = qobject_cast<TDropDownList*>(element.widget)) list->ClearAll();
    Refresh();
}

void TFilterRowView::Refresh() {
    Show(false);
}

void TFilterRowView::Show(bool newValueLabels) {
    const TQPAppearance& looks = panel.Appearance();
    const bool on = row->EffectivelyEnabled();
    const int focusedAt = FocusedIndex();
    const QWidget* focused = GetRowControl(focusedAt);
    button->setAccessibleName(tr("Row menu"));
    button->SetFlat(looks.Has(TQPAppearance::aoFlatButtons));
    button->SetRoundCorners(looks.Has(TQPAppearance::aoRoundButtons));
    button->resize(panel.Geometry().LineHeight, panel.Geometry().LineHeight);
    RefreshCheckBox(on);

    std::vector<TElement> old = std::move(elements);
    elements.clear();
    for (TRowLabel& label : panel.RowTexts().Labels(*row, panel.Query().Style())) {
        const TRowControl control = ControlFor(label);
        const bool fresh = newValueLabels && label.valueNumber != 0;
        TDropDownLabel* widget = fresh ? nullptr : TakeFrom(old, label, control);
        if (!widget) widget = MakeLabel(label, control);
        elements.push_back({std::move(label), control, widget});
        ShowLabel(elements.back(), on);
    }
    controls.assign(1, button);
    if (checkBox) controls.push_back(checkBox);
    for (const TElement& element : elements)
        if (element.control != TRowControl::rcText) controls.push_back(element.widget);
    RefreshMark(on);
    // a label that goes leaves the focus to the one in its place, not to another row
    if (focusedAt >= 0 && GetControlIndex(focused) < 0)
        panel.PassFocus(*controls[std::min(static_cast<size_t>(focusedAt), controls.size() - 1)]);
    for (const TElement& element : old)
        if (element.widget) Discard(element);
}

void TFilterRowView::RefreshCheckBox(bool on) {
    const bool wanted = row->Parent() && panel.Appearance().Has(TQPAppearance::aoShowCheckBoxes);
    if (!wanted) {
        DiscardWidget(checkBox);
        checkBox = nullptr;
        return;
    }
    if (!checkBox) {
        checkBox = new TFlatCheckBox(panel.viewport());
        connect(checkBox, &QCheckBox::clicked, this, [this] { CheckBoxClick(); });
        checkBox->show();
    }
    checkBox->setAccessibleName(tr("Row takes part"));
    checkBox->setChecked(row->GetEnabled());
    checkBox->setToolTip(row->GetEnabled() && !on ? tr("The bracket around it is switched off")
                                                  : QString());
    checkBox->resize(checkBox->sizeHint());
}

void TFilterRowView::RefreshMark(bool on) {
    const QString problem = on ? RowProblem(*row) : QString();
    if (problem.isEmpty()) {
        DiscardWidget(mark);
        mark = nullptr;
        return;
    }
    if (!mark) {
        mark = new QLabel(panel.viewport());
        mark->setTextFormat(Qt::PlainText);
        mark->setForegroundRole(QPalette::PlaceholderText);
        mark->show();
    }
    mark->setText((panel.ReadsFromRight() ? u'\u2192' : u'\u2190') + QStringLiteral(" ") +
                  RowMark(*row));
    mark->setToolTip(
        ToolTipText(IsLeftOut(*row) ? tr("The condition is left out: %1").arg(problem) : problem));
    mark->resize(mark->sizeHint());
}

int TFilterRowView::Width() const {
    int width = 0;
    for (const QWidget* widget : Widgets())
        width += WidthOf(*widget) + panel.ElemSpace();
    return width;
}

void TFilterRowView::Place(int line, int left) {
    const TRowGeometry& geometry = panel.Geometry();
    const std::vector<QWidget*> widgets = Widgets();
    std::vector<int> widths;
    widths.reserve(widgets.size());
    for (const QWidget* widget : widgets)
        widths.push_back(WidthOf(*widget));
    const std::vector<int> lefts = geometry.Lefts(left, widths);
    for (size_t i = 0; i < widgets.size(); ++i)
        panel.PutAt(*widgets[i], lefts[i], geometry.ElementTop(line, widgets[i]->height()));
}

std::vector<QWidget*> TFilterRowView::Widgets() const {
    std::vector<QWidget*> widgets{button};
    if (checkBox) widgets.push_back(checkBox);
    for (const TElement& element : elements)
        widgets.push_back(element.widget);
    if (mark) widgets.push_back(mark);
    return widgets;
}

// --- controls

int TFilterRowView::GetControlIndex(const QWidget* control) const {
    const auto found = std::find(controls.begin(), controls.end(), control);
    return found == controls.end() ? -1 : static_cast<int>(found - controls.begin());
}

QWidget* TFilterRowView::GetRowControl(int index) const {
    const bool exists = index >= 0 && index < static_cast<int>(controls.size());
    return exists ? controls[static_cast<size_t>(index)] : nullptr;
}

QWidget* TFilterRowView::GetCurrentControl() const {
    for (QWidget* control : controls) {
        const auto* label = qobject_cast<TDropDownLabel*>(control);
        if (control->hasFocus() || (label && label->Dropped())) return control;
    }
    return nullptr;
}

/// Of the control that has the focus of its window, or whose editor has it.
int TFilterRowView::FocusedIndex() const {
    const QWidget* focused = panel.window()->focusWidget();
    for (size_t i = 0; i < controls.size(); ++i) {
        const auto* label = qobject_cast<TDropDownLabel*>(controls[i]);
        const bool editing = label && label->Dropped() && label->EditControl() == focused;
        if (focused && (controls[i] == focused || editing)) return static_cast<int>(i);
    }
    return -1;
}

bool TFilterRowView::FirstCurControl() {
    for (const TElement& element : elements)
        if (element.control != TRowControl::rcText)
            return FocusControl(GetControlIndex(element.widget));
    return FocusControl(0);
}

bool TFilterRowView::FocusControl(int index) {
    QWidget* control = GetRowControl(index);
    if (control) control->setFocus(Qt::OtherFocusReason);
    return control != nullptr;
}

const TFilterRowView::TElement* TFilterRowView::ElementOf(const QWidget* widget) const {
    for (const TElement& element : elements)
        if (element.widget == widget) return &element;
    return nullptr;
}

TDropDownLabel* TFilterRowView::Label(TRowLabelKind kind, int valueNumber) const {
    for (const TElement& element : elements)
        if (element.label.kind == kind && element.label.valueNumber == valueNumber)
            return element.widget;
    return nullptr;
}

TDropDownLabel* TFilterRowView::ValueLabel(int n) const {
    for (const TElement& element : elements)
        if (element.label.valueNumber == n) return element.widget;
    return nullptr;
}

int TFilterRowView::ValueNumberOf(const QWidget* label) const {
    const TElement* element = ElementOf(label);
    return element ? element->label.valueNumber : 0;
}

bool TFilterRowView::HasEditor() const {
    return std::any_of(elements.begin(), elements.end(),
                       [](const TElement& element) { return element.widget->Dropped(); });
}

bool TFilterRowView::InUse() const {
    const bool pressed = button->isDown() || (checkBox && checkBox->isDown());
    return running > 0 || pressed || HasEditor() || GetCurrentControl();
}

void TFilterRowView::CloseEdit(bool accept) {
    for (const TElement& element : elements)
        if (element.widget->Dropped()) return element.widget->DropUp(accept);
}

void TFilterRowView::FreeValueLabel() {
    std::erase_if(elements, [this](const TElement& element) {
        if (element.label.valueNumber == 0) return false;
        std::erase(controls, element.widget);
        Discard(element);
        return true;
    });
}

void TFilterRowView::RecreateValueEditor() {
    Show(true);
}

} // namespace tern7
