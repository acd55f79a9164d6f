// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ages/alter.h"

#include "data/datevalue.h"
#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include <cmath>

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

namespace {

constexpr qsizetype NameColumns = 42;
constexpr qsizetype NameContinuesAt = 51;
constexpr qsizetype AgeTextWidth = 7;

} // namespace

Geschlecht geschlechtAus(QStringView text)
{
    return text == u"M" ? Geschlecht::Mann : text == u"W" ? Geschlecht::Frau : Geschlecht::Unbekannt;
}

bool istBekannt(std::optional<double> datum)
{
    return datum && *datum != data::UnknownDay;
}

std::optional<double> lebenstage(std::optional<double> geburtsdatum, std::optional<double> sterbedatum)
{
    if (!istBekannt(geburtsdatum) || !istBekannt(sterbedatum))
        return std::nullopt;
    if (!(*sterbedatum > *geburtsdatum))
        return std::nullopt;
    const double days = basic::toCurrency(*sterbedatum - *geburtsdatum);
    return days > 0 ? std::optional(days) : std::nullopt;
}

double altersjahre(double days)
{
    return std::floor(days / 365 * 10) / 10;
}

QString alterstext(double days)
{
    // What the steps below come to for the ages of men, without their many small texts.
    if (const double tenths = std::floor(days / 365 * 10); tenths >= 0 && tenths < 10'000) {
        const auto digits = static_cast<unsigned>(tenths);
        QString text(AgeTextWidth, u' ');
        text[4] = QChar(u'0' + digits % 10);
        text[3] = u'.';
        qsizetype at = 3;
        for (unsigned years = digits / 10; years != 0; years /= 10)
            text[--at] = QChar(u'0' + years % 10);
        return text;
    }
    QString text = u"     "_s + basic::trimmedNumberText(altersjahre(days));
    if (!text.contains(u'.'))
        text += u".0"_s;
    text.replace(u" 0.0"_s, u"  .0"_s);
    return basic::rightPart(text + u"  "_s, AgeTextWidth);
}

QString gekuerzterListname(QStringView listname)
{
    QString name;
    name.reserve(listname.size() + 1);
    name += listname.left(NameColumns);
    name += u' ';
    return name += listname.mid(NameContinuesAt - 1);
}

} // namespace kalvenor::statistics
