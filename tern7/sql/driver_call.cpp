#include <tern7/sql/driver_call.h>

#include <QtCore/QRegularExpression>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>

#include <tern7/core/corekit/strings.h>
#include <tern7/core/global/errors.h>
#include <tern7/sql/qt_text.h>

namespace tern7 {

namespace {

/// The text with every whole-word occurrence of the secret replaced.
QString WithoutSecret(QString text, const QString& secret) {
    if (secret.isEmpty()) return text;
    const QRegularExpression word(QStringLiteral("(?<![\\p{L}\\p{N}])%1(?![\\p{L}\\p{N}])")
                                      .arg(QRegularExpression::escape(secret)),
                                  QRegularExpression::UseUnicodePropertiesOption);
    return text.replace(word, QStringLiteral("***"));
}

QString Words(const QSqlError& error) {
    for (const QString& words : {error.databaseText().trimmed(), error.driverText().trimmed()})
        if (!words.isEmpty()) return words;
    return QStringLiteral("The database gives no reason");
}

} // namespace

std::string ErrorText(const QSqlError& error) {
    return FromQt(Words(error));
}

std::string OpenErrorText(const QSqlDatabase& database) {
    static const QRegularExpression passwordPart(
        QStringLiteral("(?:PWD|PASSWORD)\\s*=\\s*(\\{[^}]*\\}|[^;]*)"),
        QRegularExpression::CaseInsensitiveOption);
    QString text = WithoutSecret(Words(database.lastError()), database.password());
    for (const QRegularExpressionMatch& match : passwordPart.globalMatch(
             database.databaseName() + QLatin1Char(';') + database.connectOptions()))
        text = WithoutSecret(text, match.captured(1));
    return FromQt(text);
}

void RaiseDriverError(const QSqlError& error) {
    throw EKDBInfoError(ErrorText(error));
}

void Execute(const QSqlDatabase& database, const QString& sql) {
    QSqlQuery query(database);
    if (!query.exec(sql)) RaiseDriverError(query.lastError());
}

void ForEachRow(const QSqlDatabase& database, const QString& sql, const QVariantList& values,
                const std::function<void(const QSqlQuery&)>& row) {
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (!query.prepare(sql)) RaiseDriverError(query.lastError());
    for (const QVariant& value : values)
        query.addBindValue(value);
    if (!query.exec()) RaiseDriverError(query.lastError());
    while (query.next())
        row(query);
    if (query.lastError().isValid()) RaiseDriverError(query.lastError());
}

std::string TextOf(const QSqlQuery& query, int column) {
    const QVariant value = query.value(column);
    if (value.metaType().id() == QMetaType::QByteArray) return value.toByteArray().toStdString();
    return FromQt(value.toString());
}

} // namespace tern7
