// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/rtftext.h"

#include "platform/basic/codepage.h"
#include "platform/print/writerparts.h"

#include <cmath>
#include <QColor>
#include <QList>
#include <QStringList>

namespace kalvenor::print {
namespace {

constexpr char HexDigits[] = "0123456789abcdef";

/// 0 where the code page lacks the character.
int ansiByte(char16_t unit)
{
    static const QString upper =
        basic::decodeAnsi(QByteArray("\x80\x81\x82\x83\x84\x85\x86\x87\x88\x89\x8a\x8b\x8c\x8d\x8e\x8f"
                                     "\x90\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9a\x9b\x9c\x9d\x9e\x9f"));
    if (unit >= 0xA0 && unit <= 0xFF)
        return unit;
    const qsizetype place = unit < 0x152 || unit > 0x2122 ? -1 : upper.indexOf(QChar(unit));
    return place < 0 ? 0 : static_cast<int>(0x80 + place);
}

void appendUnit(QByteArray &out, char16_t unit)
{
    if (const int byte = ansiByte(unit)) {
        out += "\\'";
        out += HexDigits[byte >> 4];
        out += HexDigits[byte & 0xF];
    } else {
        out += "\\u" + QByteArray::number(static_cast<qint16>(unit)) + '?';
    }
}

QByteArray fontWords(FontKind kind)
{
    switch (kind) {
    case FontKind::Serif:
        return "\\froman";
    case FontKind::Fixed:
        return "\\fmodern";
    default:
        return "\\fswiss";
    }
}

} // namespace

void appendRtfText(QByteArray &out, QStringView text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        if (unit == u'\\' || unit == u'{' || unit == u'}') {
            out += '\\';
            out += static_cast<char>(unit);
        } else if (unit >= 0x20 && unit < 0x7F) {
            out += static_cast<char>(unit);
        } else if (unit == u'\t') {
            out += "\\tab ";
        } else if (unit == u'\n' || (unit == u'\r' && (i + 1 == text.size() || text[i + 1] != u'\n'))) {
            out += "\\line ";
        } else if (unit >= 0xA0) {
            appendUnit(out, unit);
        } else if (unit != u'\r') {
            out += ' ';
        }
    }
}

RtfStyles::RtfStyles(const std::vector<TextStyle> &styles)
{
    QStringList fonts;
    QList<QRgb> colors;
    QByteArray fontTable;
    QByteArray colorTable;
    const auto colorPlace = [&](const QColor &color) { // 0 is the reader's own
        if (!color.isValid())
            return 0;
        qsizetype place = colors.indexOf(color.rgb());
        if (place < 0) {
            place = colors.size();
            colors << color.rgb();
            colorTable += "\\red" + QByteArray::number(color.red()) + "\\green" + QByteArray::number(color.green()) +
                          "\\blue" + QByteArray::number(color.blue()) + ';';
        }
        return static_cast<int>(place + 1);
    };
    for (const TextStyle &style : styles) {
        qsizetype font = fonts.indexOf(style.family);
        if (font < 0) {
            font = fonts.size();
            fonts << style.family;
            fontTable += "{\\f" + QByteArray::number(font) + fontWords(fontKind(style.family)) + "\\fcharset0 ";
            appendRtfText(fontTable, QString(style.family).remove(u';'));
            fontTable += ";}";
        }
        QByteArray words =
            "\\f" + QByteArray::number(font) + "\\fs" + QByteArray::number(std::lround(style.pointSize * 2));
        if (style.bold)
            words += "\\b";
        if (style.italic)
            words += "\\i";
        if (style.underline)
            words += "\\ul";
        if (style.strikeOut)
            words += "\\strike";
        if (const int color = colorPlace(style.color))
            words += "\\cf" + QByteArray::number(color);
        m_words.push_back(words + ' ');
        m_backgrounds.push_back(colorPlace(style.background));
    }
    m_tables = "{\\fonttbl" + fontTable + "}\n{\\colortbl;" + colorTable + "}\n";
}

} // namespace kalvenor::print
