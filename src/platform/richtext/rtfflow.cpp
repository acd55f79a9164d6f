// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/richtext/rtfflow.h"

#include "platform/richtext/rtfreader.h"
#include <algorithm>

using namespace Qt::StringLiterals;

namespace kalvenor::richtext {

namespace {

int listLevel(int leftTwips)
{
    return std::clamp((leftTwips + TwipsPerListLevel / 2) / TwipsPerListLevel, 1, 9);
}

/// A bullet is one character that does not count.
bool isBulletText(const QString &text)
{
    const QString trimmed = text.trimmed();
    return trimmed.size() == 1 && !trimmed.front().isDigit();
}

qreal pixels(int twips)
{
    return static_cast<qreal>(twips) / TwipsPerPixel;
}

} // namespace

void RtfFlow::insert(QStringView text, const Formats &formats)
{
    for (; m_cells > 0; --m_cells)
        m_builder.append(u"\t", formats.character);
    for (; m_lines > 0; --m_lines)
        m_builder.append(u"\u2028", m_lastFormat);
    m_builder.append(text, formats.character);
    m_touched = true;
    m_lastParagraph = formats.paragraph;
    m_lastFormat = formats.character;
}

void RtfFlow::breakLine(const Formats &formats)
{
    ++m_lines;
    m_touched = true;
    m_lastParagraph = formats.paragraph;
    m_lastFormat = formats.character;
}

void RtfFlow::endParagraph(const Formats &formats)
{
    insert({}, formats);
    const RtfOpenParagraph &open = formats.paragraph;
    QTextBlockFormat block;
    if (open.alignment != Qt::AlignLeft)
        block.setAlignment(open.alignment);
    if (open.before > 0)
        block.setTopMargin(pixels(open.before));
    if (open.after > 0)
        block.setBottomMargin(pixels(open.after));
    if (open.right > 0)
        block.setRightMargin(pixels(open.right));
    const bool bullet = m_isBullet || open.bullets;
    if (!bullet && open.left > 0)
        block.setLeftMargin(pixels(open.left));
    if (!bullet && open.first != 0)
        block.setTextIndent(pixels(open.first));
    int level = 0;
    if (bullet)
        level = open.list != 0 ? open.level + 1 : listLevel(open.left);
    m_builder.endParagraph(block, level, formats.character);
    m_isBullet = false;
    m_touched = false;
}

void RtfFlow::endPage(const Formats &formats)
{
    if (m_touched)
        endParagraph(formats);
}

void RtfFlow::endCell()
{
    m_touched = true;
    ++m_cells;
}

void RtfFlow::endRow(const Formats &formats)
{
    m_cells = 0; // the last cell needs no tab behind it
    endPage(formats);
}

void RtfFlow::takeBullet(const QString &text, const Formats &formats)
{
    if (m_lines > 0) {
        // A bullet begins a line: where paragraph ends were turned into line breaks, this was one.
        --m_lines;
        endParagraph(formats);
    }
    if (isBulletText(text) && m_builder.paragraphIsEmpty())
        m_isBullet = m_touched = true;
    else if (const QString sign = text.trimmed(); !sign.isEmpty())
        insert(sign + u'\t', formats);
}

void RtfFlow::finish(const QTextCharFormat &character)
{
    if (!m_touched && m_builder.hasParagraphs())
        return;
    // Copies: what ends the paragraph changes the last ones.
    const RtfOpenParagraph paragraph = m_lastParagraph;
    const QTextCharFormat format = m_touched ? m_lastFormat : character;
    endParagraph({paragraph, format});
}

} // namespace kalvenor::richtext
