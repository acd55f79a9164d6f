// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/date.h"

#include <cmath>

#include <QLocale>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace kalvenor::basic {

namespace {

constexpr int FirstYear = 100;
constexpr int LastYear = 9999;
constexpr qint64 SecondsADay = 86400;

QDate dayZero()
{
    return {1899, 12, 30};
}

std::optional<qint64> datedParts(QStringView yearText, QStringView monthText, QStringView dayText)
{
    if (monthText.size() > 2 || dayText.size() > 2)
        return std::nullopt;
    int year = yearText.toInt();
    if (year < 100)
        year += year < 30 ? 2000 : 1900;
    return dayNumber(year, monthText.toInt(), dayText.toInt());
}

std::optional<qint64> readDate(QStringView text, DateOrder order)
{
    // In US order "." separates the parts of a time of day.
    static const QRegularExpression German(u"^([0-9]{1,4}) *[-/.] *([0-9]{1,4}) *[-/.] *([0-9]{1,4})$"_s);
    static const QRegularExpression American(u"^([0-9]{1,4}) *[-/] *([0-9]{1,4}) *[-/] *([0-9]{1,4})$"_s);
    const bool dayFirst = order == DateOrder::DayMonthYear;
    const QRegularExpressionMatch match = (dayFirst ? German : American).match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const QStringView a = match.capturedView(1);
    const QStringView b = match.capturedView(2);
    const QStringView c = match.capturedView(3);
    if (const auto own = dayFirst ? datedParts(c, b, a) : datedParts(c, a, b))
        return own;
    if (const auto other = dayFirst ? datedParts(c, a, b) : datedParts(c, b, a))
        return other;
    if (const auto iso = datedParts(a, b, c))
        return iso;
    return datedParts(a, c, b);
}

std::optional<double> readTime(QStringView text, DateOrder order)
{
    static const QRegularExpression Colons(u"^([0-9]{1,2}) *: *([0-9]{1,2})(?: *: *([0-9]{1,2}))?$"_s);
    static const QRegularExpression ColonsOrPoints(u"^([0-9]{1,2}) *[:.] *([0-9]{1,2})(?: *[:.] *([0-9]{1,2}))?$"_s);
    const auto match = (order == DateOrder::DayMonthYear ? Colons : ColonsOrPoints).match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const int hour = match.capturedView(1).toInt();
    const int minute = match.capturedView(2).toInt();
    const int second = match.capturedView(3).toInt();
    if (hour > 23 || minute > 59 || second > 59)
        return std::nullopt;
    return (hour * 3600 + minute * 60 + second) / static_cast<double>(SecondsADay);
}

struct Moment {
    QDate date;
    int second = 0; // of the day
};

std::optional<Moment> momentOf(double serial)
{
    if (!(std::fabs(serial) < 1e7))
        return std::nullopt;
    const double whole = std::trunc(serial);
    qint64 day = static_cast<qint64>(whole);
    qint64 second = std::llround(std::fabs(serial - whole) * SecondsADay);
    if (second == SecondsADay) {
        second = 0;
        ++day;
    }
    const QDate date = calendarDate(day);
    if (date.year() < FirstYear || date.year() > LastYear)
        return std::nullopt;
    return Moment{date, static_cast<int>(second)};
}

QString padded(int value, qsizetype width)
{
    return QString::number(value).rightJustified(width, u'0');
}

} // namespace

DateOrder systemDateOrder()
{
    const QString format = QLocale::system().dateFormat(QLocale::ShortFormat);
    return format.indexOf(u'd') < format.indexOf(u'M') ? DateOrder::DayMonthYear : DateOrder::MonthDayYear;
}

QDate calendarDate(qint64 dayNumber)
{
    return dayZero().addDays(dayNumber);
}

std::optional<qint64> dayNumber(int year, int month, int day)
{
    if (year < FirstYear || year > LastYear || !QDate::isValid(year, month, day))
        return std::nullopt;
    return dayZero().daysTo(QDate(year, month, day));
}

std::optional<double> dateFromText(QStringView text, DateOrder order)
{
    const QStringView trimmed = text.trimmed();
    if (const auto day = readDate(trimmed, order))
        return static_cast<double>(*day);
    if (const auto time = readTime(trimmed, order))
        return time;
    for (qsizetype blank = trimmed.indexOf(u' '); blank > 0; blank = trimmed.indexOf(u' ', blank + 1)) {
        const auto day = readDate(trimmed.left(blank).trimmed(), order);
        const auto time = readTime(trimmed.mid(blank + 1).trimmed(), order);
        if (day && time)
            return *day < 0 ? static_cast<double>(*day) - *time : static_cast<double>(*day) + *time;
    }
    return std::nullopt;
}

QString dateText(double serial, DateOrder order)
{
    return formatDate(serial, order == DateOrder::DayMonthYear ? u"dd.mm.yyyy" : u"m/d/yyyy");
}

QString formatDate(double serial, QStringView pattern)
{
    const auto moment = momentOf(serial);
    if (!moment)
        return {};
    QString result;
    bool behindHour = false;
    for (qsizetype at = 0; at < pattern.size();) {
        const QChar letter = pattern[at].toLower();
        qsizetype end = at + 1;
        while (end < pattern.size() && pattern[end].toLower() == letter)
            ++end;
        const QStringView run = pattern.mid(at, end - at);
        at = end;

        int value = -1;
        if (letter == u'y' && run.size() == 4) {
            value = moment->date.year();
        } else if (run.size() <= 2) {
            const int minute = moment->second / 60 % 60;
            if (letter == u'd')
                value = moment->date.day();
            else if (letter == u'm')
                value = behindHour ? minute : moment->date.month();
            else if (letter == u'h')
                value = moment->second / 3600;
            else if (letter == u'n')
                value = minute;
            else if (letter == u's')
                value = moment->second % 60;
        }
        if (value < 0) {
            result += run;
            continue;
        }
        behindHour = letter == u'h';
        result += padded(value, run.size());
    }
    return result;
}

} // namespace kalvenor::basic
