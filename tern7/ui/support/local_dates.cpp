#include <tern7/ui/support/local_dates.h>

#include <QRegularExpression>

namespace tern7 {

namespace {

/// Without the marks of direction that some forms hold and nobody types.
QString Plain(QString text) {
    return text.remove(QChar(0x200E)).remove(QChar(0x200F)).trimmed();
}

} // namespace

QString LocalDateFormat(const QLocale& locale) {
    static const QRegularExpression shortYear(QStringLiteral("(?<!y)yy(?!y)"));
    QString format = Plain(locale.dateFormat(QLocale::ShortFormat));
    return format.replace(shortYear, QStringLiteral("yyyy"));
}

QString LocalTimeFormat(const QLocale& locale) {
    QString format;
    qsizetype afterMinutes = -1;
    bool quoted = false, seconds = false;
    for (const QChar c : locale.timeFormat(QLocale::ShortFormat)) {
        if (c == u'\'') quoted = !quoted;
        if (!quoted && QStringLiteral("aApPt").contains(c)) continue;
        format += !quoted && c == u'h' ? QChar(u'H') : c;
        if (!quoted && c == u'm') afterMinutes = format.size();
        if (!quoted && c == u's') seconds = true;
    }
    if (!seconds && afterMinutes >= 0) format.insert(afterMinutes, QStringLiteral(":ss"));
    return format.trimmed();
}

QString LocalDateTimeFormat(const QLocale& locale) {
    return LocalDateFormat(locale) + u' ' + LocalTimeFormat(locale);
}

TDateExample ExampleOf(bool date, bool time, const QLocale& locale) {
    const QDateTime moment(QDate(2024, 12, 31), QTime(14, 5)); // no day is a month
    const auto both = [&](const QString& day, const QString& hour) {
        return date && time ? day + u' ' + hour : date ? day : hour;
    };
    const QString local =
        locale.toString(moment, both(LocalDateFormat(locale), LocalTimeFormat(locale)));
    const QString everywhere =
        moment.toString(both(QStringLiteral("yyyy-MM-dd"), QStringLiteral("HH:mm:ss")));
    return {local, date ? everywhere : local};
}

QDate ReadLocalDate(const QString& text, const QLocale& locale) {
    const QString trimmed = Plain(text);
    const QDate local = locale.toDate(trimmed, LocalDateFormat(locale));
    return local.isValid() ? local : QDate::fromString(trimmed, QStringLiteral("yyyy-M-d"));
}

QTime ReadLocalTime(const QString& text, const QLocale& locale) {
    const QString trimmed = Plain(text);
    QTime time = locale.toTime(trimmed, LocalTimeFormat(locale));
    for (const char* form : {"H:m:s.zzz", "H:m:s", "H:m"})
        if (!time.isValid()) time = QTime::fromString(trimmed, QString::fromLatin1(form));
    return time;
}

QDateTime ReadLocalDateTime(const QString& text, const QLocale& locale) {
    const QString trimmed = Plain(text);
    QDateTime local = locale.toDateTime(trimmed, LocalDateTimeFormat(locale));
    if (local.isValid()) return local;
    const QDate dateAlone = ReadLocalDate(trimmed, locale);
    if (dateAlone.isValid()) return {dateAlone, QTime(0, 0)};
    static const QRegularExpression blank(QStringLiteral("[ T]"));
    const qsizetype gap = trimmed.indexOf(blank);
    if (gap < 0) return {};
    const QDate date = ReadLocalDate(trimmed.left(gap), locale);
    const QTime time = ReadLocalTime(trimmed.mid(gap + 1), locale);
    return date.isValid() && time.isValid() ? QDateTime(date, time) : QDateTime();
}

} // namespace tern7
