#include <tern7/ui/support/screen_services.h>

#include <QApplication>
#include <QMessageBox>

#include <tern7/ui/support/local_dates.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

bool AskOnScreen(std::string_view question) {
    const auto answer = QMessageBox::question(QApplication::activeWindow(), QString(),
                                              ToQt(question).replace(u'&', QStringLiteral("&&")));
    return answer == QMessageBox::Yes;
}

std::string WriteDate(TFieldType type, const TKDateTime& value) {
    const QDate date(value.year, value.month, value.day);
    const QTime time(value.hour, value.minute, value.second, value.millisecond);
    const QLocale locale;
    if (type == TFieldType::ftDate) return FromQt(locale.toString(date, LocalDateFormat(locale)));
    if (type == TFieldType::ftTime) return FromQt(locale.toString(time, LocalTimeFormat(locale)));
    return FromQt(locale.toString(QDateTime(date, time), LocalDateTimeFormat(locale)));
}

void Set(TKDateTime& value, const QDate& date) {
    value.year = date.year();
    value.month = date.month();
    value.day = date.day();
    value.hasDate = true;
}

void Set(TKDateTime& value, const QTime& time) {
    value.hour = time.hour();
    value.minute = time.minute();
    value.second = time.second();
    value.millisecond = time.msec();
    value.hasTime = true;
}

bool ReadDate(TFieldType type, std::string_view text, TKDateTime& value) {
    const QString local = ToQt(text);
    if (type == TFieldType::ftDate) {
        const QDate date = ReadLocalDate(local);
        if (date.isValid()) Set(value, date);
        return date.isValid();
    }
    if (type == TFieldType::ftTime) {
        const QTime time = ReadLocalTime(local);
        if (time.isValid()) Set(value, time);
        return time.isValid();
    }
    const QDateTime both = ReadLocalDateTime(local);
    if (!both.isValid()) return false;
    Set(value, both.date());
    Set(value, both.time());
    return true;
}

} // namespace

void FillScreenServices(TKServices& services) {
    if (!services.ask) services.ask = AskOnScreen;
    if (!services.writeLocalDate) services.writeLocalDate = WriteDate;
    if (!services.readLocalDate) services.readLocalDate = ReadDate;
}

} // namespace tern7
