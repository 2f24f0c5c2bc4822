#include "connection_dialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

using TDriver = TKDatabaseURL::TDriver;

constexpr int postgreSQLPort = 5432, mySQLPort = 3306;

} // namespace

TConnectionDialog::TConnectionDialog(QWidget* parent)
    : QDialog(parent), kind(new QComboBox), pages(new QStackedWidget), file(new QLineEdit),
      host(new QLineEdit), port(new QSpinBox), database(new QLineEdit), user(new QLineEdit),
      password(new QLineEdit), source(new QLineEdit), error(new QLabel) {
    setWindowTitle(tr("Open database"));
    kind->addItem(tr("SQLite file"), static_cast<int>(TDriver::SQLite));
    kind->addItem(tr("PostgreSQL server"), static_cast<int>(TDriver::PostgreSQL));
    kind->addItem(tr("MariaDB or MySQL server"), static_cast<int>(TDriver::MySQL));
    kind->addItem(tr("ODBC data source"), static_cast<int>(TDriver::ODBC));
    pages->addWidget(MakeFilePage());
    pages->addWidget(MakeServerPage());
    pages->addWidget(MakeSourcePage());

    error->setWordWrap(true);
    error->setTextFormat(Qt::PlainText);
    error->setTextInteractionFlags(Qt::TextSelectableByMouse);
    error->hide();

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel);
    openButton = buttons->button(QDialogButtonBox::Open);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* kindForm = new QFormLayout;
    kindForm->addRow(tr("&Database:"), kind);
    auto* column = new QVBoxLayout(this);
    column->addLayout(kindForm);
    column->addWidget(pages);
    column->addStretch();
    column->addWidget(error);
    column->addWidget(buttons);

    connect(kind, &QComboBox::currentIndexChanged, this, &TConnectionDialog::KindChanged);
    for (QLineEdit* edit : {file, host, database, source})
        connect(edit, &QLineEdit::textChanged, this, &TConnectionDialog::CheckComplete);
    KindChanged();
}

QWidget* TConnectionDialog::MakeFilePage() {
    auto* page = new QWidget;
    auto* browse = new QPushButton(tr("&Browse..."));
    connect(browse, &QPushButton::clicked, this, &TConnectionDialog::BrowseFile);
    auto* row = new QHBoxLayout;
    row->addWidget(file);
    row->addWidget(browse);
    auto* form = new QFormLayout(page);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(tr("&File:"), row);
    static_cast<QLabel*>(form->labelForField(row))->setBuddy(file);
    return page;
}

QWidget* TConnectionDialog::MakeServerPage() {
    auto* page = new QWidget;
    host->setText(QStringLiteral("localhost"));
    port->setRange(1, 65535);
    password->setEchoMode(QLineEdit::Password);
    password->setPlaceholderText(tr("not kept"));
    auto* form = new QFormLayout(page);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(tr("&Server:"), host);
    form->addRow(tr("P&ort:"), port);
    form->addRow(tr("&Name of the database:"), database);
    form->addRow(tr("&User:"), user);
    form->addRow(tr("&Password:"), password);
    return page;
}

QWidget* TConnectionDialog::MakeSourcePage() {
    auto* page = new QWidget;
    source->setPlaceholderText(tr("Name of a data source, or a connection string"));
    auto* form = new QFormLayout(page);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(tr("&Source:"), source);
    return page;
}

void TConnectionDialog::KindChanged() {
    const auto driver = static_cast<TDriver>(kind->currentData().toInt());
    const bool isServer = driver == TDriver::PostgreSQL || driver == TDriver::MySQL;
    pages->setCurrentIndex(isServer ? 1 : driver == TDriver::SQLite ? 0 : 2);
    if (isServer) port->setValue(driver == TDriver::PostgreSQL ? postgreSQLPort : mySQLPort);
    CheckComplete();
}

void TConnectionDialog::CheckComplete() {
    const QLineEdit* needed[] = {file, database, source};
    openButton->setEnabled(!needed[pages->currentIndex()]->text().trimmed().isEmpty());
}

void TConnectionDialog::BrowseFile() {
    const QString chosen = QFileDialog::getOpenFileName(
        this, tr("Open database"), file->text(),
        tr("SQLite databases (*.db *.sqlite *.sqlite3 *.db3);;All files (*)"));
    if (!chosen.isEmpty()) file->setText(chosen);
}

void TConnectionDialog::SetUrl(const TKDatabaseURL& url) {
    kind->setCurrentIndex(kind->findData(static_cast<int>(url.driver)));
    (url.driver == TDriver::SQLite ? file
     : url.driver == TDriver::ODBC ? source
                                   : database)
        ->setText(ToQt(url.database));
    given = url;
    user->setText(ToQt(url.user));
    // options may say where the server is
    if (!url.host.empty() || !url.options.empty()) host->setText(ToQt(url.host));
    if (url.port > 0) port->setValue(url.port);
    if (pages->currentIndex() == 1) password->setFocus();
}

TKDatabaseURL TConnectionDialog::Url() const {
    TKDatabaseURL url;
    url.driver = static_cast<TDriver>(kind->currentData().toInt());
    if (pages->currentIndex() != 1) {
        url.database = FromQt((pages->currentIndex() == 0 ? file : source)->text().trimmed());
        return url;
    }
    if (url.driver == given.driver) url.options = given.options;
    url.host = FromQt(host->text().trimmed());
    url.port = port->value();
    url.database = FromQt(database->text().trimmed());
    url.user = FromQt(user->text().trimmed());
    url.password = FromQt(password->text());
    return url;
}

void TConnectionDialog::ShowError(const QString& message) {
    error->setText(message);
    error->show();
}

} // namespace tern7
