// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/richtext/rtfwords.h"

#include "platform/basic/codepage.h"
#include <algorithm>
#include <QString>

namespace kalvenor::richtext {

namespace {

struct SpecialWord {
    std::string_view name;
    char16_t character;
};
constexpr SpecialWord SpecialWords[] = {{"tab", u'\t'},           {"emdash", u'\u2014'},  {"endash", u'\u2013'},
                                        {"lquote", u'\u2018'},    {"rquote", u'\u2019'},  {"ldblquote", u'\u201C'},
                                        {"rdblquote", u'\u201D'}, {"bullet", u'\u2022'},  {"emspace", u'\u2003'},
                                        {"enspace", u'\u2002'},   {"qmspace", u'\u2005'}, {"zwj", u'\u200D'},
                                        {"zwnj", u'\u200C'},      {"zwbo", u'\u200B'},    {"zwnbo", u'\u2060'},
                                        {"ltrmark", u'\u200E'},   {"rtlmark", u'\u200F'}};

struct SpecialSign {
    char sign;
    char16_t character;
};
constexpr SpecialSign SpecialSigns[] = {{'~', u'\u00A0'}, {'-', u'\u00AD'}, {'_', u'\u2011'}, {'\t', u'\t'}};

/// 0 where Windows-1252 lacks the character.
int ansiByte(char16_t unit)
{
    static const QString Upper = [] {
        QByteArray bytes;
        for (int byte = 0x80; byte < 0xA0; ++byte)
            bytes += static_cast<char>(byte);
        return basic::decodeAnsi(bytes);
    }();
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF))
        return unit;
    const qsizetype place = unit < 0x152 || unit > 0x2122 ? -1 : Upper.indexOf(QChar(unit));
    return place < 0 ? 0 : static_cast<int>(0x80 + place);
}

} // namespace

char16_t specialCharacter(std::string_view word)
{
    const auto found = std::ranges::find(SpecialWords, word, &SpecialWord::name);
    return found == std::end(SpecialWords) ? u'\0' : found->character;
}

char16_t specialCharacter(char sign)
{
    const auto found = std::ranges::find(SpecialSigns, sign, &SpecialSign::sign);
    return found == std::end(SpecialSigns) ? u'\0' : found->character;
}

QByteArray rtfWord(std::string_view word)
{
    return '\\' + QByteArray(word.data(), static_cast<qsizetype>(word.size()));
}

QByteArray rtfWord(std::string_view word, int value)
{
    return rtfWord(word) + QByteArray::number(value);
}

void appendRtf(QByteArray &out, char16_t unit)
{
    if (unit == u'\\' || unit == u'{' || unit == u'}') {
        out += '\\';
        out += static_cast<char>(unit);
    } else if (unit == u'\t') {
        out += "\\tab ";
    } else if (unit < 0x7F) {
        out += static_cast<char>(unit);
    } else {
        appendRtfCode(out, unit);
    }
}

void appendRtfCode(QByteArray &out, char16_t unit)
{
    constexpr char HexDigits[] = "0123456789abcdef";
    if (const int byte = ansiByte(unit); byte != 0) {
        out += "\\'";
        out += HexDigits[byte >> 4];
        out += HexDigits[byte & 0xF];
    } else {
        out += "\\u" + QByteArray::number(static_cast<qint16>(unit)) + '?';
    }
}

} // namespace kalvenor::richtext
