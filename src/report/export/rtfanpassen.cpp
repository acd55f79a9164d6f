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

void scaleSizes(QString &rtf, double scale)
{
    const QString word = u"\\fs"_s;
    for (qsizetype at = rtf.indexOf(word); at >= 0; at = rtf.indexOf(word, at)) {
        const qsizetype begin = at + word.size();
        const auto orEnd = [&rtf](qsizetype found) {
            return found < 0 ? rtf.size() : found;
        };
        const qsizetype end = std::min(orEnd(rtf.indexOf(u'\\', begin)), orEnd(rtf.indexOf(u' ', begin)));
        at = end;
        const double size = basic::leadingNumber(QStringView(rtf).sliced(begin, end - begin));
        if (size > 0) {
            const QString scaled = basic::trimmedNumberText(size * scale);
            rtf.replace(begin, end - begin, scaled);
            at = begin + scaled.size();
        }
    }
}

} // namespace

void rtfanpassen(int, QString &rtf, double scale)
{
    QTextDocument control;
    richtext::readRtf(richtext::rtfBytes(rtf), control);
    if (!holdsOnlyBlanks(control))
        rtf = rtfanpassen(control, scale);
}

QString rtfanpassen(const QTextDocument &control, double scale)
{
    QString rtf = QString::fromLatin1(richtext::writeRtf(control));
    scaleSizes(rtf, basic::toCurrency(scale));
    rtf.replace(u'_', u' ');
    rtf.replace(u"\\par"_s, u"\\line"_s);
    if (!rtf.contains(u"\\colortbl"_s))
        rtf.replace(0, 1, ColorTable);
    return rtf;
}

} // namespace kalvenor::report
