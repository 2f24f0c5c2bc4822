#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

namespace tern7 {

/// The local form of dates and times: the locale's short form with the year in four digits, hours
/// up to 24 and always with seconds, so that no value loses anything by being shown.
QString LocalDateFormat(const QLocale& locale = QLocale());
QString LocalTimeFormat(const QLocale& locale = QLocale());
/// Both with a blank between.
QString LocalDateTimeFormat(const QLocale& locale = QLocale());

/// A fixed moment of a time, date or both, in the local form and as it can be read in every
/// language; these are the same text where the local form is that one, and for times.
struct TDateExample {
    QString local;
    QString everywhere;
};
TDateExample ExampleOf(bool date, bool time, const QLocale& locale = QLocale());

/// Reading takes the local form, else `yyyy-mm-dd` and `hh:mm[:ss]`; the result is invalid when the
/// text is neither.
QDate ReadLocalDate(const QString& text, const QLocale& locale = QLocale());
QTime ReadLocalTime(const QString& text, const QLocale& locale = QLocale());
QDateTime ReadLocalDateTime(const QString& text, const QLocale& locale = QLocale());

} // namespace tern7
