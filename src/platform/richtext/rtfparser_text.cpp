// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The parser's lower half: characters and paragraphs on their way into the document.
#include "platform/richtext/rtfparser.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kalvenor::richtext {

namespace {

constexpr std::size_t MostColors = 65536;

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

int RtfParser::codePage() const
{
    if (m_state.destination == Destination::Fonts) {
        const int own = m_fonts.value(m_openFont).codePage;
        return own == 0 || own == RtfCodePage::Symbol ? m_codePage : own;
    }
    const int own = m_fonts.value(m_state.character.font).codePage;
    return own == 0 ? m_codePage : own;
}

void RtfParser::takeBytes(QByteArrayView bytes)
{
    m_bytes.append(bytes.data(), bytes.size());
}

void RtfParser::flushBytes()
{
    if (m_bytes.isEmpty())
        return;
    const QString text = decodeRtf(m_bytes, codePage());
    m_bytes.clear();
    takeText(text);
}

void RtfParser::takeText(const QString &text)
{
    switch (m_state.destination) {
    case Destination::Text:
        if (m_state.character.hidden)
            m_result.others = true;
        else
            insert(text);
        break;
    case Destination::Bullet:
        m_bulletText += text;
        break;
    case Destination::Fonts:
        takeFontText(text);
        break;
    case Destination::Colors:
        takeColorText(text);
        break;
    case Destination::Skip:
    case Destination::Numbering:
        break;
    }
}

void RtfParser::takeFontText(QStringView text)
{
    for (const QChar c : text) {
        if (c == u';')
            endFont();
        else if (m_fontName.size() < LongestRtfFontName && c.isPrint())
            m_fontName += c;
    }
}

void RtfParser::endFont()
{
    const QString name = m_fontName.simplified();
    m_fontName.clear();
    if (name.isEmpty())
        return;
    Font &font = m_fonts[m_openFont];
    const bool isSymbol = name == u"Symbol"_s;
    if (isSymbol && font.codePage == 0)
        font.codePage = RtfCodePage::Symbol;
    else if (!isSymbol && font.codePage == RtfCodePage::Symbol)
        font.codePage = 0; // another font of pictures: its bytes are no Symbol
    font.family = name;
}

void RtfParser::takeColorText(QStringView text)
{
    for (const QChar c : text) {
        if (c != u';' || m_colors.size() >= MostColors)
            continue;
        m_colors.push_back(m_openColor);
        m_openColor = QColor();
    }
}

QColor RtfParser::color(int index) const
{
    return index >= 0 && static_cast<std::size_t>(index) < m_colors.size() ? m_colors[static_cast<std::size_t>(index)]
                                                                           : QColor();
}

const QTextCharFormat &RtfParser::format()
{
    if (m_formatKnown)
        return m_format;
    const CharacterState &state = m_state.character;
    QTextCharFormat format;
    // Characters of Symbol were turned into those of any font.
    Font font = m_fonts.value(state.font);
    if (font.codePage == RtfCodePage::Symbol)
        font = m_fonts.value(m_defaultFont);
    if (!font.family.isEmpty() && font.codePage != RtfCodePage::Symbol)
        format.setFontFamilies({font.family});
    format.setFontPointSize(state.halfPoints / 2.0);
    if (state.bold)
        format.setFontWeight(QFont::Bold);
    if (state.italic)
        format.setFontItalic(true);
    if (state.underline)
        format.setUnderlineStyle(QTextCharFormat::SingleUnderline);
    if (state.strikeOut)
        format.setFontStrikeOut(true);
    if (const QColor foreground = color(state.foreground); foreground.isValid())
        format.setForeground(foreground);
    // 0 is no background, also where a colour table begins with a colour.
    if (const QColor background = color(state.background); state.background > 0 && background.isValid())
        format.setBackground(background);
    m_format = format;
    m_formatKnown = true;
    return m_format;
}

void RtfParser::insert(QStringView text)
{
    for (; m_cells > 0; --m_cells)
        m_builder.append(u"\t", format());
    for (; m_lines > 0; --m_lines)
        m_builder.append(u"\u2028", m_lastFormat);
    m_builder.append(text, format());
    m_touched = true;
    m_lastParagraph = m_state.paragraph;
    m_lastFormat = format();
}

void RtfParser::breakLine()
{
    ++m_lines;
    m_touched = true;
    m_lastParagraph = m_state.paragraph;
    m_lastFormat = format();
}

void RtfParser::endParagraph()
{
    insert({});
    const ParagraphState &state = m_state.paragraph;
    QTextBlockFormat block;
    if (state.alignment != Qt::AlignLeft)
        block.setAlignment(state.alignment);
    if (state.before > 0)
        block.setTopMargin(pixels(state.before));
    if (state.after > 0)
        block.setBottomMargin(pixels(state.after));
    if (state.right > 0)
        block.setRightMargin(pixels(state.right));
    const bool bullet = m_isBullet || state.bullets;
    if (!bullet && state.left > 0)
        block.setLeftMargin(pixels(state.left));
    if (!bullet && state.first != 0)
        block.setTextIndent(pixels(state.first));
    int level = 0;
    if (bullet)
        level = state.list != 0 ? state.level + 1 : listLevel(state.left);
    m_builder.endParagraph(block, level, format());
    m_isBullet = false;
    m_touched = false;
}

void RtfParser::endRow()
{
    m_result.tables = true;
    m_cells = 0; // the last cell needs no tab behind it
    if (m_touched)
        endParagraph();
}

void RtfParser::endBullet()
{
    const bool bullet = isBulletText(m_bulletText);
    if (m_lines > 0) {
        // A bullet begins a line: where paragraph ends were turned into line breaks, this was one.
        --m_lines;
        endParagraph();
    }
    if (bullet && m_builder.paragraphIsEmpty())
        m_isBullet = m_touched = true;
    else if (!m_bulletText.trimmed().isEmpty())
        insert(QStringView(m_bulletText).trimmed().toString() + u'\t');
}

} // namespace kalvenor::richtext
