// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/filteroptions.h"

#include "platform/desktop/terminal.h"
#include <QDate>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

QString orderText(basic::DateOrder order)
{
    return order == basic::DateOrder::DayMonthYear ? u"dd-mm-yyyy"_s : u"mm-dd-yyyy"_s;
}

namespace {

const QString EmptyMask = u"__-__-____"_s;

WrongUsage refusal(const char *option, const QString &text, const QString &why)
{
    return WrongUsage(u"%1: \"%2\" %3"_s.arg(QLatin1String(option), text, why).toStdString());
}

QString maskText(const char *option, const QString &text, basic::DateOrder order)
{
    if (text.isEmpty())
        return EmptyMask;
    if (const QDate iso = QDate::fromString(text, u"yyyy-MM-dd"_s); iso.isValid()) {
        const auto day = basic::dayNumber(iso.year(), iso.month(), iso.day());
        if (!day)
            throw refusal(option, text, u"lies before the year 100, the first that dates can have"_s);
        return basic::formatDate(static_cast<double>(*day), orderText(order));
    }
    const bool hasMaskShape = text.size() == EmptyMask.size() && text[2] == u'-' && text[5] == u'-';
    const auto day = hasMaskShape ? selection::boundDay(text, order) : std::nullopt;
    if (!day)
        throw refusal(option, text, u"is no date; write %1 or yyyy-mm-dd"_s.arg(orderText(order)));
    if (basic::formatDate(static_cast<double>(*day), u"dd-mm-yyyy") != text)
        desktop::writeError(u"%1 %2 is read as %3, because dates on this system are %4"_s.arg(
            QLatin1String(option), text, QLocale(QLocale::English).toString(basic::calendarDate(*day), u"d MMMM yyyy"),
            orderText(order)));
    return text;
}

} // namespace

selection::Filter filterOf(const FilterOptions &options, selection::PersonList list, basic::DateOrder order)
{
    return {.Presse = options.name,
            .Geschlechtfilter = {options.sex.contains(u'm'), options.sex.contains(u'w')},
            .Datumfilter = {options.dates.contains(u"birth"), options.dates.contains(u"death"),
                            options.dates.contains(u"change")},
            .Presse_Datum = {maskText("--from", options.from, order), maskText("--to", options.to, order)},
            .Filterliste = list};
}

} // namespace kalvenor::app
