// What the labels of a row do: their menus and lists are filled when they open, and what was chosen
// becomes a change of the query. A change may end this view, so it always comes last.

#include <string>
#include <unordered_map>

#include <QEvent>

#include <tern7/core/structure/offered_fields.h>
#include <tern7/core/structure/structure.h>
#include <tern7/ui/controls/drop_down_list_box.h>
#include <tern7/ui/controls/drop_down_popup.h>
#include <tern7/ui/controls/flat_check_box.h>
#include <tern7/ui/panels/filter_row_view.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

/// Empties a list without losing what the label shows.
void BeginFill(TDropDownList& list) {
    const QString value = list.Value(), caption = list.Caption();
    list.ClearAll();
    list.SetValue(value);
    list.SetCaption(caption);
}

/// Lets the list know which item is the present one.
void EndFill(TDropDownList& list) {
    const QString caption = list.Caption();
    const auto index = static_cast<int>(list.Values().indexOf(list.Value()));
    if (index >= 0 && !list.Value().isEmpty()) list.SetItemIndex(index);
    list.SetCaption(caption);
}

QRect OnScreen(const QWidget& widget) {
    return {widget.mapToGlobal(QPoint(0, 0)), widget.size()};
}

} // namespace

void TFilterRowView::CheckBoxClick() {
    const bool on = checkBox->isChecked();
    panel.Do([this, on](TKQueryEditor& editor) { editor.SetEnabled(*row, on); });
}

void TFilterRowView::LabelOpens(TDropDownLabel* widget) {
    const TElement* element = ElementOf(widget);
    if (!element) return;
    panel.SetCurrentRow(*row);
    valueBefore = widget->Value();
    switch (element->label.kind) {
    case TRowLabelKind::rlField:
        return FillFields(widget);
    case TRowLabelKind::rlOperator:
        return FillOperators(widget);
    case TRowLabelKind::rlBracketWord:
    case TRowLabelKind::rlBoolWord:
        return FillWords(widget, element->label);
    case TRowLabelKind::rlValue:
        return FillValues(widget);
    default:
        return;
    }
}

/// An editor that stands in the line pushes what follows as it grows.
void TFilterRowView::LabelOpened(TDropDownLabel* widget) {
    QWidget* editor = widget->EditControl();
    if (!editor || editor->parentWidget() != widget->parentWidget()) return;
    editor->removeEventFilter(this);
    editor->installEventFilter(this);
    panel.Invalidate(false);
}

bool TFilterRowView::eventFilter(QObject* editor, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::Hide) panel.Invalidate(false);
    return QObject::eventFilter(editor, event);
}

void TFilterRowView::FillFields(TDropDownLabel* widget) {
    auto& list = static_cast<TDropDownList&>(*widget);
    BeginFill(list);
    if (auto* menu = qobject_cast<TDropDownPopup*>(widget))
        menu->SetMaxItemCount(panel.MaxPopupItemCount());
    list.SetSortList(false);
    list.SetImages(panel.Images());
    // the list outlives this view, but not the panel
    list.OnGetGroupImageIndex = [&owner = panel](const QString& group, int& index) {
        owner.OnGetGroupImageIndex(group, index);
    };
    list.OnGetItemImageIndex = [&owner = panel](const QString& group, const QString& item,
                                                int& index) {
        owner.OnGetItemImageIndex(group, item, index);
    };
    if (const TKCustomDBStructure* structure = panel.DbStruct()) {
        const std::vector<TOfferedField> fields = OfferedFields(*structure, TFieldUse::Conditions);
        std::unordered_map<std::string, int> sharing; // in one group
        const auto inGroup = [](const TOfferedField& offered) {
            return std::string(offered.group) + '\n' + offered.field->DisplayName();
        };
        for (const TOfferedField& offered : fields)
            ++sharing[inGroup(offered)];
        for (const TOfferedField& offered : fields) {
            // below the name of its group a field needs no other
            const bool plain = !offered.group.empty() && sharing[inGroup(offered)] == 1;
            const std::string text =
                plain ? offered.field->DisplayName() : panel.RowTexts().FieldText(*offered.field);
            list.AddItem(ToQt(offered.group), ToQt(text), QString::number(offered.field->ID()));
        }
    }
    EndFill(list);
}

