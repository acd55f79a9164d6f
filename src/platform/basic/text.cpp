// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/text.h"

#include "platform/basic/error.h"

using namespace Qt::StringLiterals;

namespace kalvenor::basic {

namespace {

void refuseNegative(qsizetype length)
{
    if (length < 0)
        throw Error(Fault::LengthImpossible, {}, {length});
}

void refuseStart(qsizetype start)
{
    if (start < 1)
        throw Error(Fault::StartImpossible, {}, {start});
}

} // namespace

QString leftPart(QStringView text, qsizetype length)
{
    refuseNegative(length);
    return text.left(length).toString();
}

QString rightPart(QStringView text, qsizetype length)
{
    refuseNegative(length);
    return text.right(length).toString();
}

QString midPart(QStringView text, qsizetype start)
{
    refuseStart(start);
    return text.mid(qMin(start - 1, text.size())).toString();
}

QString midPart(QStringView text, qsizetype start, qsizetype length)
{
    refuseStart(start);
    refuseNegative(length);
    return text.mid(qMin(start - 1, text.size()), length).toString();
}

QString trimBlanks(QStringView text)
{
    while (text.startsWith(u' '))
        text = text.mid(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text.toString();
}

QString padRight(QStringView text, qsizetype length)
{
    return text.toString().leftJustified(length, u' ');
}

} // namespace kalvenor::basic
