#include "text_window.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace tern7 {

TTextWindow::TTextWindow(TWording itsTitle, TWording itsText, QWidget* parent)
    : QDialog(parent), title(std::move(itsTitle)), text(std::move(itsText)),
      browser(new QTextBrowser) {
    setAttribute(Qt::WA_DeleteOnClose);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(browser, 1);
    column->addWidget(buttons);
    Word();
    resize(480, 560);
}

void TTextWindow::Word() {
    setWindowTitle(title());
    browser->setAccessibleName(title());
    browser->setHtml(text());
}

void TTextWindow::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) Word();
}

} // namespace tern7
