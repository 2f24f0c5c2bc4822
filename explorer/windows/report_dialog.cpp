#include "report_dialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <tern7/core/query/read_sql/sql_report.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

QString Outcome(TSQLReportKind kind) {
    switch (kind) {
    case TSQLReportKind::rkRecognised:
        return TReportDialog::tr("Understood");
    case TSQLReportKind::rkKeptAsText:
        return TReportDialog::tr("Kept as text");
    case TSQLReportKind::rkDropped:
        break;
    }
    return TReportDialog::tr("Left out");
}

} // namespace

TReportDialog::TReportDialog(const TSQLReport& report, QWidget* parent) : QDialog(parent) {
    setWindowTitle(tr("What was read"));
    auto* list = new QTreeWidget;
    list->setRootIsDecorated(false);
    list->setHeaderLabels({tr("Outcome"), tr("Part"), tr("Text"), tr("Reason"), tr("Line")});
    int kept = 0, dropped = 0;
    for (const TSQLReportEntry& entry : report.Entries()) {
        auto* item = new QTreeWidgetItem({Outcome(entry.kind), ToQt(entry.what),
                                          ToQt(entry.text).simplified(), ToQt(entry.reason),
                                          QString::number(entry.position.line)});
        for (int i = 0; i < item->columnCount(); ++i)
            item->setToolTip(i, item->text(i));
        kept += entry.kind == TSQLReportKind::rkKeptAsText;
        dropped += entry.kind == TSQLReportKind::rkDropped;
        list->addTopLevelItem(item);
    }
    for (int i = 0; i < list->columnCount(); ++i)
        list->resizeColumnToContents(i);
    list->setColumnWidth(2, std::min(list->columnWidth(2), 260));
    list->setAccessibleName(tr("Parts of the statement"));

    QString summary;
    if (dropped > 0)
        summary = tr("%n part(s) of the statement were left out: the query does not say the same.",
                     nullptr, dropped);
    else if (kept > 0)
        summary = tr("%n part(s) were kept as text.", nullptr, kept);
    else
        summary = tr("Everything was understood.");
    auto* label = new QLabel(summary);
    label->setWordWrap(true);
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(tr("&Keep the query"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(tr("&Undo"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(label);
    column->addWidget(list, 1);
    column->addWidget(buttons);
    resize(680, 360);
}

} // namespace tern7
