#include <tern7/ui/dialogs/sub_query_dialog.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <tern7/core/query/condition_text.h>
#include <tern7/core/query/row_guard.h>
#include <tern7/core/structure/offered_fields.h>
#include <tern7/ui/controls/drop_down_popup.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

T_dlgSubQuery::T_dlgSubQuery(const TFilterCond& condition, const std::function<void()>& help,
                             QWidget* parent)
    : QDialog(parent), field(new TDropDownPopup), message(new QLabel) {
    message->setWordWrap(true);
    message->setTextFormat(Qt::PlainText);
    message->hide();
    panel = new TKQueryPanel(CopyOf(condition), this);
    if (auto* outer = qobject_cast<TKQueryPanel*>(parent)) TakeLooks(*outer);
    setWindowTitle(panel->Title("ttlSubQueryCaption"));
    auto* column = new QVBoxLayout(this);
    AddFieldLine();
    column->addWidget(panel, 1);
    column->addWidget(message);
    AddButtons(help);
    resize(sizeHint());
}

T_dlgSubQuery::~T_dlgSubQuery() = default;

std::unique_ptr<TKQuery> T_dlgSubQuery::CopyOf(const TFilterCond& condition) {
    const TKQuery& outer = *condition.Query();
    auto copy = outer.NewNested();
    copy->Titles = outer.Titles;
    if (condition.SubQuery().empty()) return copy;
    try {
        copy->SetQueryString(condition.SubQuery());
        copy->SetSQLOptions(condition.SubQueryOptions());
    } catch (const EKTernError& error) {
        Say(ToQt(error.what()));
        copy->SetActive(true);
    }
    return copy;
}

/// The panel in front of which the dialog stands shows its rows in the same way.
void T_dlgSubQuery::TakeLooks(TKQueryPanel& outer) {
    outer.Appearance().AssignTo(panel->Appearance());
    panel->SetRowSpace(outer.RowSpace());
    panel->SetTabSpace(outer.TabSpace());
    panel->SetElemSpace(outer.ElemSpace());
    panel->SetMaxPopupItemCount(outer.MaxPopupItemCount());
    panel->SetImages(outer.Images());
    panel->SetHelpFileName(outer.HelpFileName());
    panel->OnGetGroupImageIndex = outer.OnGetGroupImageIndex;
    panel->OnGetItemImageIndex = outer.OnGetItemImageIndex;
    panel->OnValueAltClick = outer.OnValueAltClick;
    panel->Dialogs = outer.Dialogs;
}

void T_dlgSubQuery::AddFieldLine() {
    const QString caption = panel->Title("ttlResultField");
    auto* line = new QHBoxLayout;
    line->addWidget(new QLabel(caption + u':'));
    line->addWidget(field);
    line->addStretch();
    static_cast<QVBoxLayout*>(layout())->addLayout(line);
    field->setAccessibleName(caption);
    field->BeforeDropDown = [this](TDropDownLabel*) { FillFields(); };
    field->AfterDropUp = [this](TDropDownLabel*, bool accepted) {
        if (accepted) FieldChosen();
    };
    ShowField();
}

void T_dlgSubQuery::AddButtons(const std::function<void()>& help) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(panel->Title("ttlOkBtnCaption"));
    buttons->button(QDialogButtonBox::Cancel)->setText(panel->Title("ttlCancelBtnCaption"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    if (help) {
        QPushButton* button = buttons->addButton(QDialogButtonBox::Help);
        button->setText(panel->Title("ttlHelpBtnCaption"));
        connect(button, &QPushButton::clicked, this, [help] { help(); });
    }
    layout()->addWidget(buttons);
}

void T_dlgSubQuery::FillFields() {
    const QString caption = field->Caption();
    field->ClearAll();
    if (const TKCustomDBStructure* structure = panel->DbStruct())
        for (const TOfferedField& offered : OfferedFields(*structure, TFieldUse::Result))
            field->AddItem(ToQt(offered.group), ToQt(offered.field->DisplayName()),
                           QString::number(offered.field->ID()));
    field->SetCaption(caption);
}

/// The chosen field is the only column of the sub-query.
void T_dlgSubQuery::FieldChosen() {
    const TKCustomDBStructure* structure = panel->DbStruct();
    TDSField* chosen = structure ? structure->FieldByID(field->Value().toInt()) : nullptr;
    if (chosen)
        panel->Query().RunStep(QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Choose field"), [&] {
            TRFieldList& columns = panel->QResult().ResultFields();
            columns.Clear();
            columns.Insert(0, chosen->DisplayName(), {chosen});
        });
    ShowField();
}

void T_dlgSubQuery::ShowField() {
    const TRFieldList& columns = panel->QResult().ResultFields();
    field->SetCaption(columns.GetCount() > 0 ? ToQt(columns.GetCaption()) : QString());
}

void T_dlgSubQuery::Say(const QString& problem) {
    message->setText(problem);
    message->setVisible(!problem.isEmpty());
}

/// OK closes only when there is a statement.
void T_dlgSubQuery::accept() {
    panel->CloseEdit(true);
    if (panel->QResult().ResultFields().GetCount() == 0)
        return Say(tr("Choose the field that the sub-query returns."));
    try {
        panel->BuildQuery();
    } catch (const EKTernError& error) {
        return Say(ToQt(error.what()));
    }
    QDialog::accept();
}

bool T_dlgSubQuery::Store(TFilterCond& condition) {
    const std::string text = panel->Query().GetQueryString();
    const TSQLOptions options = panel->SQLOptions();
    if (text == condition.SubQuery() && options == condition.SubQueryOptions()) return false;
    const bool hasParams = !panel->Query().AllParams().empty();
    panel->ClearAll(); // gives the names of its parameters free
    TKQueryUpdate update(*condition.Query());
    condition.SetSubQuery(text, options);
    // A statement with parameters is built when it is needed: their names may be others then.
    condition.SetValue(1, hasParams ? std::string() : NestedStatement(condition));
    return true;
}

bool EditSubQuery(QWidget* parent, TFilterCond& condition, const std::function<void()>& help) {
    const TRowGuard guard(condition);
    const QPointer<T_dlgSubQuery> dialog = new T_dlgSubQuery(condition, help, parent);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog) return false; // it went with its parent
    dialog->deleteLater();
    return accepted && guard.Row() && dialog->Store(condition);
}

} // namespace tern7
