// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/rtfstyles.h"

#include "platform/print/writerparts.h"
#include "platform/richtext/rtftables.h"
#include "platform/richtext/rtfwords.h"

#include <algorithm>
#include <cmath>

namespace kalvenor::print {
namespace {

const char *kindWord(FontKind kind)
{
    switch (kind) {
    case FontKind::Serif:
        return "froman";
    case FontKind::Fixed:
        return "fmodern";
    default:
        return "fswiss";
    }
}

} // namespace

void appendRtfText(QByteArray &out, QStringView text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        if (unit == u'\n' || (unit == u'\r' && (i + 1 == text.size() || text[i + 1] != u'\n')))
            out += "\\line ";
        else if (unit == u'\t' || (unit >= 0x20 && unit < 0x7F) || unit >= 0xA0)
            richtext::appendRtf(out, unit);
        else if (unit != u'\r')
            out += ' ';
    }
}

RtfStyles::RtfStyles(const std::vector<TextStyle> &styles)
{
    using richtext::rtfWord;
    richtext::RtfFonts fonts;
    richtext::RtfColors colors;
    const auto place = [&colors](const QColor &color) {
        return color.isValid() ? colors.place(color.rgb()) : 0;
    };
    for (const TextStyle &style : styles) {
        const richtext::RtfLook look{.font = std::max(fonts.place(style.family, kindWord(fontKind(style.family))), 0),
                                     .halfPoints = static_cast<int>(std::lround(style.pointSize * 2)),
                                     .foreground = place(style.color),
                                     .bold = style.bold,
                                     .italic = style.italic,
                                     .underline = style.underline,
                                     .strikeOut = style.strikeOut};
        QByteArray words = rtfWord("f", look.font) + rtfWord("fs", look.halfPoints);
        for (const richtext::RtfFlag &flag : richtext::RtfFlags) {
            if (look.*flag.flag)
                words += rtfWord(flag.on);
        }
        if (look.foreground != 0)
            words += rtfWord("cf", look.foreground);
        m_words.push_back(words + ' ');
        m_backgrounds.push_back(place(style.background));
    }
    m_tables = fonts.table() + "\n{\\colortbl;" + colors.entries() + "}\n";
}

} // namespace kalvenor::print
