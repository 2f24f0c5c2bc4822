#pragma once

#include <functional>
#include <optional>

#include <QDialog>

class QLabel;
class QPlainTextEdit;

namespace tern7 {

/// Why a statement can not be read, and where; line and column count from 1, 0 is nowhere.
struct TReadProblem {
    QString message;
    int line = 0, column = 0;
};

/// Asks for a statement and stays open with what was typed when it can not be read.
class TReadSQLDialog : public QDialog {
    Q_OBJECT

public:
    using TRead = std::function<std::optional<TReadProblem>(const QString& sql)>;

    TReadSQLDialog(const QString& sql, TRead read, QWidget* parent = nullptr);

private:
    void Read();
    void Mark(int line, int column);

    TRead read;
    QPlainTextEdit* text;
    QLabel* error;
};

} // namespace tern7
