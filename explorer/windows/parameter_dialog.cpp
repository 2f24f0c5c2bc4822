#include "parameter_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <tern7/core/query/query.h>
#include <tern7/ui/support/text.h>

#include "menu_text.h"

namespace tern7 {

TParameterDialog::TParameterDialog(const TKQuery& query, QWidget* parent) : QDialog(parent) {
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
    auto* column = new QVBoxLayout(this);
    column->addWidget(area);
    column->addWidget(buttons);
    resize(420, sizeHint().height());
}

void TParameterDialog::Apply() const {
    for (const auto& [param, edit] : fields)
        param->SetValue(FromQt(edit->text()));
}

} // namespace tern7
