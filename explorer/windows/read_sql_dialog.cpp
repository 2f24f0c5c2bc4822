#include "read_sql_dialog.h"

#include <algorithm>

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QVBoxLayout>

#include "sql_highlighter.h"

namespace tern7 {

TReadSQLDialog::TReadSQLDialog(const QString& sql, TRead itsRead, QWidget* parent)
    : QDialog(parent), read(std::move(itsRead)), text(new QPlainTextEdit), error(new QLabel) {
    setWindowTitle(tr("Read SQL"));
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    text->setLayoutDirection(Qt::LeftToRight);
    text->setTabChangesFocus(true);
    text->setPlainText(sql);
    text->selectAll(); // what is pasted takes its place
    text->setAccessibleName(tr("SELECT statement"));
    new TSQLHighlighter(text->document());
    auto* label = new QLabel(
        tr("A &SELECT statement over the tables of this database takes the place of the query:"));
    label->setWordWrap(true);
    label->setBuddy(text);
    error->setTextFormat(Qt::PlainText);
    error->setWordWrap(true);
    error->hide();
    connect(text, &QPlainTextEdit::textChanged, this, [this] { text->setExtraSelections({}); });
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("&Read"));
    connect(buttons, &QDialogButtonBox::accepted, this, &TReadSQLDialog::Read);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(label);
    column->addWidget(text, 1);
    column->addWidget(error);
    column->addWidget(buttons);
    resize(640, 420);
}

void TReadSQLDialog::Read() {
    const std::optional<TReadProblem> problem = read(text->toPlainText());
    if (!problem) return accept();
    error->setText(problem->message);
    error->show();
    text->setAccessibleDescription(problem->message);
    if (problem->line > 0) Mark(problem->line, problem->column);
    text->setFocus();
}

/// The cursor stands where the reading stopped; the line is tinted until something is typed.
void TReadSQLDialog::Mark(int line, int column) {
    const QTextBlock block = text->document()->findBlockByNumber(line - 1);
    if (!block.isValid()) return;
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + std::clamp(column - 1, 0, block.length() - 1));
    text->setTextCursor(cursor);
    text->ensureCursorVisible();
    QTextEdit::ExtraSelection mark;
    mark.cursor = cursor;
    QColor tint(0xE0, 0x90, 0x00);
    tint.setAlpha(70);
    mark.format.setBackground(tint);
    mark.format.setProperty(QTextFormat::FullWidthSelection, true);
    text->setExtraSelections({mark});
}

} // namespace tern7
