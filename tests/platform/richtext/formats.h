// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/richtext/rtfreader.h"
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

namespace kalvenor::richtext::test {

using namespace Qt::StringLiterals;

/// A document as one line: "text" of equal formats after [formats], "|" between paragraphs with (their formats).
inline QString described(const QTextDocument &document)
{
    QStringList paragraphs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QString line;
        const QTextBlockFormat format = block.blockFormat();
        if (block.textList() != nullptr)
            line += u"*"_s.repeated(block.textList()->format().indent()) + u' ';
        if (format.alignment() & Qt::AlignHCenter)
            line += u"(centre)"_s;
        if (format.alignment() & Qt::AlignRight)
            line += u"(right)"_s;
        if (format.alignment() & Qt::AlignJustify)
            line += u"(justified)"_s;
        if (format.leftMargin() != 0 || format.textIndent() != 0)
            line += u"(%1,%2)"_s.arg(format.leftMargin()).arg(format.textIndent());
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QTextCharFormat look = at.fragment().charFormat();
            QStringList words;
            if (look.fontWeight() == QFont::Bold)
                words << u"b"_s;
            if (look.fontItalic())
                words << u"i"_s;
            if (look.fontUnderline())
                words << u"u"_s;
            if (look.fontStrikeOut())
                words << u"s"_s;
            if (look.fontPointSize() != 12)
                words << QString::number(look.fontPointSize());
            if (const QStringList families = look.fontFamilies().toStringList(); !families.isEmpty())
                words << families.constFirst();
            if (look.hasProperty(QTextFormat::ForegroundBrush))
                words << look.foreground().color().name();
            if (look.hasProperty(QTextFormat::BackgroundBrush))
                words << u"on "_s + look.background().color().name();
            if (!words.isEmpty())
                line += u'[' + words.join(u' ') + u']';
            line += at.fragment().text().replace(QChar::LineSeparator, u'/').replace(u'\t', u'>');
        }
        paragraphs << line;
    }
    return paragraphs.join(u'|');
}

} // namespace kalvenor::richtext::test
