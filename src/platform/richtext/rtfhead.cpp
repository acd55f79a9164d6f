// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/richtext/rtfhead.h"

#include "platform/richtext/rtfcharacters.h"
#include "platform/richtext/rtfwords.h"
#include <algorithm>

namespace kalvenor::richtext {

namespace {

constexpr std::size_t MostColors = 65536;
constexpr int SymbolCharacterSet = 2;

} // namespace

bool RtfHead::takeWord(std::string_view word, int value)
{
    if (word == "ansicpg")
        m_codePage = value;
    else if (word == "mac")
        m_codePage = RtfCodePage::Mac;
    else if (word == "pc")
        m_codePage = 437;
    else if (word == "pca")
        m_codePage = 850;
    else if (word == "deff")
        m_defaultFont = value;
    else
        return false;
    return true;
}

bool RtfHead::takeFontWord(std::string_view word, int value)
{
    if (word == "f") {
        endFont();
        m_openFont = value;
        m_fonts.insert(m_openFont, {});
    } else if (word == "fcharset") {
        m_fonts[m_openFont].codePage =
            value == SymbolCharacterSet ? RtfCodePage::Symbol : codePageOfCharacterSet(value, 0);
    } else if (word == "cpg") {
        m_fonts[m_openFont].codePage = value;
    } else {
        return false;
    }
    return true;
}

bool RtfHead::takeColorWord(std::string_view word, int value)
{
    if (word != "red" && word != "green" && word != "blue")
        return false;
    if (!m_openColor.isValid())
        m_openColor = QColor(0, 0, 0);
    const int part = std::clamp(value, 0, 255);
    word == "red" ? m_openColor.setRed(part) : word == "green" ? m_openColor.setGreen(part) : m_openColor.setBlue(part);
    return true;
}

void RtfHead::takeFontText(QStringView text)
{
    for (const QChar c : text) {
        if (c == u';')
            endFont();
        else if (m_fontName.size() < LongestRtfFontName && c.isPrint())
            m_fontName += c;
    }
}

void RtfHead::endFont()
{
    const QString name = m_fontName.simplified();
    m_fontName.clear();
    if (name.isEmpty())
        return;
    Font &font = m_fonts[m_openFont];
    const bool isSymbol = name == u"Symbol";
    if (isSymbol && font.codePage == 0)
        font.codePage = RtfCodePage::Symbol;
    else if (!isSymbol && font.codePage == RtfCodePage::Symbol)
        font.codePage = 0; // another font of pictures: its bytes are no Symbol
    font.family = name;
}

void RtfHead::takeColorText(QStringView text)
{
    for (const QChar c : text) {
        if (c != u';' || m_colors.size() >= MostColors)
            continue;
        m_colors.push_back(m_openColor);
        m_openColor = QColor();
    }
}

int RtfHead::codePage(int font) const
{
    const int own = m_fonts.value(font).codePage;
    return own == 0 ? m_codePage : own;
}

int RtfHead::nameCodePage() const
{
    const int own = codePage(m_openFont);
    return own == RtfCodePage::Symbol ? m_codePage : own;
}

QColor RtfHead::color(int number) const
{
    const auto place = static_cast<std::size_t>(number);
    return number >= 0 && place < m_colors.size() ? m_colors[place] : QColor();
}

QTextCharFormat RtfHead::format(const RtfLook &look) const
{
    QTextCharFormat format;
    // Characters of Symbol were turned into those of any font.
    Font font = m_fonts.value(look.font);
    if (font.codePage == RtfCodePage::Symbol)
        font = m_fonts.value(m_defaultFont);
    if (!font.family.isEmpty() && font.codePage != RtfCodePage::Symbol)
        format.setFontFamilies({font.family});
    format.setFontPointSize(look.halfPoints / 2.0);
    if (look.bold)
        format.setFontWeight(QFont::Bold);
    if (look.italic)
        format.setFontItalic(true);
    if (look.underline)
        format.setUnderlineStyle(QTextCharFormat::SingleUnderline);
    if (look.strikeOut)
        format.setFontStrikeOut(true);
    if (const QColor foreground = color(look.foreground); foreground.isValid())
        format.setForeground(foreground);
    // 0 is no background, also where a colour table begins with a colour.
    if (const QColor background = color(look.background); look.background > 0 && background.isValid())
        format.setBackground(background);
    return format;
}

} // namespace kalvenor::richtext
