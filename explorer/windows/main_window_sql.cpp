#include "main_window.h"

#include <QMessageBox>
#include <QRegularExpression>

#include <tern7/core/query/read_sql/sql_report.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/support/text.h>

#include "read_sql_dialog.h"
#include "report_dialog.h"

namespace tern7 {

/// The message of the error and its line, or nothing.
QString TMainWindow::TryReadSQL(const QString& sql, int& line) {
    TKQuery& query = conditions->Query();
    const std::string before = query.GetQueryString();
    try {
        query.ImportSQL(FromQt(sql));
        return {};
    } catch (const std::exception& error) {
        query.SetQueryString(before);
        query.SetActive(true);
        static const QRegularExpression lineOfError(QStringLiteral("Line: ?(\\d+)"));
        const QString message = ToQt(error.what());
        line = lineOfError.match(message).captured(1).toInt();
        return message;
    }
}

void TMainWindow::ShowReport(const std::string& before) {
    TKQuery& query = conditions->Query();
    const TSQLReport report = query.SQLReport();
    QueryChanged();
    if (!report.Has(TSQLReportKind::rkKeptAsText) && !report.AnyDropped()) return;
    TReportDialog dialog(report, this);
    if (dialog.exec() == QDialog::Accepted) return;
    query.SetQueryString(before);
    QueryChanged();
}

bool TMainWindow::ReadSQL(const QString& sql) {
    if (!session) return false;
    const std::string before = QueryText();
    int line = 0;
    const QString message = TryReadSQL(sql, line);
    if (!message.isEmpty()) {
        QMessageBox::warning(this, tr("Read SQL"), message);
        return false;
    }
    ShowReport(before);
    return true;
}

void TMainWindow::AskForSQL() {
    if (!session) return;
    const std::string before = QueryText();
    TReadSQLDialog dialog(
        ShownSQL(), [this](const QString& sql, int& line) { return TryReadSQL(sql, line); }, this);
    if (dialog.exec() == QDialog::Accepted) ShowReport(before);
}

} // namespace tern7