void TFilterRowView::FillOperators(TDropDownLabel* widget) {
    auto& list = static_cast<TDropDownList&>(*widget);
    BeginFill(list);
    if (const TDSField* field = Condition()->Field())
        for (const TDSOperator* op : field->Operators())
            list.AddItem({}, ToQt(op->DisplayName()), ToQt(op->Name()));
    EndFill(list);
}

void TFilterRowView::FillWords(TDropDownLabel* widget, const TRowLabel& label) {
    auto& list = static_cast<TDropDownList&>(*widget);
    const TKRowTexts& texts = panel.RowTexts();
    BeginFill(list);
    if (label.kind == TRowLabelKind::rlBoolWord) {
        list.AddItem({}, ToQt(texts.BoolWord(TFilterLinkType::fltAll)), QStringLiteral("and"));
        list.AddItem({}, ToQt(texts.BoolWord(TFilterLinkType::fltAny)), QStringLiteral("or"));
    } else {
        for (const auto type : {TFilterLinkType::fltAll, TFilterLinkType::fltAny,
                                TFilterLinkType::fltNone, TFilterLinkType::fltNotAll})
            list.AddItem({}, ToQt(texts.BracketWord(type)),
                         QString::number(static_cast<int>(type)));
    }
    EndFill(list);
}

void TFilterRowView::LabelDone(TDropDownLabel* widget, bool accepted) {
    const TElement* element = ElementOf(widget);
    if (!element) return;
    const TRowLabelKind kind = element->label.kind;
    const QString value = widget->Value(), before = std::exchange(valueBefore, QString());
    if (!accepted || element->control == TRowControl::rcCustom ||
        element->control == TRowControl::rcPending)
        return;
    if (kind == TRowLabelKind::rlValue) return ValueDone(*element, before);
    if (value == before) return;
    if (kind == TRowLabelKind::rlField) return FieldChosen(value);
    if (kind == TRowLabelKind::rlOperator) return OperatorChosen(value);
    if (element->label.bracket) WordChosen(*element->label.bracket, kind, value);
}

void TFilterRowView::FieldChosen(const QString& id) {
    const TKCustomDBStructure* structure = panel.DbStruct();
    TDSField* field = structure ? structure->FieldByID(id.toInt()) : nullptr;
    if (!field) return Refresh();
    TFilterCond& condition = *Condition();
    panel.Do([&](TKQueryEditor& editor) { editor.SetField(condition, *field); });
}

void TFilterRowView::OperatorChosen(const QString& name) {
    const TKCustomDBStructure* structure = panel.DbStruct();
    TDSOperator* op = structure ? structure->OperatorByName(FromQt(name)) : nullptr;
    if (!op) return Refresh();
    TFilterCond& condition = *Condition();
    panel.Do([&](TKQueryEditor& editor) { editor.SetOperator(condition, *op); });
}

void TFilterRowView::WordChosen(const TFilterBracket& bracket, TRowLabelKind kind,
                                const QString& value) {
    // the label knows its bracket for reading; it is this query's
    auto& changed = const_cast<TFilterBracket&>(bracket);
    panel.Do([&, value](TKQueryEditor& editor) {
        if (kind == TRowLabelKind::rlBoolWord)
            editor.SetBracketJoin(changed, value == QStringLiteral("and"));
        else
            editor.SetBracketKind(changed, static_cast<TFilterLinkType>(value.toInt()));
    });
}

void TFilterRowView::LabelRightClick(TDropDownLabel* widget) {
    const int n = ValueNumberOf(widget);
    // a sub-query is neither constant nor parameter
    if (n > 0 && !Condition()->IsSubQueryOperator()) return ValueRightClick(n);
    panel.SetCurrentRow(*row);
    if (widget->focusPolicy() != Qt::NoFocus) widget->setFocus();
    panel.PopupRowMenu(*row, OnScreen(*widget));
}

void TFilterRowView::ValueRightClick(int n) {
    TDropDownLabel* widget = ValueLabel(n);
    if (!widget) return;
    widget->setFocus();
    panel.VPopup(*Condition(), n, OnScreen(*widget));
}

void TFilterRowView::LabelAltClick(TDropDownLabel* widget) {
    if (const int n = ValueNumberOf(widget)) ValueAltClick(n);
}

void TFilterRowView::ValueAltClick(int n) {
    panel.SetCurrentRow(*row);
    panel.OnValueAltClick(*Condition(), n);
}

} // namespace tern7
