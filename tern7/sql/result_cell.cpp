#include <tern7/sql/result_cell.h>

#include <QtCore/QDateTime>
#include <QtCore/QMetaType>
#include <QtCore/QStringDecoder>
#include <QtCore/QVariant>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlField>
#include <QtSql/QSqlQuery>

#include <tern7/core/corekit/numbers.h>
#include <tern7/sql/qt_text.h>

namespace tern7 {

namespace {

using TKind = TBoundValue::TKind;

struct TNumberedKind {
    int number;
    TKind kind;
};

template <size_t Count>
TKind KindOf(const TNumberedKind (&rows)[Count], int number, TKind otherwise) {
    for (const TNumberedKind& row : rows)
        if (row.number == number) return row.kind;
    return otherwise;
}

constexpr TNumberedKind valueKinds[] = {
    {QMetaType::Bool, TKind::Boolean},        {QMetaType::Char, TKind::Integer},
    {QMetaType::SChar, TKind::Integer},       {QMetaType::UChar, TKind::Integer},
    {QMetaType::Short, TKind::Integer},       {QMetaType::UShort, TKind::Integer},
    {QMetaType::Int, TKind::Integer},         {QMetaType::UInt, TKind::Integer},
    {QMetaType::Long, TKind::Integer},        {QMetaType::ULong, TKind::Integer},
    {QMetaType::LongLong, TKind::Integer},    {QMetaType::ULongLong, TKind::Integer},
    {QMetaType::Float, TKind::Float},         {QMetaType::Double, TKind::Float},
    {QMetaType::QDate, TKind::Date},          {QMetaType::QTime, TKind::Time},
    {QMetaType::QDateTime, TKind::Timestamp},
};

// type numbers of the drivers where the type of the values says too little
constexpr TNumberedKind postgresqlKinds[] = {{1700, TKind::Decimal}, {790, TKind::Text}};
constexpr TNumberedKind mysqlKinds[] = {
    {0, TKind::Decimal}, {246, TKind::Decimal}, {11, TKind::Time}};
constexpr TNumberedKind odbcKinds[] = {
    {2, TKind::Decimal}, {3, TKind::Decimal}, {-7, TKind::Boolean}};

std::string FractionOf(const QTime& time) {
    return time.msec() == 0 ? std::string() : "." + FromQt(time.toString(QStringLiteral("zzz")));
}

std::string TimeText(const QTime& time) {
    return FromQt(time.toString(QStringLiteral("HH:mm:ss"))) + FractionOf(time);
}

std::string DateText(const QDate& date) {
    return FromQt(date.toString(QStringLiteral("yyyy-MM-dd")));
}

bool IsUTF8(const QByteArray& bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    return !decoder.hasError() && !bytes.contains('\0');
}

std::string BytesText(const QByteArray& bytes, bool textAsBytes) {
    if (textAsBytes && IsUTF8(bytes)) return bytes.toStdString();
    return "0x" + bytes.toHex().toStdString();
}

TBoundValue FromInteger(TKind kind, long long number) {
    const bool isBoolean = kind == TKind::Boolean && (number == 0 || number == 1);
    return {isBoolean ? kind : TKind::Integer, std::to_string(number)};
}

/// A number that the driver gives as text in full precision.
TBoundValue FromText(TKind kind, std::string text) {
    if (kind != TKind::Float) return {kind, std::move(text)};
    bool isNumber = false;
    const double number = ToQt(text).toDouble(&isNumber);
    return {kind, isNumber ? XFloatToStr(number) : std::move(text)};
}

} // namespace

TBoundValue::TKind ColumnKind(const QSqlDatabase& database, const QSqlField& field) {
    const TKind kind = KindOf(valueKinds, field.metaType().id(), TKind::Text);
    const QString driver = database.driverName();
    if (driver == QLatin1String("QPSQL")) return KindOf(postgresqlKinds, field.typeID(), kind);
    if (driver == QLatin1String("QMYSQL") || driver == QLatin1String("QMARIADB"))
        return KindOf(mysqlKinds, field.typeID(), kind);
    if (driver == QLatin1String("QODBC")) return KindOf(odbcKinds, field.typeID(), kind);
    return kind;
}

TBoundValue CellOf(const QSqlQuery& query, int column, TBoundValue::TKind kind, bool textAsBytes) {
    if (query.isNull(column)) return {};
    const QVariant value = query.value(column);
    switch (value.metaType().id()) {
    case QMetaType::Bool:
        return {TKind::Boolean, value.toBool() ? "1" : "0"};
    case QMetaType::Float:
    case QMetaType::Double:
        return {kind == TKind::Decimal ? kind : TKind::Float, XFloatToStr(value.toDouble())};
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return {TKind::Integer, std::to_string(value.toULongLong())};
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return FromInteger(kind, value.toLongLong());
    case QMetaType::QDate:
        return {TKind::Date, DateText(value.toDate())};
    case QMetaType::QTime:
        return {TKind::Time, TimeText(value.toTime())};
    case QMetaType::QDateTime:
        return {TKind::Timestamp,
                DateText(value.toDateTime().date()) + " " + TimeText(value.toDateTime().time())};
    case QMetaType::QByteArray:
        return {TKind::Text, BytesText(value.toByteArray(), textAsBytes)};
    default:
        return FromText(kind, FromQt(value.toString()));
    }
}

} // namespace tern7
