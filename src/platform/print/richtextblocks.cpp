// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/richtextblocks.h"

#include "platform/richtext/rtfreader.h"

#include <algorithm>
#include <cmath>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

using namespace Qt::StringLiterals;

namespace kalvenor::print {
namespace {

constexpr Twips BulletRoom = 300;

Twips twips(double pixels)
{
    return static_cast<Twips>(std::lround(pixels * richtext::TwipsPerPixel));
}

TextStyle styleOf(const QTextCharFormat &format, const QFont &defaultFont)
{
    const QFont font = format.font().resolve(defaultFont);
    TextStyle style;
    const QStringList families = font.families();
    if (!families.isEmpty() && !families.front().isEmpty())
        style.family = families.front();
    const double points = font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize() * 0.75;
    style.pointSize = std::clamp(points, 1.0, LargestPointSize);
    style.bold = font.bold();
    style.italic = font.italic();
    style.underline = font.underline();
    style.strikeOut = font.strikeOut();
    if (format.foreground().style() != Qt::NoBrush)
        style.color = format.foreground().color();
    if (format.background().style() != Qt::NoBrush)
        style.background = format.background().color();
    return style;
}

Alignment alignmentOf(Qt::Alignment alignment)
{
    if (alignment & Qt::AlignRight)
        return Alignment::Right;
    if (alignment & Qt::AlignHCenter)
        return Alignment::Centre;
    return alignment & Qt::AlignJustify ? Alignment::Justified : Alignment::Left;
}

QString bulletOf(const QTextBlock &block, const QTextList &list)
{
    switch (list.format().style()) {
    case QTextListFormat::ListDisc:
        return u"•"_s;
    case QTextListFormat::ListCircle:
        return u"◦"_s;
    case QTextListFormat::ListSquare:
        return u"▪"_s;
    default:
        return list.itemText(block);
    }
}

RichParagraph paragraphOf(const QTextBlock &block, const QTextDocument &text, PrintDocument &document)
{
    RichParagraph paragraph;
    const auto styleId = [&](const QTextCharFormat &format) {
        return document.addStyle(styleOf(format, text.defaultFont()));
    };
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextFragment fragment = part.fragment();
        QString run = fragment.text();
        run.replace(QChar::LineSeparator, u'\n').remove(QChar::ObjectReplacementCharacter);
        if (!run.isEmpty())
            paragraph.runs.push_back({run, styleId(fragment.charFormat())});
    }
    if (paragraph.runs.empty())
        paragraph.runs.push_back({QString(), styleId(block.charFormat())}); // an empty line has its height

    const QTextBlockFormat format = block.blockFormat();
    paragraph.alignment = alignmentOf(format.alignment());
    paragraph.spaceBefore = std::max(0, twips(format.topMargin()));
    paragraph.spaceAfter = std::max(0, twips(format.bottomMargin()));
    paragraph.leftIndent = std::max(0, twips(format.leftMargin() + format.indent() * text.indentWidth()));
    paragraph.hanging = -twips(format.textIndent());
    if (const QTextList *list = block.textList()) {
        paragraph.leftIndent += twips(std::max(0, list->format().indent() - 1) * text.indentWidth());
        if (paragraph.hanging <= 0) { // the sign needs room of its own
            paragraph.leftIndent += BulletRoom;
            paragraph.hanging = BulletRoom;
        }
        TextStyle plain = document.styles()[static_cast<std::size_t>(paragraph.runs.front().style)];
        plain.underline = plain.strikeOut = false;
        plain.background = QColor();
        paragraph.bullet = {bulletOf(block, *list), document.addStyle(plain)};
    }
    return paragraph;
}

} // namespace

std::vector<Block> richTextBlocks(const QTextDocument &text, PrintDocument &document)
{
    std::vector<Block> blocks;
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next())
        blocks.emplace_back(paragraphOf(block, text, document));
    return blocks;
}

} // namespace kalvenor::print
