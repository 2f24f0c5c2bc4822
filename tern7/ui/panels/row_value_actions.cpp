// Entering values: by the editor that suits field and operator.

#include <tern7/core/query/query.h>
#include <tern7/core/structure/structure.h>
#include <tern7/ui/controls/drop_down_edit.h>
#include <tern7/ui/controls/drop_down_list.h>
#include <tern7/ui/controls/drop_down_mask_edit.h>
#include <tern7/ui/panels/filter_row_view.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/support/local_dates.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

QStringList Lines(const TStrings& texts) {
    QStringList lines;
    lines.reserve(static_cast<qsizetype>(texts.size()));
    for (const std::string& text : texts)
        lines << ToQt(text);
    return lines;
}

void FillList(TDropDownList& list, const QStringList& items, const QStringList& values) {
    const QString value = list.Value(), caption = list.Caption();
    list.ClearAll();
    list.SetItems(items.mid(0, values.size()));
    list.SetValues(values.mid(0, items.size()));
    list.SetValue(value);
    list.SetCaption(caption);
}

/// A text that can be read as date and time is written as the others are.
QString InLocalForm(const QString& text) {
    const QLocale locale;
    const QDateTime read = ReadLocalDateTime(text, locale);
    return read.isValid() ? locale.toString(read, LocalDateTimeFormat(locale)) : text;
}

} // namespace

void TFilterRowView::FillValues(TDropDownLabel* widget) {
    const TFilterCond& condition = *Condition();
    const TDSField* field = condition.Field();
    if (!field) return;
    if (auto* list = qobject_cast<TDropDownList*>(widget)) {
        list->SetSortList(panel.Appearance().Has(TQPAppearance::aoSortListData));
        const auto* editor = field->ValueEditorAs<TDSListEditor>();
        if (ChooseValueEditor(condition) == TValueEditKind::vkBoolean)
            FillList(*list, {ToQt(panel.RowTexts().TrueText), ToQt(panel.RowTexts().FalseText)},
                     {QStringLiteral("1"), QStringLiteral("0")});
        else if (editor)
            FillList(*list, Lines(editor->Items), Lines(editor->Values));
        return;
    }
    auto* edit = qobject_cast<TDropDownCustomEdit*>(widget);
    const auto* settings = field->ValueEditorAs<TDSTextEditor>();
    if (!edit) return;
    const QPointer<TFilterRowView> view(this);
    edit->OnEditDblClick = [view](TDropDownLabel*, QString& text) {
        if (!view || !view->panel.OnValueDblClick) return;
        std::string value = FromQt(text);
        view->panel.OnValueDblClick(*view->Condition(), value);
        text = ToQt(value);
    };
    edit->SetAutoUpperCase(settings && settings->GetOption(TDSTextEditor::UpperCaseOption));
    edit->SetAutoLowerCase(settings && settings->GetOption(TDSTextEditor::LowerCaseOption));
    if (auto* mask = qobject_cast<TDropDownMaskEdit*>(widget); mask && settings)
        mask->SetEditMask(ToQt(settings->EditMask));
}

void TFilterRowView::ValueDone(const TElement& element, const QString& before) {
    TFilterCond& condition = *Condition();
    QString value = element.widget->Value();
    const bool list = qobject_cast<TDropDownList*>(element.widget) != nullptr;
    // leaving a list without a choice is no answer
    if (list && value == before && value.isEmpty()) return Refresh();
    if (ChooseValueEditor(condition) == TValueEditKind::vkDateTime) value = InLocalForm(value);
    const int n = element.label.valueNumber;
    if (FromQt(value) == condition.Value(n) && condition.Entered()) return Refresh();
    panel.Do([&condition, n, value](TKQueryEditor& editor) {
        editor.SetValue(condition, n, FromQt(value));
    });
}

void TFilterRowView::LabelCustom(TDropDownLabel* widget) {
    const int n = ValueNumberOf(widget);
    TFilterCond& condition = *Condition();
    if (n == 0) return;
    if (ElementOf(widget)->control == TRowControl::rcPending) {
        panel.PopupListState(*this, n);
    } else if (condition.IsSubQueryOperator()) {
        panel.Do([&](TKQueryEditor& editor) { editor.EditSubQuery(condition); });
    } else if (condition.ValueIsParam(n)) {
        ValueRightClick(n);
    } else {
        CustomEdit(n);
    }
}

void TFilterRowView::CustomEdit(int n) {
    TFilterCond& condition = *Condition();
    std::string value = condition.Value(n);
    panel.Do([&](TKQueryEditor& editor) {
        TKQuery& query = *condition.Query();
        const QPointer<TFilterRowView> alive(this);
        if (query.OnCustomValue)
            query.OnCustomValue(condition, value);
        else
            query.OnCustomEdit(*condition.Field(), value);
        if (alive && !value.empty()) editor.SetValue(condition, n, value);
    });
}

} // namespace tern7
