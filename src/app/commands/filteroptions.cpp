// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/filteroptions.h"

#include <QDate>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

namespace {

const QString EmptyMask = u"__-__-____"_s;

QString maskText(const char *option, const QString &text, basic::DateOrder order)
{
    if (text.isEmpty())
        return EmptyMask;
    const QDate iso = QDate::fromString(text, u"yyyy-MM-dd"_s);
    if (iso.isValid())
        return iso.toString(order == basic::DateOrder::DayMonthYear ? u"dd-MM-yyyy"_s : u"MM-dd-yyyy"_s);
    const bool hasMaskShape = text.size() == EmptyMask.size() && text[2] == u'-' && text[5] == u'-';
    if (!hasMaskShape || !basic::isDate(text, order))
        throw WrongUsage(
            u"%1: \"%2\" is no date; write dd-mm-yyyy or yyyy-mm-dd"_s.arg(QLatin1String(option), text).toStdString());
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
