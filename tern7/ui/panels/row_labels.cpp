// Which control shows a piece of a row, how it is made and how it looks.

#include <QIcon>

#include <tern7/core/structure/structure.h>
#include <tern7/ui/controls/drop_down_date_time_edit.h>
#include <tern7/ui/controls/drop_down_edit.h>
#include <tern7/ui/controls/drop_down_list_box.h>
#include <tern7/ui/controls/drop_down_mask_edit.h>
#include <tern7/ui/controls/drop_down_popup.h>
#include <tern7/ui/panels/filter_row_view.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/panels/sql_list_reader.h>
#include <tern7/ui/support/bidi_text.h>
#include <tern7/ui/support/colors.h>
#include <tern7/ui/support/text.h>
#include <tern7/ui/support/tool_tip_text.h>

namespace tern7 {

namespace {

/// True for a list that is to be read from the database first.
bool IsPending(const TFilterCond& condition) {
    const auto* editor = condition.Field()->ValueEditorAs<TDSSQLEditor>();
    return editor && (!editor->Opened() || editor->Values.empty());
}

/// Grey, but to be read: rows that are off can be edited.
QColor Between(const QColor& ink, const QColor& ground) {
    const auto mix = [](int a, int b) { return (11 * a + 9 * b) / 20; };
    return {mix(ink.red(), ground.red()), mix(ink.green(), ground.green()),
            mix(ink.blue(), ground.blue())};
}

TRowControl ValueControl(const TFilterCond& condition, bool menus) {
    const TValueEditKind kind = ChooseValueEditor(condition);
    const bool list = kind == TValueEditKind::vkList || kind == TValueEditKind::vkCheckList;
    if (list && IsPending(condition)) return TRowControl::rcPending;
    switch (kind) {
    case TValueEditKind::vkText:
    case TValueEditKind::vkDateTime:
        return TRowControl::rcEdit;
    case TValueEditKind::vkMask:
        return TRowControl::rcMask;
    case TValueEditKind::vkDate:
        return TRowControl::rcDate;
    case TValueEditKind::vkTime:
        return TRowControl::rcTime;
    case TValueEditKind::vkBoolean:
    case TValueEditKind::vkList:
        return menus ? TRowControl::rcMenu : TRowControl::rcListBox;
    case TValueEditKind::vkCheckList:
        return TRowControl::rcCheckList;
    case TValueEditKind::vkCustom:
    case TValueEditKind::vkSubQuery:
        return TRowControl::rcCustom;
    }
    return TRowControl::rcEdit;
}

TDropDownLabel* NewLabel(TRowControl control, QWidget* parent) {
    switch (control) {
    case TRowControl::rcMenu:
        return new TDropDownPopup(parent);
    case TRowControl::rcListBox:
        return new TDropDownListBox(parent);
    case TRowControl::rcCheckList:
        return new TDropDownCheckListBox(parent);
    case TRowControl::rcEdit:
        return new TDropDownEdit(parent);
    case TRowControl::rcMask:
        return new TDropDownMaskEdit(parent);
    case TRowControl::rcDate:
    case TRowControl::rcTime: {
        auto* label = new TDropDownDateTimeEdit(parent);
        label->SetKind(control == TRowControl::rcDate ? TDateTimeEditKind::ekDate
                                                      : TDateTimeEditKind::ekTime);
        return label;
    }
    case TRowControl::rcText:
    case TRowControl::rcCustom:
    case TRowControl::rcPending:
        return new TDropDownLabel(parent);
    }
    return nullptr;
}

} // namespace

TRowControl TFilterRowView::ControlFor(const TRowLabel& label) const {
    const bool menus = panel.Appearance().Has(TQPAppearance::aoPopupValue);
    switch (label.kind) {
    case TRowLabelKind::rlText:
    case TRowLabelKind::rlOpen:
    case TRowLabelKind::rlClose:
    case TRowLabelKind::rlKept:
    case TRowLabelKind::rlValueJoiner:
        return TRowControl::rcText;
    case TRowLabelKind::rlBracketWord:
    case TRowLabelKind::rlBoolWord:
    case TRowLabelKind::rlOperator:
        return TRowControl::rcMenu;
    case TRowLabelKind::rlField:
        return panel.Appearance().Has(TQPAppearance::aoPopupField) ? TRowControl::rcMenu
                                                                   : TRowControl::rcListBox;
    case TRowLabelKind::rlValue:
        return ValueControl(*Condition(), menus);
    case TRowLabelKind::rlParameter:
    case TRowLabelKind::rlSubQuery:
        return TRowControl::rcCustom;
    }
    return TRowControl::rcText;
}

/// A label that showed the same piece by the same control goes on doing so.
TDropDownLabel* TFilterRowView::TakeFrom(std::vector<TElement>& old, const TRowLabel& label,
                                         TRowControl control) const {
    for (TElement& element : old) {
        const bool same = element.widget && element.control == control &&
                          element.label.kind == label.kind &&
                          element.label.valueNumber == label.valueNumber;
        if (same) return std::exchange(element.widget, nullptr);
    }
    return nullptr;
}

TDropDownLabel* TFilterRowView::MakeLabel(const TRowLabel&, TRowControl control) {
    TDropDownLabel* widget = NewLabel(control, panel.viewport());
    if (control == TRowControl::rcText) {
        widget->SetFixed(true);
        widget->setFocusPolicy(Qt::NoFocus);
    }
    Listen(*widget, control);
    widget->show();
    return widget;
}

template <class Call>
void TFilterRowView::Run(Call&& call) {
    struct TRunning {
        explicit TRunning(TFilterRowView& running) : view(&running) { ++view->running; }
        ~TRunning() {
            if (view) --view->running;
        }
        QPointer<TFilterRowView> view;
    } const counted(*this);
    call();
}

void TFilterRowView::Listen(TDropDownLabel& widget, TRowControl control) {
    const QPointer<TFilterRowView> view(this);
    auto heard = [view](void (TFilterRowView::*call)(TDropDownLabel*)) {
        return [view, call](TDropDownLabel* label) {
            if (view) view->Run([&] { (*view.*call)(label); });
        };
    };
    widget.OnRightClick = heard(&TFilterRowView::LabelRightClick);
    if (control == TRowControl::rcText) return;
    widget.BeforeDropDown = heard(&TFilterRowView::LabelOpens);
    widget.AfterDropDown = heard(&TFilterRowView::LabelOpened);
    widget.OnAltClick = heard(&TFilterRowView::LabelAltClick);
    widget.AfterDropUp = [view](TDropDownLabel* label, bool accepted) {
        if (view) view->Run([&] { view->LabelDone(label, accepted); });
    };
    if (control != TRowControl::rcCustom && control != TRowControl::rcPending) return;
    widget.OnCustomDropDown = [view](TDropDownLabel* label, QString&, bool& accept) {
        accept = false; // what was changed is in the query already
        if (view) view->Run([&] { view->LabelCustom(label); });
    };
}

void TFilterRowView::Discard(const TElement& element) {
    TDropDownLabel& label = *element.widget;
    label.BeforeDropDown = label.AfterDropDown = label.OnAltClick = label.OnRightClick = nullptr;
    label.BeforeDropUp = nullptr;
    label.AfterDropUp = nullptr;
    label.OnCustomDropDown = nullptr;
    label.DropUp(false);
    label.hide();
    label.deleteLater(); // an event of its own may be running
}

QColor TFilterRowView::ColorOf(TRowLabelKind kind, bool on) const {
    const QPalette& palette = panel.palette();
    if (!on) return Between(palette.color(QPalette::WindowText), palette.color(QPalette::Window));
    const QColor blue = ColorFromNumber(clBlue);
    const TQPAppearance& looks = panel.Appearance();
    switch (kind) {
    case TRowLabelKind::rlText:
    case TRowLabelKind::rlOpen:
    case TRowLabelKind::rlClose:
    case TRowLabelKind::rlKept:
    case TRowLabelKind::rlValueJoiner:
        return {};
    case TRowLabelKind::rlBracketWord:
    case TRowLabelKind::rlBoolWord:
        return ReadableColor(looks.BoolOpColor(), blue, palette);
    case TRowLabelKind::rlField:
        return ReadableColor(looks.FieldColor(), blue, palette);
    case TRowLabelKind::rlOperator:
        return ReadableColor(looks.OperatorColor(), blue, palette);
    case TRowLabelKind::rlValue:
    case TRowLabelKind::rlParameter:
    case TRowLabelKind::rlSubQuery:
        return ReadableColor(looks.ValueColor(), blue, palette);
    }
    return {};
}

/// What a label holds: not what it shows, but what its editor begins with.
static QString ValueOf(const TRowLabel& label, const TFilterRow& row) {
    const TFilterCond* condition = row.AsCond();
    switch (label.kind) {
    case TRowLabelKind::rlBracketWord:
        return QString::number(static_cast<int>(label.bracket->LinkType()));
    case TRowLabelKind::rlBoolWord:
        return JoinsByAnd(label.bracket->LinkType()) ? QStringLiteral("and") : QStringLiteral("or");
    case TRowLabelKind::rlField:
        return condition->Field() ? QString::number(condition->Field()->ID()) : QString();
    case TRowLabelKind::rlOperator:
        return ToQt(condition->OperatorName());
    case TRowLabelKind::rlValue:
        return ToQt(condition->Value(label.valueNumber));
    default:
        return ToQt(label.text);
    }
}

QString TFilterRowView::AccessibleNameOf(const TElement& element) const {
    const TFilterCond* condition = Condition();
    const TKRowTexts& texts = panel.RowTexts();
    switch (element.label.kind) {
    case TRowLabelKind::rlBracketWord:
    case TRowLabelKind::rlBoolWord:
        return tr("How the conditions are joined");
    case TRowLabelKind::rlField:
        return tr("Field");
    case TRowLabelKind::rlOperator:
        return condition->Field()
                   ? tr("%1, operator").arg(ToQt(texts.FieldText(*condition->Field())))
                   : tr("Operator");
    case TRowLabelKind::rlValue:
    case TRowLabelKind::rlParameter:
    case TRowLabelKind::rlSubQuery: {
        QString name = condition->Field() ? ToQt(texts.FieldText(*condition->Field())) : QString();
        if (condition->Operator()) name += u' ' + ToQt(condition->Operator()->DisplayName());
        return element.label.valueNumber == 2 ? tr("%1, second value").arg(name) : name;
    }
    default:
        return {};
    }
}

/// The list is read while the row is shown, so that it is there when it is asked for.
void TFilterRowView::ShowPending(TDropDownLabel& widget) const {
    const TDSField& field = *Condition()->Field();
    TSQLListReader& reader = panel.ListReader();
    reader.Want(field);
    const bool loading = reader.StateOf(field) == TSQLListReader::TState::Loading;
    widget.setCursor(loading ? Qt::BusyCursor : Qt::PointingHandCursor);
    if (loading) widget.setToolTip(tr("The list is being read"));
    const QString error = reader.ErrorOf(field);
    if (!error.isEmpty())
        widget.setToolTip(ToolTipText(tr("The list could not be read: %1").arg(error)));
}

void TFilterRowView::ShowLabel(const TElement& element, bool on) {
    TDropDownLabel& widget = *element.widget;
    const QString caption = ToQt(element.label.text);
    // while the user is at it, the editor's value stays as it is
    widget.ShowValue(widget.Dropped() ? widget.Value() : ValueOf(element.label, *row), caption);
    widget.SetFontColor(ColorOf(element.label.kind, on));
    widget.setToolTip(ToolTipText(Isolated(ToQt(element.label.hint))));
    if (element.control == TRowControl::rcPending) ShowPending(widget);
    widget.setAccessibleName(AccessibleNameOf(element));
    widget.setAccessibleDescription(ToQt(element.label.hint));
    if (auto* edit = qobject_cast<TDropDownCustomEdit*>(&widget))
        edit->SetBorderColor(panel.Appearance().ControlBorderColor());
    widget.resize(widget.sizeHint());
}

} // namespace tern7
