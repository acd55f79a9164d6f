// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/richtext/rtfcharacters.h"

#include "platform/basic/codepage.h"
#include <algorithm>
#include <string_view>

namespace kalvenor::richtext {

namespace {

// The upper halves (0x80 to 0xFF) of three old code pages, from the mappings of the Unicode Consortium
// (unicode.org/Public/MAPPINGS/VENDORS: APPLE/ROMAN, MICSFT/PC/CP437 and CP850).
// clang-format off
constexpr std::u16string_view MacRoman =
    u"ÄÅÇÉÑÖÜáàâäãåçéèêëíìîïñóòôöõúùûü"
    u"†°¢£§•¶ß®©™´¨≠ÆØ∞±≤≥¥µ∂∑∏π∫ªºΩæø"
    u"¿¡¬√ƒ≈∆«»…\u00A0ÀÃÕŒœ–—“”‘’÷◊ÿŸ⁄€‹›\uFB01\uFB02"
    u"‡·‚„‰ÂÊÁËÈÍÎÏÌÓÔ\uF8FFÒÚÛÙıˆ˜¯˘˙˚¸˝˛ˇ";
constexpr std::u16string_view CodePage437 =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒ"
    u"áíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
    u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
    u"αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";
constexpr std::u16string_view CodePage850 =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø×ƒ"
    u"áíóúñÑªº¿®¬½¼¡«»░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐"
    u"└┴┬├─┼ãÃ╚╔╩╦╠═╬¤ðÐÊËÈıÍÎÏ┘┌█▄¦Ì▀"
    u"ÓßÔÒõÕµþÞÚÛÙýÝ¯´\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0";
// 0x20 to 0x7F and 0xA0 to 0xFF of the font Symbol (VENDORS/ADOBE/symbol.txt there).
constexpr std::u16string_view SymbolLower =
    u" !∀#∃%&∋()∗+,−./0123456789:;<=>?"
    u"≅ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ[∴]⊥_"
    u"‾αβχδεφγηιϕκλμνοπθρστυϖωξψζ{|}∼\x7f";
constexpr std::u16string_view SymbolUpper =
    u"€ϒ′≤⁄∞ƒ♣♦♥♠↔←↑→↓°±″≥×∝∂•÷≠≡≈…⏐⎯↵"
    u"ℵℑℜ℘⊗⊕∅∩∪⊃⊇⊄⊂⊆∈∉∠∇®©™∏√⋅¬∧∨⇔⇐⇑⇒⇓"
    u"◊〈®©™∑⎛⎜⎝⎡⎢⎣⎧⎨⎩⎪\uF0F0〉∫⌠⎮⌡⎞⎟⎠⎤⎥⎦⎫⎬⎭\uF0FF";
// clang-format on
static_assert(MacRoman.size() == 128 && CodePage437.size() == 128 && CodePage850.size() == 128);
static_assert(SymbolLower.size() == 96 && SymbolUpper.size() == 96);

struct CharacterSet {
    int number;
    int codePage;
};
constexpr CharacterSet CharacterSets[] = {{0, 1252},   {77, RtfCodePage::Mac},
                                          {161, 1253}, {162, 1254},
                                          {163, 1258}, {177, 1255},
                                          {178, 1256}, {186, 1257},
                                          {204, 1251}, {238, 1250},
                                          {254, 437},  {255, 850}};

bool canBeShown(char16_t c)
{
    if (c < 0x20 || (c >= 0x7F && c < 0xA0))
        return c == u'\t';
    // U+2029 and U+FDD0 to U+FDEF are marks inside a text document, U+FFFC stands for its objects.
    return c != 0x2029 && (c < 0xFDD0 || c > 0xFDEF) && (c < 0xFFFC || c == 0xFFFD);
}

QString decodeUpperHalf(QByteArrayView bytes, std::u16string_view upper)
{
    QString text(bytes.size(), Qt::Uninitialized);
    std::ranges::transform(bytes, text.begin(), [upper](char byte) {
        const auto value = static_cast<unsigned char>(byte);
        return value < 128 ? QChar(value) : QChar(upper[value - 128U]);
    });
    return text;
}

} // namespace

int codePageOfCharacterSet(int characterSet, int documentCodePage)
{
    const auto found = std::ranges::find(CharacterSets, characterSet, &CharacterSet::number);
    return found == std::end(CharacterSets) ? documentCodePage : found->codePage;
}

QString decodeRtf(QByteArrayView bytes, int codePage)
{
    switch (codePage) {
    case RtfCodePage::Symbol: {
        QString text = QString::fromLatin1(bytes);
        std::ranges::transform(text, text.begin(), [](QChar c) { return symbolCharacter(c.unicode()); });
        return text;
    }
    case RtfCodePage::Mac:
        return decodeUpperHalf(bytes, MacRoman);
    case 437:
        return decodeUpperHalf(bytes, CodePage437);
    case 850:
        return decodeUpperHalf(bytes, CodePage850);
    case RtfCodePage::Utf8:
        return QString::fromUtf8(bytes);
    default:
        return basic::decodeCodePage(bytes, codePage);
    }
}

char16_t symbolCharacter(char16_t character)
{
    const char16_t low = (character & 0xFF00U) == 0xF000U ? character & 0xFFU : character;
    if (low >= 0x20 && low < 0x80)
        return SymbolLower[low - 0x20U];
    if (low >= 0xA0 && low < 0x100)
        return SymbolUpper[low - 0xA0U];
    return character;
}

QString shownCharacters(QStringView text)
{
    QString shown;
    shown.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            shown += text.sliced(i, 2);
            ++i;
        } else if (c.isSurrogate()) {
            shown += QChar(QChar::ReplacementCharacter);
        } else if (canBeShown(c.unicode())) {
            shown += c;
        }
    }
    return shown;
}

} // namespace kalvenor::richtext
