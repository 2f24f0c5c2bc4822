#include "report_dialog.h"

#include <algorithm>
#include <string>

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

/// What the core says in English, for the translation; the reasons are those of report_reasons.h.
[[maybe_unused]] constexpr const char* coreTexts[] = {
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "alias"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "column"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "condition"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "derived table"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "grouping"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "hint"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "join"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "parameter"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "rest"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "sorting"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "statement"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "table"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "a query can not say it"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "another column has this alias"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "another parameter has this name"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "it is no column"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "it names what the structure does not have"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "no column and no condition uses it"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "no field or operator of the structure says it"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "no link of the structure"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "the columns ask for other groups"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "the query joins the tables in another order"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "text"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "the string is not closed"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "the structure has no such table"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "the structure joins it in another way"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "the structure joins these tables in another way"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "the parser does not read it"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "no field has this expression"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "no operator has this form"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog",
                      "a condition keeps this table, which nothing else uses"),
    QT_TRANSLATE_NOOP(
        "tern7::TReportDialog",
        "a condition keeps this join, which the structure makes by way of other tables"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog",
                      "only the syntax sql1 leaves out the structure's outer join with it"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog",
                      "a table of the sub-select has the name that the structure gives another"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "several tables have a column of this name"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog", "the query needs a further table"),
    QT_TRANSLATE_NOOP("tern7::TReportDialog",
                      "the columns that the tables are joined by would come twice"),
};

/// Behind a colon stands a name.
QString Reason(const std::string& reason) {
    const size_t end = std::min(reason.find(": "), reason.size());
    return TReportDialog::tr(reason.substr(0, end).c_str()) + ToQt(reason.substr(end));
}

} // namespace

TReportDialog::TReportDialog(const TSQLReport& report, QWidget* parent) : QDialog(parent) {
    setWindowTitle(tr("What was read"));
    auto* list = new QTreeWidget;
    list->setRootIsDecorated(false);
    list->setHeaderLabels(
        {tr("Outcome"), tr("Part"), tr("Text"), tr("Reason"), tr("Line, column")});
    int kept = 0, dropped = 0;
    for (const TSQLReportEntry& entry : report.Entries()) {
        auto* item = new QTreeWidgetItem(
            {Outcome(entry.kind), tr(entry.what.c_str()), ToQt(entry.text).simplified(),
             Reason(entry.reason),
             QStringLiteral("%1, %2").arg(entry.position.line).arg(entry.position.column)});
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
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { done(TakenBack); });
    auto* column = new QVBoxLayout(this);
    column->addWidget(label);
    column->addWidget(list, 1);
    column->addWidget(buttons);
    resize(680, 360);
}

} // namespace tern7
