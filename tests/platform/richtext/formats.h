// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/richtext/rtfreader.h"
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

namespace kalvenor::test {

/// A document as one line: "text" of equal formats after [formats], "|" between paragraphs with (their formats).
inline QString described(const QTextDocument &document)
{
    QStringList paragraphs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QString line;
        const QTextBlockFormat format = block.blockFormat();
        if (block.textList() != nullptr)
            line += QStringLiteral("*").repeated(block.textList()->format().indent()) + u' ';
        if (format.alignment() & Qt::AlignHCenter)
            line += QStringLiteral("(centre)");
        if (format.alignment() & Qt::AlignRight)
            line += QStringLiteral("(right)");
        if (format.alignment() & Qt::AlignJustify)
            line += QStringLiteral("(justified)");
        if (format.leftMargin() != 0 || format.textIndent() != 0)
            line += QStringLiteral("(%1,%2)").arg(format.leftMargin()).arg(format.textIndent());
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QTextCharFormat look = at.fragment().charFormat();
            QStringList words;
            if (look.fontWeight() == QFont::Bold)
                words << QStringLiteral("b");
            if (look.fontItalic())
                words << QStringLiteral("i");
            if (look.fontUnderline())
                words << QStringLiteral("u");
            if (look.fontStrikeOut())
                words << QStringLiteral("s");
            if (look.fontPointSize() != 12)
                words << QString::number(look.fontPointSize());
            if (const QStringList families = look.fontFamilies().toStringList(); !families.isEmpty())
                words << families.constFirst();
            if (look.hasProperty(QTextFormat::ForegroundBrush))
                words << look.foreground().color().name();
            if (look.hasProperty(QTextFormat::BackgroundBrush))
                words << QStringLiteral("on ") + look.background().color().name();
            if (!words.isEmpty())
                line += u'[' + words.join(u' ') + u']';
            line += at.fragment().text().replace(QChar::LineSeparator, u'/').replace(u'\t', u'>');
        }
        paragraphs << line;
    }
    return paragraphs.join(u'|');
}

} // namespace kalvenor::test
