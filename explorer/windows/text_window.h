#pragma once

#include <QDialog>

#include "message_bar.h"

class QTextBrowser;

namespace tern7 {

/// A text to read beside the window, in rich text; it follows the language.
class TTextWindow : public QDialog {
    Q_OBJECT

public:
    TTextWindow(TWording title, TWording text, QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void Word();

    TWording title, text;
    QTextBrowser* browser;
};

} // namespace tern7
