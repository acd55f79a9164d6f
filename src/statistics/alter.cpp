// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/alter.h"

#include "data/datevalue.h"
#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include <cmath>

namespace kalvenor::statistics {

namespace {

constexpr qsizetype NameColumns = 42;
constexpr qsizetype NameContinuesAt = 51;
constexpr qsizetype AgeTextWidth = 7;

} // namespace

std::optional<double> lebenstage(std::optional<double> geburtsdatum, std::optional<double> sterbedatum)
{
    if (!geburtsdatum || !sterbedatum)
        return std::nullopt;
    if (*geburtsdatum == data::UnknownDay || *sterbedatum == data::UnknownDay)
        return std::nullopt;
    if (!(*sterbedatum > *geburtsdatum))
        return std::nullopt;
    const double days = toCurrency(*sterbedatum - *geburtsdatum);
    return days > 0 ? std::optional(days) : std::nullopt;
}

double altersjahre(double days)
{
    return std::floor(days / 365 * 10) / 10;
}

QString alterstext(double days)
{
    QString text = QStringLiteral("     ") + trimmedNumberText(altersjahre(days));
    if (!text.contains(u'.'))
        text += QStringLiteral(".0");
    text.replace(QStringLiteral(" 0.0"), QStringLiteral("  .0"));
    return rightPart(text + QStringLiteral("  "), AgeTextWidth);
}

QString alterszeile(double days, QStringView listname)
{
    return alterstext(days) + leftPart(listname, NameColumns) + u' ' + midPart(listname, NameContinuesAt);
}

} // namespace kalvenor::statistics
