#include "main_window.h"

#include <QMessageBox>

#include <tern7/core/corekit/scanner.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/query/read_sql/sql_report.h>
#include <tern7/core/structure/link.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/support/text.h>

#include "../data/error_text.h"
#include "read_sql_dialog.h"
#include "report_dialog.h"

namespace tern7 {

namespace {

TReadProblem Problem(const QString& text, TKTextPosition at) {
    return {text.arg(at.line).arg(at.column), at.line, at.column};
}

/// Old style joins are said with JOIN from here on, so that tables which come later are joined as
/// their links say. A statement without its outer joins stays as it is.
void SpeakSQL2(TKQuery& query) {
    const TRTableList& tables = query.QResult().ResultTables();
    bool isSame = true;
    for (int i = 1; i < tables.GetCount() && query.SQLSyntax() == TSQLSyntax::ssSQL1; ++i)
        isSame = isSame && tables[i].Link->LinkType() == TDSLinkType::ltInner;
    if (isSame) query.SetSQLSyntax(TSQLSyntax::ssSQL2);
}

TReadProblem ProblemOf(const std::string& sql, const std::exception& error) {
    const auto* wrong = dynamic_cast<const ESQLParserError*>(&error);
    if (!wrong) return {ErrorText(error), 0, 0};
    const auto source = std::make_shared<const TKSourceText>(sql);
    TKScanner scanner;
    scanner.SetSource(source);
    // A string that is not closed takes all that follows it.
    if (const std::string_view open = scanner.OpenString(); !open.empty())
        return Problem(
            TMainWindow::tr("The string that begins at line %1, column %2 is not closed."),
            source->PositionOf(source->OffsetOf(open)));
    const TKTextPosition at{wrong->Line(), wrong->Column()};
    if (std::string_view(wrong->what()).starts_with(messages::LostBracket))
        return Problem(
            TMainWindow::tr("At line %1, column %2 a bracket is missing, or there is one "
                            "too many."),
            at);
    while (!scanner.EOS())
        scanner.NextToken();
    const TKTextPosition end = source->PositionOf(scanner.GetTokOffset());
    if (at.line == end.line && at.column == end.column)
        return Problem(TMainWindow::tr("The statement ends too early, at line %1, column %2."), at);
    return Problem(
        TMainWindow::tr("The text is no SELECT statement that can be read: from line %1, "
                        "column %2 on it does not go on as one."),
        at);
}

} // namespace

/// Reads a statement as one step that can be taken back. What is wrong with it when it can not be
/// read; nothing has happened then.
std::optional<TReadProblem> TMainWindow::TryReadSQL(const QString& sql) {
    conditions->CloseEdit();
    TKQuery& query = conditions->Query();
    const std::string text = FromQt(sql);
    const auto read = [&] {
        try {
            query.ImportSQL(text);
            SpeakSQL2(query);
        } catch (const std::exception&) {
            query.SetActive(true);
            throw;
        }
    };
    try {
        readSQLChanged =
            conditions->Editor().Run(QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Read SQL"), read);
        return {};
    } catch (const std::exception& error) {
        return ProblemOf(text, error);
    }
}

void TMainWindow::ShowReport() {
    const TSQLReport report = conditions->Query().SQLReport();
    QueryChanged();
    if (!report.Has(TSQLReportKind::rkKeptAsText) && !report.AnyDropped()) return;
    TReportDialog dialog(report, this);
    if (dialog.exec() == TReportDialog::TakenBack && readSQLChanged) conditions->Undo();
}

bool TMainWindow::ReadSQL(const QString& sql) {
    if (!session) return false;
    if (const auto problem = TryReadSQL(sql)) {
        Warn(tr("Read SQL"), problem->message);
        return false;
    }
    ShowReport();
    return true;
}

void TMainWindow::AskForSQL() {
    if (!session) return;
    TReadSQLDialog dialog(
        ShownSQL(), [this](const QString& sql) { return TryReadSQL(sql); }, this);
    if (dialog.exec() == QDialog::Accepted) ShowReport();
}

} // namespace tern7
