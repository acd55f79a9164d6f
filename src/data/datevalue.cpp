// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/datevalue.h"

#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include <cmath>

namespace kalvenor::data {

namespace {

constexpr int DateTextWidth = 20;
constexpr int UnknownYearDigits = 4000;

/// Puts `part` over the characters from `start` (1 = first) on where they are `unknown`.
void fillUnknown(QString &text, qsizetype start, QStringView unknown, QStringView part)
{
    if (midPart(text, start, unknown.size()) == unknown)
        text.replace(start - 1, unknown.size(), part.toString());
}

} // namespace

bool textwahr(const QString &text)
{
    const QString upper = text.toUpper();
    return upper == u"WAHR" || upper == u"TRUE" || upper == u"#TRUE#";
}

QString datumwandeln(QString &typed, DateOrder order)
{
    const QString rest = midPart(typed, DateTextWidth);
    typed = leftPart(typed, 10);
    if (trimBlanks(typed).isEmpty()) {
        typed = QStringLiteral("__.__.____767011");
        return typed;
    }

    const bool acceptsDots = isDate(u"31.12.1997", order);
    const bool dayFirst = dateText(static_cast<double>(*dayNumber(1997, 12, 31)), order).startsWith(u"31");
    const QString display = acceptsDots ? QStringLiteral("dd.mm.yyyy")
                            : dayFirst  ? QStringLiteral("dd-mm-yyyy")
                                        : QStringLiteral("mm-dd-yyyy");
    const QChar separator = acceptsDots ? u'.' : u'-';

    if (midPart(typed, 3, 1) == u"." && !acceptsDots)
        typed = midPart(typed, 4, 2) + u'-' + leftPart(typed, 2) + u'-' + rightPart(typed, 4);

    QString working = typed;
    fillUnknown(working, 1, u"__", u"01");
    fillUnknown(working, 4, u"__", u"01");
    fillUnknown(working, 7, u"____", QString::number(UnknownYearDigits));

    // The century is completed in the typed text only; the working copy keeps its two-digit year.
    if (leftPart(typed, 10).contains(u' '))
        typed = leftPart(typed, 6) + QStringLiteral("19") + midPart(typed, 7);
    typed.replace(u'/', u'-');

    QString result = typed;
    if (const auto day = dateFromText(trimBlanks(leftPart(working, 10)), order)) {
        working = formatDate(rest.isEmpty() ? *day : leadingNumber(rest), display);
        // A stored number beyond the calendar has no date text; the input then passes through like any other text.
        if (const auto readBack = dateFromText(working, order)) {
            result = padRight(typed.contains(u'_') ? typed : working, DateTextWidth) +
                     QString::number(static_cast<qint64>(std::floor(*readBack)));
        }
    }
    if (midPart(result, 7, 4) == QString::number(UnknownYearDigits))
        result = QStringLiteral("__%1__%1____").arg(separator) + midPart(result, 11);
    return result;
}

} // namespace kalvenor::data
