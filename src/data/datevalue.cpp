// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/datevalue.h"

#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include <cmath>

using namespace Qt::StringLiterals;

namespace kalvenor::data {

namespace {

constexpr int DateTextWidth = 20;
constexpr int UnknownYearDigits = 4000;

/// Puts `part` over the characters from `start` (1 = first) on where they are `unknown`.
void fillUnknown(QString &text, qsizetype start, QStringView unknown, QStringView part)
{
    if (basic::midPart(text, start, unknown.size()) == unknown)
        text.replace(start - 1, unknown.size(), part.toString());
}

} // namespace

bool textwahr(const QString &text)
{
    const QString upper = text.toUpper();
    return upper == u"WAHR" || upper == u"TRUE" || upper == u"#TRUE#";
}

QString datumwandeln(QString &typed, basic::DateOrder order)
{
    const QString rest = basic::midPart(typed, DateTextWidth);
    typed = basic::leftPart(typed, 10);
    if (basic::trimBlanks(typed).isEmpty()) {
        typed = u"__.__.____767011"_s;
        return typed;
    }

    const bool acceptsDots = basic::isDate(u"31.12.1997", order);
    const bool dayFirst =
        basic::dateText(static_cast<double>(*basic::dayNumber(1997, 12, 31)), order).startsWith(u"31");
    const QString display = acceptsDots ? u"dd.mm.yyyy"_s : dayFirst ? u"dd-mm-yyyy"_s : u"mm-dd-yyyy"_s;
    const QChar separator = acceptsDots ? u'.' : u'-';

    if (basic::midPart(typed, 3, 1) == u"." && !acceptsDots)
        typed = basic::midPart(typed, 4, 2) + u'-' + basic::leftPart(typed, 2) + u'-' + basic::rightPart(typed, 4);

    QString working = typed;
    fillUnknown(working, 1, u"__", u"01");
    fillUnknown(working, 4, u"__", u"01");
    fillUnknown(working, 7, u"____", QString::number(UnknownYearDigits));

    // The century is completed in the typed text only; the working copy keeps its two-digit year.
    if (basic::leftPart(typed, 10).contains(u' '))
        typed = basic::leftPart(typed, 6) + u"19"_s + basic::midPart(typed, 7);
    typed.replace(u'/', u'-');

    QString result = typed;
    if (const auto day = basic::dateFromText(basic::trimBlanks(basic::leftPart(working, 10)), order)) {
        working = basic::formatDate(rest.isEmpty() ? *day : basic::leadingNumber(rest), display);
        // A stored number beyond the calendar has no date text; the input then passes through like any other text.
        if (const auto readBack = basic::dateFromText(working, order)) {
            result = basic::padRight(typed.contains(u'_') ? typed : working, DateTextWidth) +
                     QString::number(static_cast<qint64>(std::floor(*readBack)));
        }
    }
    if (basic::midPart(result, 7, 4) == QString::number(UnknownYearDigits))
        result = u"__%1__%1____"_s.arg(separator) + basic::midPart(result, 11);
    return result;
}

} // namespace kalvenor::data
