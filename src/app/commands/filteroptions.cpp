// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/filteroptions.h"

#include "language/texts/sprache.h"
#include "platform/basic/error.h"
#include "platform/desktop/terminal.h"
#include <QDate>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

using language::Text;

QString orderText(basic::DateOrder order)
{
    return order == basic::DateOrder::DayMonthYear ? u"dd-mm-yyyy"_s : u"mm-dd-yyyy"_s;
}

namespace {

const QString EmptyMask = u"__-__-____"_s;

QString maskText(const QString &option, const QString &text, basic::DateOrder order,
                 language::CatalogueLanguage language)
{
    if (text.isEmpty())
        return EmptyMask;
    if (const QDate iso = QDate::fromString(text, u"yyyy-MM-dd"_s); iso.isValid()) {
        const auto day = basic::dayNumber(iso.year(), iso.month(), iso.day());
        if (!day)
            throw basic::Error(basic::Fault::DateTooEarly, {}, {option, text});
        return basic::formatDate(static_cast<double>(*day), orderText(order));
    }
    const bool hasMaskShape = text.size() == EmptyMask.size() && text[2] == u'-' && text[5] == u'-';
    const auto day = hasMaskShape ? selection::boundDay(text, order) : std::nullopt;
    if (!day)
        throw basic::Error(basic::Fault::NoDate, {}, {option, text, orderText(order)});
    if (basic::formatDate(static_cast<double>(*day), u"dd-mm-yyyy") != text)
        desktop::writeError(
            wording(Text::DateReadAs, language).arg(option, text, dayInWords(*day, language), orderText(order)));
    return text;
}

} // namespace

selection::Filter filterOf(const FilterOptions &options, selection::PersonList list, basic::DateOrder order,
                           language::CatalogueLanguage language)
{
    return {.Presse = options.name,
            .Geschlechtfilter = {options.sex.contains(u'm'), options.sex.contains(u'w')},
            .Datumfilter = {options.dates.contains(u"birth"), options.dates.contains(u"death"),
                            options.dates.contains(u"change")},
            .Presse_Datum = {maskText(u"--from"_s, options.from, order, language),
                             maskText(u"--to"_s, options.to, order, language)},
            .Filterliste = list};
}

} // namespace kalvenor::app
