#include "parameter_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <tern7/core/query/query.h>
#include <tern7/ui/panels/row_problem.h>
#include <tern7/ui/support/text.h>

#include "menu_text.h"

namespace tern7 {

TParameterDialog::TParameterDialog(const TKQuery& query, QWidget* parent)
    : QDialog(parent), error(new QLabel) {
    setWindowTitle(tr("Values of the query"));
    auto* inner = new QWidget;
    auto* form = new QFormLayout(inner);
    for (TSQLParam* param : query.AllParams()) {
        auto* edit = new QLineEdit(ToQt(param->Value()));
        form->addRow(MenuText(ToQt(param->Caption())) + u':', edit);
        edit->setAccessibleName(ToQt(param->Caption()));
        fields.emplace_back(param, edit);
    }
    auto* area = new QScrollArea;
    area->setWidget(inner);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("&Run"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    error->setWordWrap(true);
    error->setTextFormat(Qt::PlainText);
    error->hide();
    auto* column = new QVBoxLayout(this);
    column->addWidget(area);
    column->addWidget(error);
    column->addWidget(buttons);
    resize(420, sizeHint().height());
    if (!fields.empty()) fields.front().second->setFocus();
}

void TParameterDialog::accept() {
    for (const auto& [param, edit] : fields) {
        const QString problem = ProblemOf(*param, edit->text().trimmed());
        if (problem.isEmpty()) continue;
        error->setText(problem);
        error->show();
        edit->setAccessibleDescription(problem);
        edit->setFocus();
        edit->selectAll();
        return;
    }
    QDialog::accept();
}

QString TParameterDialog::ProblemOf(const TSQLParam& param, const QString& value) const {
    const TFieldType type = param.ExprType();
    const bool isText = type == TFieldType::ftString || type == TFieldType::ftMemo;
    if (value.isEmpty() && !isText) return tr("A value is missing: %1").arg(ToQt(param.Caption()));
    return DateProblem(*param.Condition(), value);
}

void TParameterDialog::Apply() const {
    for (const auto& [param, edit] : fields)
        param->SetValue(FromQt(edit->text()));
}

} // namespace tern7
