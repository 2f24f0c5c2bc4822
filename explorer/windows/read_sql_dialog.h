#pragma once

#include <functional>

#include <QDialog>

class QLabel;
class QPlainTextEdit;

namespace tern7 {

/// Asks for a statement and stays open with what was typed when it can not be read.
class TReadSQLDialog : public QDialog {
    Q_OBJECT

public:
    /// `read` gives the message of an error and its line, or an empty message.
    using TRead = std::function<QString(const QString& sql, int& line)>;

    TReadSQLDialog(const QString& sql, TRead read, QWidget* parent = nullptr);

private:
    void Read();

    TRead read;
    QPlainTextEdit* text;
    QLabel* error;
};

} // namespace tern7
