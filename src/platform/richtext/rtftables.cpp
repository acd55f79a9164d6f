// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/richtext/rtftables.h"

#include "platform/richtext/rtfcharacters.h"
#include "platform/richtext/rtfwords.h"
#include <algorithm>

using namespace Qt::StringLiterals;

namespace kalvenor::richtext {

namespace {

QString soundFontName(const QString &family)
{
    QString name = shownCharacters(family).simplified().left(LongestRtfFontName);
    name.removeIf([](QChar c) { return u"\\{};"_s.contains(c) || !c.isPrint(); });
    return name.simplified();
}

} // namespace

int RtfFonts::place(const QString &family, std::string_view kind)
{
    const QString name = soundFontName(family);
    if (name.isEmpty())
        return -1;
    if (const auto known = m_places.constFind(name); known != m_places.cend())
        return *known;
    const auto place = static_cast<int>(m_fonts.size());
    m_places.insert(name, place);
    m_fonts.push_back({name, kind});
    return place;
}

int RtfFonts::symbols()
{
    if (m_symbols < 0) {
        m_symbols = static_cast<int>(m_fonts.size());
        m_fonts.push_back({u"Symbol"_s, "fnil"});
    }
    return m_symbols;
}

QByteArray RtfFonts::table(std::u16string_view byCode) const
{
    QByteArray table = "{\\fonttbl";
    for (int i = 0; i < static_cast<int>(m_fonts.size()); ++i) {
        const Font &font = m_fonts[static_cast<std::size_t>(i)];
        table += '{' + rtfWord("f", i) + rtfWord(font.kind) + rtfWord("fcharset", i == m_symbols ? 2 : 0) + ' ';
        for (const QChar c : font.family) {
            if (byCode.find(c.unicode()) != byCode.npos)
                appendRtfCode(table, c.unicode());
            else
                appendRtf(table, c.unicode());
        }
        table += ";}";
    }
    return table + '}';
}

int RtfColors::place(QRgb color)
{
    int &number = m_numbers[color];
    if (number == 0) {
        m_colors.push_back(color);
        number = static_cast<int>(m_colors.size());
    }
    return number;
}

QByteArray RtfColors::entries() const
{
    QByteArray entries;
    for (const QRgb color : m_colors)
        entries += rtfWord("red", qRed(color)) + rtfWord("green", qGreen(color)) + rtfWord("blue", qBlue(color)) + ';';
    return entries;
}

} // namespace kalvenor::richtext
