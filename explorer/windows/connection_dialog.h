#pragma once

#include <QDialog>

#include <tern7/sql/database_url.h>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QStackedWidget;

namespace tern7 {

/// Asks for a database: a file, a server, or an ODBC data source.
class TConnectionDialog : public QDialog {
    Q_OBJECT

public:
    explicit TConnectionDialog(QWidget* parent = nullptr);

    /// Fills the fields; the password stays empty.
    void SetUrl(const TKDatabaseURL& url);
    TKDatabaseURL Url() const;
    /// Shown above the buttons, for another try.
    void ShowError(const QString& message);

private:
    QWidget* MakeFilePage();
    QWidget* MakeServerPage();
    QWidget* MakeSourcePage();
    void KindChanged();
    void CheckComplete();
    void BrowseFile();

    TKDatabaseURL given; // its options have no fields

    QComboBox* kind;
    QStackedWidget* pages;
    QLineEdit* file;
    QLineEdit* host;
    QSpinBox* port;
    QLineEdit* database;
    QLineEdit* user;
    QLineEdit* password;
    QLineEdit* source;
    QLabel* error;
    QPushButton* openButton;
};

} // namespace tern7
