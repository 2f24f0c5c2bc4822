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
    error->setWordWrap(true);
    error->hide();
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
    int line = 0;
    const QString message = read(text->toPlainText(), line);
    if (message.isEmpty()) return accept();
    error->setText(message);
    error->show();
    if (line < 1) return;
    const QTextBlock block = text->document()->findBlockByNumber(line - 1);
    text->setTextCursor(QTextCursor(block));
    text->setFocus();
}

} // namespace tern7
