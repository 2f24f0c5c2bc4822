#include <tern7/sql/driver_statement.h>

#include <limits>

#include <QtCore/QDateTime>

#include <tern7/core/corekit/strings.h>
#include <tern7/core/global/errors.h>
#include <tern7/core/global/messages.h>
#include <tern7/sql/qt_text.h>

namespace tern7 {

namespace {

using TKind = TBoundValue::TKind;

/// A value to bind, and the type of a cast around its placeholder.
struct TBinding {
    QVariant value;
    std::string castTo = {};

    std::string Placeholder(TKEngine engine, bool odbc) const {
        // Qt's ODBC driver ends texts with a NUL, which MariaDB's takes for a part of them
        const bool ended = odbc && engine == TKEngine::MySQL &&
                           value.metaType().id() == QMetaType::QString && !value.isNull();
        const std::string text = ended ? "TRIM(TRAILING _utf8mb4 0x00 FROM ?)" : "?";
        return castTo.empty() ? text : "CAST(" + text + " AS " + castTo + ")";
    }
};

bool IsNumberKind(TKind kind) {
    return kind == TKind::Integer || kind == TKind::Decimal || kind == TKind::Float;
}

/// Digits before and behind the point; nothing of a number with an exponent.
struct TDigits {
    int whole = 0;
    int fraction = 0;
    bool plain = true;
};

TDigits DigitsOf(std::string_view text) {
    TDigits digits;
    bool behindPoint = false;
    for (char c : text) {
        if (IsDigit(c))
            ++(behindPoint ? digits.fraction : digits.whole);
        else if (c == '.')
            behindPoint = true;
        else if (c != '-' && c != '+')
            digits.plain = false;
    }
    return digits;
}

/// As a 64-bit integer, else as a double, else (no number at all) as the text that it is.
QVariant BinaryNumber(const QString& text) {
    bool fits = false;
    const qlonglong integer = text.toLongLong(&fits);
    if (fits) return integer;
    const double number = text.toDouble(&fits);
    return fits ? QVariant(number) : QVariant(text);
}

/// The parameter takes the type that the number would have as a constant; without the cast it would
/// take that of the other side, and 9.5 next to an integer would be an error.
TBinding PostgreSQLNumber(const QString& text) {
    bool fits = false;
    text.toInt(&fits);
    if (fits) return {text, "integer"};
    text.toLongLong(&fits);
    return {text, fits ? "bigint" : "numeric"};
}

/// A double would compare inexactly with exact decimals.
TBinding MySQLNumber(const std::string& text) {
    constexpr int maxPrecision = 65;
    constexpr int maxScale = 30;
    const QVariant number = BinaryNumber(ToQt(text));
    const TDigits digits = DigitsOf(text);
    const int precision = digits.whole + digits.fraction;
    if (number.metaType().id() != QMetaType::Double || !digits.plain || precision > maxPrecision ||
        digits.fraction > maxScale)
        return {number};
    return {ToQt(text),
            "decimal(" + std::to_string(precision) + "," + std::to_string(digits.fraction) + ")"};
}

/// With a driver that is not known, a typed value is the safest form.
QVariant TypedValue(const TBoundValue& value) {
    const QString text = ToQt(value.text);
    switch (value.kind) {
    case TKind::Boolean:
        return value.text == "1";
    case TKind::Date:
        return QDate::fromString(text, Qt::ISODate);
    case TKind::Time:
        return QTime::fromString(text, Qt::ISODate);
    case TKind::Timestamp:
        return QDateTime::fromString(QString(text).replace(QLatin1Char(' '), QLatin1Char('T')),
                                     Qt::ISODate);
    default:
        return text;
    }
}

TBinding BindingOf(const TBoundValue& value, TKEngine engine) {
    const QString text = ToQt(value.text);
    if (value.kind == TKind::Null) return {QVariant(QMetaType(QMetaType::QString))};
    if (IsNumberKind(value.kind)) {
        if (engine == TKEngine::PostgreSQL) return PostgreSQLNumber(text);
        if (engine == TKEngine::MySQL) return MySQLNumber(value.text);
        return {BinaryNumber(text)};
    }
    if (engine == TKEngine::Generic) return {TypedValue(value)};
    if (value.kind == TKind::Boolean && engine != TKEngine::PostgreSQL)
        return {value.text == "1" ? 1 : 0};
    return {text};
}

} // namespace

TKDriverStatement MakeDriverStatement(const TKSelectText& select,
                                      const std::vector<TBoundValue>& values, TKEngine engine,
                                      bool odbc) {
    for (const TBoundValue& value : values)
        if (value.text.find('\0') != std::string::npos)
            throw EKDBInfoError(std::string(messages::NulInValue));
    if (values.size() != select.placeholders.size())
        throw EKDBInfoError(
            FormatMessage(messages::WrongValueCount, {std::to_string(select.placeholders.size()),
                                                      std::to_string(values.size())}));
    TKDriverStatement statement;
    std::string text;
    size_t from = 0;
    for (size_t i = 0; i < values.size(); ++i) {
        TBinding binding = BindingOf(values[i], engine);
        const size_t at = select.placeholders[i];
        text.append(select.text, from, at - from);
        text += binding.Placeholder(engine, odbc);
        statement.values.append(std::move(binding.value));
        from = at + 1;
    }
    text.append(select.text, from, std::string::npos);
    statement.text = ToQt(text);
    return statement;
}

} // namespace tern7
