// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/export/rtfanpassen.h"

#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include "platform/richtext/rtfreader.h"
#include "platform/richtext/rtfwriter.h"
#include <algorithm>
#include <QTextBlock>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace kalvenor::report {

namespace {

const QString ColorTable = uR"({{\colortbl\red0\green0\blue0;\red255\green0\blue0;\red0\green0\blue128;})"_s;

/// QTextDocument::toPlainText would turn no-break spaces into blanks.
bool holdsOnlyBlanks(const QTextDocument &document)
{
    return document.blockCount() == 1 && basic::trimBlanks(document.firstBlock().text()).isEmpty();
}

QString withScaledSizes(QStringView rtf, double scale)
{
    constexpr QStringView Word = u"\\fs";
    QString scaled;
    scaled.reserve(rtf.size());
    for (qsizetype found = rtf.indexOf(Word); found >= 0; found = rtf.indexOf(Word)) {
        scaled += rtf.first(found + Word.size());
        rtf = rtf.sliced(found + Word.size());
        const auto *const end = std::ranges::find_if(rtf, [](QChar c) { return c == u'\\' || c == u' '; });
        const QStringView number = rtf.first(end - rtf.begin());
        const double size = basic::leadingNumber(number);
        if (size > 0)
            scaled += basic::trimmedNumberText(size * scale);
        else
            scaled += number;
        rtf = rtf.sliced(number.size());
    }
    return scaled += rtf;
}

} // namespace

void rtfanpassen(int, QString &rtf, double scale)
{
    QTextDocument control;
    richtext::readWholeRtf(richtext::rtfBytes(rtf), control, {});
    if (!holdsOnlyBlanks(control))
        rtf = rtfanpassen(control, scale);
}

QString rtfanpassen(const QTextDocument &control, double scale)
{
    QString rtf = withScaledSizes(QString::fromLatin1(richtext::writeRtf(control)), basic::toCurrency(scale));
    rtf.replace(u'_', u' ');
    rtf.replace(u"\\par"_s, u"\\line"_s);
    if (!rtf.contains(u"\\colortbl"_s))
        rtf.replace(0, 1, ColorTable);
    return rtf;
}

} // namespace kalvenor::report
